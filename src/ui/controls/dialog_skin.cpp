// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/controls/dialog_skin.h"

#include "ui/controls/button_ex.h"
#include "ui/controls/panel.h"
#include "ui/controls/skin.h"

#include <QEvent>
#include <QLayout>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QStyle>

#include <algorithm>

namespace ui
{

namespace
{

app::ElementKind KindOf(const QWidget& widget)
{
    if (qobject_cast<const QRadioButton*>(&widget))
        return app::ElementKind::radioButton;
    const bool hasPicture =
        qobject_cast<const CButtonEx*>(&widget) || qobject_cast<const CStaticEx*>(&widget);
    return hasPicture ? app::ElementKind::button : app::ElementKind::plain;
}

QRect Box(const platform::Rect& rect)
{
    return {QPoint(rect.left, rect.top), QPoint(rect.right - 1, rect.bottom - 1)};
}

// The size below which something that the widget shows would be cut off.
QSize Needed(const QWidget& widget)
{
    const bool isText = qobject_cast<const QLabel*>(&widget) || qobject_cast<const QAbstractButton*>(&widget);
    return isText ? widget.sizeHint() : widget.minimumSizeHint();
}

// Whether what the widget shows has room in a box of that size.
bool Fits(const QWidget& widget, const QSize& box)
{
    const auto* label = qobject_cast<const QLabel*>(&widget);
    if (label && label->wordWrap())
        return label->heightForWidth(box.width()) <= box.height();
    const QSize needed = Needed(widget);
    return needed.width() <= box.width() && needed.height() <= box.height();
}

}  // namespace

CDialogSkin::CDialogSkin(QWidget& dressed, std::string file)
    : QObject(&dressed), window(dressed), fileName(std::move(file))
{
    CollectElements();
    window.installEventFilter(this);
    Dress();
}

void CDialogSkin::CollectElements()
{
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        const QString name = widget->objectName();
        // Qt names the parts of its own widgets.
        if (name.isEmpty() || name.startsWith(QLatin1String("qt_")) || widget->isWindow())
            continue;
        elements.push_back({widget, {}, widget->minimumSize()});
        app::SkinElement element;
        element.name = name.section(QLatin1Char('#'), 0, 0).toStdString();
        element.number = name.section(QLatin1Char('#'), 1).toInt();
        element.kind = KindOf(*widget);
        read.elements.push_back(element);
    }
}

void CDialogSkin::Dress()
{
    const QScopedValueRollback guard(working, true);
    dressedFrom = SkinFolder();
    app::WindowLayout layout = read;
    app::ReadLayout(dressedFrom, fileName, layout);
    for (std::size_t i = 0; i < elements.size(); ++i) {
        if (elements[i].widget)
            DressElement(elements[i], layout.elements[i], layout);
    }
    panelRect = layout.panelRect;
    std::optional<QColor> ground;
    if (layout.panelColor)
        ground = SkinColour(*layout.panelColor);
    SetGround(window, ground);
    Place();
}

void CDialogSkin::DressElement(Element& element, const app::SkinElement& look,
                               const app::WindowLayout& layout)
{
    element.rect = look.rect;
    const auto name = [](const std::string& text) { return QString::fromStdString(text); };
    const std::optional<QColor> colour = look.color ? std::optional(SkinColour(*look.color)) : std::nullopt;
    if (qobject_cast<QRadioButton*>(element.widget))
        element.widget->setFont(SkinFont({layout.font.faceName, layout.font.radioSize, 0, {}}, QFont()));
    if (auto* button = qobject_cast<CButtonEx*>(element.widget)) {
        button->SetFontGroup(layout.font);
        if (!look.image.empty())
            button->SetImage(name(look.image));
        if (!look.imageCenter.empty())
            button->SetPieces(name(look.imageLeft), name(look.imageCenter), name(look.imageRight),
                              look.partWidth);
    } else if (auto* text = qobject_cast<CStaticEx*>(element.widget)) {
        text->SetColour(colour);
        if (!look.image.empty())
            text->SetImage(name(look.image));
    } else if (auto* panel = qobject_cast<CPanel*>(element.widget)) {
        panel->SetColour(colour);
    }
}

QSize CDialogSkin::DesignSize() const
{
    if (panelRect)
        return Box(*panelRect).size();
    QRect all;
    for (const Element& element : elements) {
        if (element.widget && element.rect)
            all |= Box(*element.rect);
    }
    // The same margin at the far edges as at the near ones.
    return {all.right() + 1 + all.left(), all.bottom() + 1 + all.top()};
}

bool CDialogSkin::CanPlace() const
{
    const QRect whole({0, 0}, DesignSize());
    QList<QRect> taken;
    for (const QObject* child : window.children()) {
        const auto* widget = qobject_cast<const QWidget*>(child);
        if (!widget || widget->isWindow() || widget->isHidden())
            continue;
        const auto at = std::find_if(elements.begin(), elements.end(),
                                     [widget](const Element& element) { return element.widget == widget; });
        if (at == elements.end() || !at->rect)
            return false;
        const QRect box = Box(*at->rect);
        const bool overlaps = std::any_of(taken.begin(), taken.end(),
                                          [&](const QRect& other) { return other.intersects(box); });
        if (overlaps || !whole.contains(box) || !Fits(*widget, box.size()))
            return false;
        taken.append(box);
    }
    return !taken.isEmpty();
}

void CDialogSkin::Place()
{
    const QScopedValueRollback guard(working, true);
    // A least size of its own makes Qt's layouts pass over what the widget needs for its text.
    for (const Element& element : elements) {
        if (element.widget && element.rect)
            element.widget->setMinimumSize(element.ownLeast.expandedTo(Box(*element.rect).size())
                                               .expandedTo(element.widget->minimumSizeHint()));
    }
    const bool wasPlaced = std::exchange(placed, window.layout() && CanPlace());
    if (!placed) {
        if (wasPlaced) {
            window.setMinimumSize(0, 0);
            window.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
            window.layout()->setEnabled(true);
            window.layout()->invalidate();
            window.layout()->activate();
        }
        return;
    }
    window.layout()->setEnabled(false);
    window.setFixedSize(DesignSize());
    const QRect whole({0, 0}, DesignSize());
    for (const Element& element : elements) {
        if (element.widget && element.rect && element.widget->parentWidget() == &window)
            element.widget->setGeometry(
                QStyle::visualRect(window.layoutDirection(), whole, Box(*element.rect)));
    }
}

bool CDialogSkin::eventFilter(QObject*, QEvent* event)
{
    if (working)
        return false;
    switch (event->type()) {
    case QEvent::ApplicationPaletteChange:
    case QEvent::PaletteChange:
        if (dressedFrom != SkinFolder())
            Dress();
        break;
    case QEvent::Show:
    case QEvent::FontChange:
    case QEvent::LanguageChange:
    case QEvent::LayoutDirectionChange:
    case QEvent::LayoutRequest:
        Place();
        break;
    default:
        break;
    }
    return false;
}

}  // namespace ui
