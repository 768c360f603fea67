// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// TabWindow: the bar of tabs above the left pane.
#pragma once

#include "app/left_pane.h"

#include <QAbstractButton>
#include <QWidget>

#include <array>

namespace ui
{

class TabWindow : public QWidget
{
    Q_OBJECT

public:
    // Shows the state of `tabs`, which it does not own; Update after every change of it.
    explicit TabWindow(const app::CTabs& tabs, QWidget* parent = nullptr);
    void Update();
    QAbstractButton* Button(int id) const;

Q_SIGNALS:
    // A tab was clicked; its command is to be carried out.
    void Clicked(int id);

private:
    const app::CTabs& state;
    std::array<QAbstractButton*, 3> buttons{};
};

}  // namespace ui
