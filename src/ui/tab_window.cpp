// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/tab_window.h"

#include "ui/display_text.h"
#include "ui/icons.h"
#include "ui/style.h"
#include "ui/theme.h"
#include "ui/words.h"

#include <QHBoxLayout>
#include <QPainter>

namespace ui
{

namespace
{

class CTabButton : public QAbstractButton
{
public:
    CTabButton(const QString& caption, QString drawing, QWidget* parent)
        : QAbstractButton(parent), iconName(std::move(drawing))
    {
        setText(caption);
        setAccessibleName(caption);
        setCheckable(true);
        setAttribute(Qt::WA_Hover);
        setFocusPolicy(Qt::TabFocus);
    }

    QSize sizeHint() const override
    {
        return {fontMetrics().horizontalAdvance(text()) + kIcon + 8 * kGrid, 9 * kGrid};
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        const ThemeColours& colours = CTheme::Colours();
        if (underMouse() && isEnabled())
            FillRounded(painter, rect().adjusted(2, 3, -2, -5), colours.hover, kCornerRadius);
        const QColor colour = isChecked() ? colours.accent : isEnabled() ? colours.text : colours.dimText;
        const int textWidth = fontMetrics().horizontalAdvance(text());
        const int left = (width() - kIcon - 2 * kGrid + kGrid / 2 - textWidth) / 2;
        painter.drawPixmap(left, (height() - kIcon) / 2,
                           IconPixmap(iconName, kIcon, colour, devicePixelRatioF()));
        painter.setPen(isEnabled() ? colours.text : colours.dimText);
        painter.drawText(rect().adjusted(left + kIcon + 2 * kGrid - kGrid / 2, 0, 0, 0),
                         Qt::AlignVCenter | Qt::AlignLeft, text());
        painter.fillRect(0, height() - 1, width(), 1, colours.line);
        if (isChecked())
            FillRounded(painter, QRect(2 * kGrid, height() - 3, width() - 4 * kGrid, 3), colours.accent, 1.5);
        if (hasFocus()) {
            painter.setPen(colours.accent);
            painter.drawRect(rect().adjusted(2, 2, -3, -5));
        }
    }

private:
    static constexpr int kIcon = 16;
    QString iconName;
};

}  // namespace

TabWindow::TabWindow(const app::CTabs& tabs, QWidget* parent) : QWidget(parent), state(tabs)
{
    static constexpr std::array drawings = {"favourite", "folder", "search"};
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        const app::Tab& tab = state.All()[i];
        buttons[i] = new CTabButton(Text(tab.caption), QString::fromLatin1(drawings[i]), this);
        connect(buttons[i], &QAbstractButton::clicked, this, [this, id = tab.id] {
            // The state decides which tab is down.
            Update();
            Q_EMIT Clicked(id);
        });
        row->addWidget(buttons[i], 1);
    }
    Update();
}

void TabWindow::Update()
{
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        const app::Tab& tab = state.All()[i];
        buttons[i]->setChecked(tab.checked);
        buttons[i]->setEnabled(tab.enabled);
        buttons[i]->setVisible(tab.visible);
    }
}

QAbstractButton* TabWindow::Button(int id) const
{
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        if (state.All()[i].id == id)
            return buttons[i];
    }
    return nullptr;
}

}  // namespace ui
