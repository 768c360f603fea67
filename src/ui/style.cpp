// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/style.h"

#include "ui/theme.h"

#include <QAbstractItemView>
#include <QPainter>
#include <QStyleOption>

namespace ui
{

namespace
{

constexpr int kScrollBarWidth = 12;
constexpr int kShortestSlider = 36;

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

// A scroll bar stands on the ground of what it scrolls.
QColor GroundOf(const QWidget* scrollBar)
{
    for (const QWidget* above = scrollBar; above; above = above->parentWidget()) {
        if (const auto* area = qobject_cast<const QAbstractScrollArea*>(above))
            return area->palette().color(area->viewport()->backgroundRole());
    }
    return CTheme::Colours().window;
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

}  // namespace

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

CStyle::CStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void CStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                           const QWidget* widget) const
{
    const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(option);
    if (element == PE_PanelItemViewItem && item)
        return DrawRow(*item, *painter);
    if (element == PE_PanelButtonTool)
        return DrawToolButton(*option, *painter);
    if (element == PE_PanelItemViewRow)
        return;
    // A tree draws the focus of a whole row without naming itself.
    if (element == PE_FrameFocusRect && (!widget || qobject_cast<const QAbstractItemView*>(widget)))
        return DrawFocus(*option, *painter);
    if (element == PE_FrameStatusBarItem || element == PE_PanelMenuBar)
        return;
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void CStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                const QWidget* widget) const
{
    const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control == CC_ScrollBar && slider) {
        painter->fillRect(option->rect, GroundOf(widget));
        return DrawScrollBar(*slider, subControlRect(control, option, SC_ScrollBarSlider, widget), *painter);
    }
    if (control == CC_Slider && slider)
        return DrawSlider(*slider, subControlRect(control, option, SC_SliderHandle, widget), *painter);
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

void CStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                         const QWidget* widget) const
{
    if (element == CE_HeaderSection || element == CE_HeaderEmptyArea)
        return DrawHeaderSection(*option, *painter);
    if (element == CE_Splitter)
        return painter->fillRect(option->rect, CTheme::Colours().line);
    if (element == CE_MenuBarEmptyArea)
        return;
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (element == CE_MenuBarItem && item)
        return DrawMenuBarItem(*item, *painter);
    if (element == CE_MenuItem && item && item->state.testFlag(State_Selected)) {
        FillRounded(*painter, item->rect.adjusted(kGrid, 0, -kGrid, 0), CTheme::Colours().selection, kGrid);
        QStyleOptionMenuItem plain = *item;
        plain.state.setFlag(State_Selected, false);
        return QProxyStyle::drawControl(element, &plain, painter, widget);
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

QRect CStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                             const QWidget* widget) const
{
    const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control != CC_ScrollBar || !slider)
        return QProxyStyle::subControlRect(control, option, part, widget);
    if (part == SC_ScrollBarAddLine || part == SC_ScrollBarSubLine)
        return {};
    const bool lying = slider->orientation == Qt::Horizontal;
    const int whole = lying ? option->rect.width() : option->rect.height();
    const qint64 range = qint64(slider->maximum) - slider->minimum + slider->pageStep;
    int length = range > 0 ? int(qint64(whole) * slider->pageStep / range) : whole;
    length = std::clamp(length, std::min(kShortestSlider, whole), whole);
    const int start = sliderPositionFromValue(slider->minimum, slider->maximum, slider->sliderPosition,
                                              whole - length, slider->upsideDown);
    const auto box = [&](int from, int size) {
        const QRect along =
            lying ? QRect(from, 0, size, option->rect.height()) : QRect(0, from, option->rect.width(), size);
        return along.translated(option->rect.topLeft());
    };
    switch (part) {
    case SC_ScrollBarSlider:
        return box(start, length);
    case SC_ScrollBarSubPage:
        return box(0, start);
    case SC_ScrollBarAddPage:
        return box(start + length, whole - start - length);
    default:
        return box(0, whole);
    }
}

int CStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    switch (metric) {
    case PM_ScrollBarExtent:
        return kScrollBarWidth;
    case PM_ScrollBarSliderMin:
        return kShortestSlider;
    case PM_ScrollView_ScrollBarSpacing:
        return 0;
    case PM_SplitterWidth:
        return 1;
    case PM_SmallIconSize:
        return 16;
    case PM_TreeViewIndentation:
        return 4 * kGrid;
    case PM_MenuPanelWidth:
        return 1;
    case PM_MenuVMargin:
    case PM_MenuBarVMargin:
        return kGrid / 2;
    case PM_FocusFrameHMargin:
    case PM_HeaderMargin:
        return 2 * kGrid - 2;
    case PM_MenuBarItemSpacing:
        return kGrid;
    case PM_MenuBarPanelWidth:
        return 0;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int CStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                      QStyleHintReturn* data) const
{
    switch (hint) {
    case SH_ItemView_ShowDecorationSelected:
        return 1;
    // Nothing fades or blinks: an idle window costs nothing.
    case SH_Widget_Animation_Duration:
        return 0;
    case SH_ScrollView_FrameOnlyAroundContents:
        return 0;
    case SH_UnderlineShortcut:
        return 1;
    default:
        return QProxyStyle::styleHint(hint, option, widget, data);
    }
}

}  // namespace ui
