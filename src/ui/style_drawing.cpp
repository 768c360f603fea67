// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/style_drawing.h"

#include "ui/style.h"
#include "ui/theme.h"
#include "ui/words.h"

#include <QAbstractScrollArea>
#include <QPainter>

#include <algorithm>

namespace ui
{

namespace
{

// A scroll bar stands on the ground of what it scrolls.
QColor GroundOf(const QWidget* scrollBar)
{
    for (const QWidget* above = scrollBar; above; above = above->parentWidget()) {
        if (const auto* area = qobject_cast<const QAbstractScrollArea*>(above))
            return area->palette().color(area->viewport()->backgroundRole());
    }
    return CTheme::Colours().window;
}

}  // namespace

void DrawMark(const QStyleOption& option, QPainter& painter, MarkShape shape)
{
    const ThemeColours& colours = CTheme::Colours();
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    const bool set = option.state & (QStyle::State_On | QStyle::State_NoChange);
    const bool hovered = enabled && option.state.testFlag(QStyle::State_MouseOver);
    const QColor edge = !enabled ? colours.line : set || hovered ? colours.accent : colours.dimText;
    const double side = std::min(option.rect.width(), option.rect.height()) - 1;
    QRectF box(0, 0, side, side);
    box.moveCenter(QRectF(option.rect).center());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(edge);
    const bool filled = set && shape == MarkShape::box;
    painter.setBrush(filled                                        ? edge
                     : option.state.testFlag(QStyle::State_Sunken) ? colours.selection
                                                                   : colours.view);
    const double radius = shape == MarkShape::round ? side / 2 : kGrid / 2.0;
    painter.drawRoundedRect(box, radius, radius);
    const auto at = [&](double x, double y) { return box.topLeft() + QPointF(x, y) * side; };
    if (filled) {
        painter.setPen(QPen(colours.view, 1.75, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.setBrush(Qt::NoBrush);
        if (option.state.testFlag(QStyle::State_NoChange))
            painter.drawLine(at(0.25, 0.5), at(0.75, 0.5));
        else
            painter.drawPolyline(QPolygonF({at(0.22, 0.52), at(0.42, 0.72), at(0.78, 0.3)}));
    } else if (set) {
        painter.setBrush(edge);
        painter.drawEllipse(box.center(), side / 4, side / 4);
    }
    painter.restore();
}

void DrawFrame(const QStyleOption& option, QPainter& painter)
{
    const ThemeColours& colours = CTheme::Colours();
    const bool focused = option.state.testFlag(QStyle::State_HasFocus);
    QColor edge = focused ? colours.accent : colours.dimText;
    if (!focused)
        edge.setAlphaF(option.state.testFlag(QStyle::State_Enabled) ? 0.55F : 0.3F);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(edge);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), 2, 2);
    painter.restore();
}

void DrawScrollBarGround(const QStyleOption& option, QPainter& painter, const QWidget* scrollBar)
{
    painter.fillRect(option.rect, GroundOf(scrollBar));
}

void DrawRow(const QStyleOptionViewItem& option, QPainter& painter)
{
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    const bool hovered = option.state.testFlag(QStyle::State_MouseOver);
    if (!selected && !hovered)
        return;
    const ThemeColours& colours = CTheme::Colours();
    QRectF box = QRectF(option.rect).adjusted(0, 1, 0, -1);
    painter.save();
    painter.setClipRect(option.rect);
    // Inner cells of a row reach beyond their clip so that only the row's ends are round.
    using Item = QStyleOptionViewItem;
    const bool open = option.viewItemPosition == Item::Middle;
    const bool left = option.viewItemPosition == Item::End || open;
    const bool right = option.viewItemPosition == Item::Beginning || open;
    box.adjust(left ? -kCornerRadius : 0, 0, right ? kCornerRadius : 0, 0);
    FillRounded(painter, box, selected ? colours.selection : colours.hover, kCornerRadius);
    painter.restore();
}

void DrawFocus(const QStyleOption& option, QPainter& painter)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(CTheme::Colours().accent, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(option.rect).adjusted(0.5, 1.5, -0.5, -1.5), kCornerRadius, kCornerRadius);
    painter.restore();
}

void DrawScrollBar(const QStyleOptionSlider& option, const QRect& slider, QPainter& painter)
{
    const ThemeColours& colours = CTheme::Colours();
    if (option.maximum <= option.minimum)
        return;
    QColor handle = colours.dimText;
    const bool active =
        option.activeSubControls.testFlag(QStyle::SC_ScrollBarSlider) &&
        (option.state.testFlag(QStyle::State_MouseOver) || option.state.testFlag(QStyle::State_Sunken));
    handle.setAlphaF(active ? 0.8F : 0.4F);
    const QRectF box = QRectF(slider).adjusted(3, 3, -3, -3);
    FillRounded(painter, box, handle, std::min(box.width(), box.height()) / 2);
}

void DrawSlider(const QStyleOptionSlider& option, const QRect& handle, QPainter& painter)
{
    const ThemeColours& colours = CTheme::Colours();
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    const QColor accent = enabled ? colours.accent : colours.line;
    QRectF groove(option.rect.left() + kGrid, option.rect.center().y() - 1, option.rect.width() - 2 * kGrid,
                  3);
    FillRounded(painter, groove, colours.line, 1.5);
    groove.setRight(handle.center().x());
    FillRounded(painter, groove, accent, 1.5);
    QRectF knob(0, 0, 3 * kGrid, 3 * kGrid);
    knob.moveCenter(QRectF(handle).center());
    FillRounded(painter, knob, accent, knob.width() / 2);
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(accent);
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(knob.adjusted(-2.5, -2.5, 2.5, 2.5));
    }
}

