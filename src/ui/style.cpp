// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/style.h"

#include "ui/controls/dialog_skin.h"
#include "ui/controls/skin_look.h"
#include "ui/icons.h"
#include "ui/style_drawing.h"
#include "ui/theme.h"

#include <QAbstractItemView>
#include <QGridLayout>
#include <QMessageBox>
#include <QPainter>

namespace ui
{

namespace
{

constexpr int kScrollBarWidth = 12;
constexpr int kShortestSlider = 36;
constexpr int kLeastMessageWidth = 90 * kGrid;

// Our own drawing in place of one of Qt's.
const char* DrawingOf(QStyle::StandardPixmap picture)
{
    switch (picture) {
    case QStyle::SP_MessageBoxInformation:
        return "properties";
    case QStyle::SP_MessageBoxQuestion:
        return "question";
    case QStyle::SP_MessageBoxWarning:
    case QStyle::SP_MessageBoxCritical:
        return "warning";
    default:
        return nullptr;
    }
}

}  // namespace

CStyle::CStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void CStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                           const QWidget* widget) const
{
    const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(option);
    if (element == PE_PanelItemViewItem && item)
        return DrawRow(*item, *painter);
    if (element == PE_PanelButtonTool)
        return DrawToolButton(*option, *painter);
    if (element == PE_IndicatorRadioButton && DrawSkinMark(*option, *painter, widget))
        return;
    if (element == PE_IndicatorRadioButton || element == PE_IndicatorCheckBox)
        return DrawMark(*option, *painter,
                        element == PE_IndicatorRadioButton ? MarkShape::round : MarkShape::box);
    if (element == PE_FrameLineEdit || element == PE_Frame)
        return DrawFrame(*option, *painter);
    if (element == PE_PanelMenu)
        return DrawMenuGround(*option, *painter);
    if (element == PE_IndicatorToolBarSeparator)
        return DrawToolBarSeparator(*option, *painter);
    if (element == PE_PanelItemViewRow || element == PE_FrameMenu)
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
        DrawScrollBarGround(*option, *painter, widget);
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
    if (element == CE_ToolBar)
        return DrawToolBar(*option, *painter);
    if (element == CE_MenuBarEmptyArea)
        return;
    const auto* progress = qstyleoption_cast<const QStyleOptionProgressBar*>(option);
    if (element == CE_ProgressBarGroove && progress)
        return;
    if (element == CE_ProgressBarContents && progress && progress->maximum > progress->minimum)
        return DrawProgress(*progress, *painter);
    const auto* tool = qstyleoption_cast<const QStyleOptionToolButton*>(option);
    if (element == CE_ToolButtonLabel && tool) {
        const QStyleOptionToolButton label = ToolLabel(*tool);
        return QProxyStyle::drawControl(element, &label, painter, widget);
    }
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (button && (element == CE_RadioButtonLabel || element == CE_CheckBoxLabel)) {
        QStyleOptionButton label = *button;
        label.palette = SkinnedText(*option, widget);
        return QProxyStyle::drawControl(element, &label, painter, widget);
    }
    const auto* row = qstyleoption_cast<const QStyleOptionViewItem*>(option);
    if (element == CE_ItemViewItem && row && row->direction == Qt::RightToLeft && !row->text.isEmpty()) {
        const QStyleOptionViewItem isolated = Isolated(*row);
        return QProxyStyle::drawControl(element, &isolated, painter, widget);
    }
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (item && (element == CE_MenuBarItem || element == CE_MenuItem))
        return DrawMenuPart(element, *item, painter, widget);
    QProxyStyle::drawControl(element, option, painter, widget);
}

void CStyle::DrawMenuPart(ControlElement element, const QStyleOptionMenuItem& item, QPainter* painter,
                          const QWidget* widget) const
{
    if (element == CE_MenuBarItem)
        return DrawMenuBarItem(item, *painter);
    if (item.menuItemType == QStyleOptionMenuItem::Separator && item.text.isEmpty())
        return DrawMenuSeparator(item, *painter);
    QStyleOptionMenuItem plain = item;
    if (item.state.testFlag(State_Selected)) {
        FillRounded(*painter, item.rect.adjusted(kGrid, 0, -kGrid, 0), CTheme::Colours().selection, kGrid);
        plain.state.setFlag(State_Selected, false);
    }
    QProxyStyle::drawControl(element, &plain, painter, widget);
}

QRect CStyle::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const
{
    // The focus is drawn around all that is drawn as selected.
    if (element == SE_ItemViewItemFocusRect)
        return option->rect;
    return QProxyStyle::subElementRect(element, option, widget);
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

QSize CStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                               const QWidget* widget) const
{
    const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    return type == CT_ItemViewItem ? size.expandedTo({0, 6 * kGrid}) : size;
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

QIcon CStyle::standardIcon(StandardPixmap picture, const QStyleOption* option, const QWidget* widget) const
{
    if (const char* drawing = DrawingOf(picture))
        return ThemedIcon(QString::fromLatin1(drawing));
    return QProxyStyle::standardIcon(picture, option, widget);
}

void CStyle::polish(QWidget* widget)
{
    QProxyStyle::polish(widget);
    if (auto* dialog = qobject_cast<QDialog*>(widget))
        DressDialog(*dialog);
    // Qt makes message boxes as narrow as their first line.
    auto* grid = qobject_cast<QMessageBox*>(widget) ? qobject_cast<QGridLayout*>(widget->layout()) : nullptr;
    if (grid)
        grid->addItem(new QSpacerItem(kLeastMessageWidth, 0), grid->rowCount(), 0, 1, grid->columnCount());
}

int CStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                      QStyleHintReturn* data) const
{
    switch (hint) {
    case SH_ItemView_ShowDecorationSelected:
        return 1;
    case SH_DialogButtonBox_ButtonsHaveIcons:
        return 0;
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
