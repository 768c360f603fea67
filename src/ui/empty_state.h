// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CEmptyState: what the list says when it has nothing to show. It lies over the view and lets clicks through.
#pragma once

#include <QWidget>

namespace ui
{

class CEmptyState : public QWidget
{
    Q_OBJECT

public:
    explicit CEmptyState(QWidget* parent = nullptr);
    // An empty title hides it.
    void Show(const QString& icon, const QString& heading, const QString& more);
    const QString& Heading() const { return title; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString drawing;
    QString title;
    QString detail;
};

}  // namespace ui
