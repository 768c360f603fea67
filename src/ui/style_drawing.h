// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What CStyle draws itself, in the theme's colours.
#pragma once

#include <QStyleOption>

class QPainter;

namespace ui
{

void DrawRow(const QStyleOptionViewItem& option, QPainter& painter);
void DrawFocus(const QStyleOption& option, QPainter& painter);
void DrawScrollBar(const QStyleOptionSlider& option, const QRect& slider, QPainter& painter);
void DrawSlider(const QStyleOptionSlider& option, const QRect& handle, QPainter& painter);
enum class MarkShape { box, round };
// The mark of a check box or of a radio button.
void DrawMark(const QStyleOption& option, QPainter& painter, MarkShape shape);
// Around what is typed into or chosen from.
void DrawFrame(const QStyleOption& option, QPainter& painter);
void DrawToolButton(const QStyleOption& option, QPainter& painter);
// What is drawn of a tool button above its ground: down while it is pressed, picture and text in its middle.
QStyleOptionToolButton ToolLabel(const QStyleOptionToolButton& button);
void DrawToolBar(const QStyleOption& option, QPainter& painter);
void DrawToolBarSeparator(const QStyleOption& option, QPainter& painter);
void DrawMenuGround(const QStyleOption& option, QPainter& painter);
void DrawMenuSeparator(const QStyleOption& option, QPainter& painter);
// The item with a text that keeps its own direction.
QStyleOptionViewItem Isolated(const QStyleOptionViewItem& item);
void DrawMenuBarItem(const QStyleOptionMenuItem& option, QPainter& painter);
void DrawHeaderSection(const QStyleOption& option, QPainter& painter);
void DrawScrollBarGround(const QStyleOption& option, QPainter& painter, const QWidget* scrollBar);
// A line that fills.
void DrawProgress(const QStyleOptionProgressBar& option, QPainter& painter);

}  // namespace ui