void DrawToolButton(const QStyleOption& option, QPainter& painter)
{
    const ThemeColours& colours = CTheme::Colours();
    const bool down = option.state.testFlag(QStyle::State_On) || option.state.testFlag(QStyle::State_Sunken);
    const bool hovered =
        option.state.testFlag(QStyle::State_MouseOver) && option.state.testFlag(QStyle::State_Enabled);
    if (down || hovered)
        FillRounded(painter, option.rect, down ? colours.selection : colours.hover, kCornerRadius);
}

QStyleOptionToolButton ToolLabel(const QStyleOptionToolButton& button)
{
    QStyleOptionToolButton label = button;
    // Qt asks an icon for what it looks like when down only where a button stays down.
    if (button.state.testFlag(QStyle::State_Sunken))
        label.state |= QStyle::State_On;
    if (button.toolButtonStyle != Qt::ToolButtonTextBesideIcon)
        return label;
    // The room beside picture and text, which Qt leaves behind the text alone, stands half on either side.
    constexpr int kBetween = 4;  // what Qt leaves beside the picture
    const int used = button.iconSize.width() + kBetween + button.fontMetrics.horizontalAdvance(button.text);
    const int spare = std::max(0, button.rect.width() - used) / 2;
    label.rect.adjust(spare, 0, -spare, 0);
    return label;
}

void DrawToolBar(const QStyleOption& option, QPainter& painter)
{
    const ThemeColours& colours = CTheme::Colours();
    painter.fillRect(option.rect, colours.window);
    painter.setPen(colours.line);
    painter.drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
}

void DrawToolBarSeparator(const QStyleOption& option, QPainter& painter)
{
    QRect line(0, 0, 1, 5 * kGrid);
    if (!option.state.testFlag(QStyle::State_Horizontal))
        line = line.transposed();
    line.moveCenter(option.rect.center());
    painter.fillRect(line, CTheme::Colours().line);
}

void DrawMenuGround(const QStyleOption& option, QPainter& painter)
{
    const ThemeColours& colours = CTheme::Colours();
    QColor edge = colours.dimText;
    edge.setAlphaF(0.5F);
    painter.fillRect(option.rect, CTheme::IsDark() ? colours.window : colours.view);
    painter.setPen(edge);
    painter.drawRect(option.rect.adjusted(0, 0, -1, -1));
}

void DrawMenuSeparator(const QStyleOption& option, QPainter& painter)
{
    const QRect& box = option.rect;
    painter.fillRect(QRect(box.left() + 2 * kGrid, box.center().y(), box.width() - 4 * kGrid, 1),
                     CTheme::Colours().line);
}

// File names begin with digits often; in a layout from right to left those would go to the other end.
QStyleOptionViewItem Isolated(const QStyleOptionViewItem& item)
{
    QStyleOptionViewItem isolated = item;
    isolated.text = Shielded(item.text);
    return isolated;
}

void DrawMenuBarItem(const QStyleOptionMenuItem& option, QPainter& painter)
{
    const ThemeColours& colours = CTheme::Colours();
    if (option.state.testFlag(QStyle::State_Selected))
        FillRounded(painter, option.rect.adjusted(0, 1, 0, -1), colours.selection, kGrid);
    painter.setPen(option.state.testFlag(QStyle::State_Enabled) ? colours.text : colours.dimText);
    painter.drawText(option.rect, Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextSingleLine, option.text);
}

void DrawHeaderSection(const QStyleOption& option, QPainter& painter)
{
    const ThemeColours& colours = CTheme::Colours();
    painter.fillRect(option.rect, colours.view);
    painter.setPen(colours.line);
    painter.drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
    painter.drawLine(option.rect.right(), option.rect.top() + 2 * kGrid, option.rect.right(),
                     option.rect.bottom() - 2 * kGrid);
}

void DrawProgress(const QStyleOptionProgressBar& option, QPainter& painter)
{
    QRectF line(option.rect.left(), option.rect.center().y() - kGrid / 2.0, option.rect.width(), kGrid);
    FillRounded(painter, line, CTheme::Colours().line, kGrid / 2.0);
    const double range = double(option.maximum) - option.minimum;
    if (range <= 0)
        return;
    const double width = line.width() * std::clamp((option.progress - option.minimum) / range, 0.0, 1.0);
    if (option.direction == Qt::RightToLeft)
        line.setLeft(line.right() - width);
    else
        line.setWidth(width);
    FillRounded(painter, line, CTheme::Colours().accent, kGrid / 2.0);
}

void FillRounded(QPainter& painter, const QRectF& box, const QColor& colour, qreal radius)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawRoundedRect(box, radius, radius);
    painter.restore();
}

void DrawBand(QPainter& painter, const QRect& band)
{
    QColor colour = CTheme::Colours().accent;
    painter.setPen(colour);
    colour.setAlpha(40);
    painter.setBrush(colour);
    painter.drawRect(band.adjusted(0, 0, -1, -1));
}

}  // namespace ui
