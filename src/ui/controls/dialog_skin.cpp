// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/controls/dialog_skin.h"

#include "ui/controls/button_ex.h"
#include "ui/controls/element_look.h"
#include "ui/controls/panel.h"
#include "ui/controls/skin.h"
#include "ui/display_text.h"

#include <QDialogButtonBox>
#include <QEvent>
#include <QLayout>
#include <QMessageBox>
#include <QScopedValueRollback>
#include <QStyle>

#include <algorithm>

namespace ui
{

namespace
{

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
    if (!dressedFrom.empty())
        app::ReadLayout(dressedFrom, fileName, layout);
    panelRect = layout.panelRect;
    // The texts' colours are made readable on it.
    SetGround(window, layout.panelColor ? std::optional(SkinColour(*layout.panelColor)) : std::nullopt);
    for (std::size_t i = 0; i < elements.size(); ++i) {
        elements[i].rect = layout.elements[i].rect;
        if (elements[i].widget)
            DressElement(*elements[i].widget, layout.elements[i], layout.font);
    }
    Add(layout.added);
    Place();
}

void CDialogSkin::Add(const std::vector<app::SkinElement>& looks)
{
    for (const Addition& old : additions)
        delete old.widget;
    additions.clear();
    for (const app::SkinElement& look : looks) {
        auto* pressed = look.presses.empty()
                            ? nullptr
                            : window.findChild<QAbstractButton*>(QString::fromStdString(look.presses));
        if (QWidget* made = MakeAddition(look, pressed))
            additions.push_back({made, *look.rect, pressed});
    }
    // The first of them lies lowest.
    for (auto at = additions.rbegin(); at != additions.rend(); ++at)
        at->widget->lower();
}

QWidget* CDialogSkin::MakeAddition(const app::SkinElement& look, QAbstractButton* pressed)
{
    const QString image = Shown(look.image);
    if (image.isEmpty()) {
        auto* panel = new CPanel(&window);
        DressElement(*panel, look, {});
        return panel;
    }
    if (look.presses.empty()) {
        auto* picture = new CStaticEx(&window);
        picture->SetImage(image);
        picture->setAlignment(Qt::AlignCenter);
        return picture;
    }
    if (!pressed || SkinStates(image, window.devicePixelRatioF()).front().isNull())
        return nullptr;
    // Another face of a button that the keyboard and screen readers reach.
    auto* button = new CRescaleButton(&window);
    button->SetImage(image);
    button->setFocusPolicy(Qt::NoFocus);
    button->setAutoDefault(false);
    button->setFlat(true);
    button->setEnabled(pressed->isEnabled());
    button->setAccessibleName(pressed->text().remove(QLatin1Char('&')));
    button->setToolTip(button->accessibleName());
    connect(button, &QAbstractButton::clicked, pressed, &QAbstractButton::click);
    pressed->installEventFilter(this);
    return button;
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

const CDialogSkin::Element* CDialogSkin::ElementOf(const QWidget& widget) const
{
    const auto at = std::ranges::find_if(
        elements, [&widget](const Element& element) { return element.widget == &widget; });
    return at == elements.end() ? nullptr : &*at;
}

QList<QWidget*> CDialogSkin::Parts() const
{
    QList<QWidget*> parts;
    for (QWidget* widget : window.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        const bool isAdded = std::ranges::any_of(
            additions, [widget](const Addition& added) { return added.widget == widget; });
        if (isAdded || widget->isWindow() || widget->isHidden())
            continue;
        if (!qobject_cast<QDialogButtonBox*>(widget)) {
            parts.append(widget);
            continue;
        }
        for (QAbstractButton* button : widget->findChildren<QAbstractButton*>()) {
            if (!button->isHidden())
                parts.append(button);
        }
    }
    return parts;
}

bool CDialogSkin::CanPlace() const
{
    if (!window.layout() || qobject_cast<QMessageBox*>(&window))
        return false;
    const QRect whole({0, 0}, DesignSize());
    QList<QRect> taken;
    for (const QWidget* widget : Parts()) {
        const Element* element = ElementOf(*widget);
        if (!element || !element->rect)
            return false;
        const QRect box = Box(*element->rect);
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
    const bool wasPlaced = std::exchange(placed, CanPlace());
    for (const Addition& added : additions)
        added.widget->setVisible(placed);
    if (placed)
        PlaceAll();
    else if (wasPlaced)
        LeaveToLayout();
}

void CDialogSkin::LeaveToLayout()
{
    window.setMinimumSize(0, 0);
    window.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    for (QDialogButtonBox* box : window.findChildren<QDialogButtonBox*>()) {
        box->layout()->setEnabled(true);
        box->layout()->invalidate();
        box->updateGeometry();
    }
    window.layout()->setEnabled(true);
    window.layout()->invalidate();
    window.layout()->activate();
}

void CDialogSkin::PlaceAll()
{
    const QRect whole({0, 0}, DesignSize());
    const auto placeOf = [&](const platform::Rect& rect) {
        return QStyle::visualRect(window.layoutDirection(), whole, Box(rect));
    };
    window.layout()->setEnabled(false);
    window.setFixedSize(whole.size());
    for (QWidget* part : Parts()) {
        if (auto* box = qobject_cast<QDialogButtonBox*>(part->parentWidget())) {
            box->layout()->setEnabled(false);
            // The window does not hear of changes below a layout at rest.
            box->installEventFilter(this);
            box->setGeometry(whole);
            // So that what lies between its buttons can be clicked.
            box->lower();
        }
        part->setGeometry(placeOf(*ElementOf(*part)->rect));
    }
    for (const Addition& added : additions)
        added.widget->setGeometry(placeOf(added.rect));
}

bool CDialogSkin::eventFilter(QObject* watched, QEvent* event)
{
    if (working)
        return false;
    if (watched != &window) {
        if (event->type() == QEvent::LayoutRequest)
            Place();
        for (const Addition& added : additions) {
            if (event->type() == QEvent::EnabledChange && added.pressed == watched)
                added.widget->setEnabled(added.pressed->isEnabled());
        }
        return false;
    }
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

void DressDialog(QDialog& dialog)
{
    if (dialog.findChild<CDialogSkin*>(QString(), Qt::FindDirectChildrenOnly))
        return;
    const QString name = dialog.objectName();
    new CDialogSkin(dialog, (name.isEmpty() ? QStringLiteral("dialog") : name).toStdString() + ".ini");
}

}  // namespace ui
