// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/controls/tab_button.h"

#include "ui/icons.h"
#include "ui/style.h"
#include "ui/tab_window.h"
#include "ui/theme.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

namespace ui
{

namespace
{

constexpr int kIcon = 16;
constexpr int kHeight = 9 * kGrid;
constexpr int kUnderline = 3;

class CAccessibleTab : public QAccessibleWidget
{
public:
    explicit CAccessibleTab(CTabButton* tab) : QAccessibleWidget(tab, QAccessible::PageTab) {}

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.selectable = true;
        state.focusable = true;
        state.selected = Tab().isChecked();
        return state;
    }
    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
    void doAction(const QString& action) override
    {
        if (action == pressAction())
            return Tab().click();
        QAccessibleWidget::doAction(action);
    }

private:
    CTabButton& Tab() const { return *static_cast<CTabButton*>(widget()); }
};

QAccessibleInterface* MakeAccessible(const QString&, QObject* object)
{
    if (auto* tab = qobject_cast<CTabButton*>(object))
        return new CAccessibleTab(tab);
    if (auto* bar = qobject_cast<TabWindow*>(object))
        return new QAccessibleWidget(bar, QAccessible::PageTabList);
    return nullptr;
}

}  // namespace

void InstallTabAccessibility()
{
    QAccessible::installFactory(MakeAccessible);
}

CTabButton::CTabButton(const QString& caption, const QString& image, const QString& drawing, QWidget* parent)
    : CButtonEx(caption, parent)
{
    setAccessibleName(caption);
    setCheckable(true);
    setAutoDefault(false);
    setIcon(ThemedIcon(drawing));
    SetImage(image);
}

QSize CTabButton::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(text()) + kIcon + 8 * kGrid, kHeight};
}

QSize CTabButton::minimumSizeHint() const
{
    return {kIcon + 4 * kGrid, kHeight};
}

QColor CTabButton::TextColour() const
{
    return isEnabled() ? CTheme::Colours().text : CTheme::Colours().dimText;
}

void CTabButton::keyPressEvent(QKeyEvent* event)
{
    constexpr std::array moves = {Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_End};
    // The bar's keys.
    if (std::find(moves.begin(), moves.end(), event->key()) != moves.end())
        return event->ignore();
    CButtonEx::keyPressEvent(event);
}

void CTabButton::DrawGround(QPainter& painter)
{
    const ThemeColours& colours = CTheme::Colours();
    const QRect ground = rect().adjusted(2, 3, -2, -5);
    if (isDown())
        FillRounded(painter, ground, colours.selection, kCornerRadius);
    else if (underMouse() && isEnabled())
        FillRounded(painter, ground, colours.hover, kCornerRadius);
    painter.fillRect(0, height() - 1, width(), 1, colours.line);
    if (isChecked())
        FillRounded(painter, QRect(2 * kGrid, height() - kUnderline, width() - 4 * kGrid, kUnderline),
                    isEnabled() ? colours.accent : colours.line, kUnderline / 2.0);
}

void CTabButton::DrawFocus(QPainter& painter)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(CTheme::Colours().accent, 1.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect()).adjusted(2.75, 3.75, -2.75, -5.75), kCornerRadius, kCornerRadius);
}

}  // namespace ui
