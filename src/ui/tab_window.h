// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// TabWindow: the bar of tabs above the left pane.
//
// The arrow keys, Home and End go from tab to tab and show each one's panel.
#pragma once

#include "app/left_pane.h"

#include <QAbstractButton>
#include <QWidget>

#include <array>

namespace ui
{

class CTabButton;

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

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    // The next one that can be chosen from `from` on, `from` itself included; null when there is none.
    CTabButton* Usable(int from, int step) const;

    const app::CTabs& state;
    std::array<CTabButton*, 3> buttons{};
};

}  // namespace ui
