// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CTabButton: one tab of a bar; the one that is down has a line in the accent's colour below it.
//
// Screen readers see a page tab. Only the tab that is down can be reached with the Tab key; the bar moves on
// from there with the arrow keys.
#pragma once

#include "ui/controls/button_ex.h"

namespace ui
{

class CTabButton : public CButtonEx
{
    Q_OBJECT

public:
    // `drawing` names the theme's icon for a skin without the image.
    CTabButton(const QString& caption, const QString& image, const QString& drawing, QWidget* parent);

    QSize sizeHint() const override;
    // The picture alone: in a narrow bar the captions are cut short.
    QSize minimumSizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void DrawGround(QPainter& painter) override;
    void DrawFocus(QPainter& painter) override;
    QColor TextColour() const override;
};

// Tells screen readers of tabs and tab bars. More than one call changes nothing.
void InstallTabAccessibility();

}  // namespace ui
