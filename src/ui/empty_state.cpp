// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/empty_state.h"

#include "ui/icons.h"
#include "ui/theme.h"

#include <QAccessible>
#include <QPainter>

namespace ui
{

namespace
{

constexpr int kIconSide = 64;
constexpr int kTextWidth = 420;

}  // namespace

CEmptyState::CEmptyState(QWidget* parent) : QWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void CEmptyState::Show(const QString& icon, const QString& heading, const QString& more)
{
    const bool same = drawing == icon && title == heading && detail == more;
    drawing = icon;
    title = heading;
    detail = more;
    setAccessibleName(title);
    setAccessibleDescription(detail);
    setVisible(!title.isEmpty());
    if (same)
        return;
    update();
    if (!title.isEmpty() && QAccessible::isActive()) {
        QAccessibleEvent told(this, QAccessible::Alert);
        QAccessible::updateAccessibility(&told);
    }
}

void CEmptyState::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const ThemeColours& colours = CTheme::Colours();
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.3);
    large.setWeight(QFont::DemiBold);
    const int lineHeight = QFontMetrics(large).lineSpacing();
    const int width = std::min(this->width() - 8 * kGrid, kTextWidth);
    int y = std::max(4 * kGrid, this->height() * 2 / 5 - kIconSide);
    painter.setOpacity(0.7);
    painter.drawPixmap((this->width() - kIconSide) / 2, y,
                       IconPixmap(drawing, kIconSide, colours.dimText, devicePixelRatioF()));
    painter.setOpacity(1);
    y += kIconSide + 4 * kGrid;
    const QRect headingBox((this->width() - width) / 2, y, width, lineHeight);
    painter.setFont(large);
    painter.setPen(colours.text);
    painter.drawText(headingBox, Qt::AlignHCenter | Qt::TextSingleLine, title);
    painter.setFont(font());
    painter.setPen(colours.dimText);
    painter.drawText(QRect(headingBox.left(), headingBox.bottom() + 2 * kGrid, width, 20 * kGrid),
                     Qt::AlignHCenter | Qt::TextWordWrap, detail);
}

}  // namespace ui
