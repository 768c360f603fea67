// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/controls/button_ex.h"

#include "ui/style.h"
#include "ui/theme.h"

#include <QPainter>
#include <QStyleOptionButton>

namespace ui
{

namespace
{

constexpr int kGap = 6;
constexpr int kHighestImage = 256;

QSize ShownSize(const QPixmap& pixmap)
{
    return pixmap.deviceIndependentSize().toSize();
}

}  // namespace

CButtonEx::CButtonEx(QWidget* parent) : QPushButton(parent)
{
    setAttribute(Qt::WA_Hover);
}

CButtonEx::CButtonEx(const QString& text, QWidget* parent) : CButtonEx(parent)
{
    setText(text);
}

void CButtonEx::SetImage(const QString& image)
{
    imageName = image;
    updateGeometry();
    update();
}

void CButtonEx::SetPieces(const QString& left, const QString& center, const QString& right, int partWidth)
{
    pieces = {left, center, right};
    pieceWidth = partWidth;
    update();
}

void CButtonEx::SetFontGroup(const app::FontGroup& group)
{
    // Resolved against what the window gives it, so that only what the group names is fixed.
    setFont(SkinFont(group, QFont()));
    for (std::size_t state = 0; state < stateColours.size(); ++state)
        stateColours[state] =
            group.colours[state] ? std::optional(SkinColour(*group.colours[state])) : std::nullopt;
    updateGeometry();
    update();
}

app::ButtonState CButtonEx::State() const
{
    if (!isEnabled())
        return app::ButtonState::gray;
    if (isDown() || isChecked())
        return app::ButtonState::down;
    return underMouse() ? app::ButtonState::hover : app::ButtonState::normal;
}

QPixmap CButtonEx::StateImage() const
{
    if (imageName.isEmpty())
        return {};
    const StatePixmaps images = SkinStates(imageName, devicePixelRatioF());
    const QPixmap& image = images[static_cast<std::size_t>(State())];
    return image.isNull() ? images.front() : image;
}

QPixmap CButtonEx::Face() const
{
    QPixmap image = StateImage();
    if (image.isNull() && !icon().isNull()) {
        const QIcon::Mode mode = isEnabled() ? QIcon::Normal : QIcon::Disabled;
        image = icon().pixmap(iconSize(), devicePixelRatioF(), mode);
    }
    return image;
}

QColor CButtonEx::TextColour() const
{
    const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
    const auto& colour = stateColours[static_cast<std::size_t>(State())];
    if (!colour)
        return palette().color(group, QPalette::ButtonText);
    // Over pictures the skin knows what it does.
    const bool plain = pieces[1].isEmpty() && !FillsWithImage() && isEnabled();
    return plain ? Readable(*colour, palette().color(QPalette::Button)) : *colour;
}

QSize CButtonEx::sizeHint() const
{
    ensurePolished();
    const QSize image = imageName.isEmpty() && icon().isNull()
                            ? QSize(0, 0)
                            : ShownSize(Face()).boundedTo({kHighestImage, kHighestImage});
    const QSize words = fontMetrics().size(Qt::TextShowMnemonic, text());
    const bool both = !image.isEmpty() && !text().isEmpty() && !FillsWithImage();
    const int across = both ? image.width() + kGap + words.width() : std::max(image.width(), words.width());
    const QSize content(across, std::max(image.height(), words.height()));
    if (isFlat() || FillsWithImage())
        return content + QSize(4 * kGrid, 3 * kGrid);
    QStyleOptionButton option;
    initStyleOption(&option);
    return style()->sizeFromContents(QStyle::CT_PushButton, &option, content + QSize(3 * kGrid, 0), this);
}

void CButtonEx::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    DrawGround(painter);
    DrawContent(painter);
    if (hasFocus())
        DrawFocus(painter);
    else if (isDefault() && isEnabled() && !pieces[1].isEmpty())
        DrawRing(painter, 1, 0.5F);
}

bool CButtonEx::DrawPieces(QPainter& painter) const
{
    std::array<QPixmap, 3> parts;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const StatePixmaps images =
            pieces[i].isEmpty() ? StatePixmaps{} : SkinStates(pieces[i], devicePixelRatioF());
        const QPixmap& image = images[static_cast<std::size_t>(State())];
        parts[i] = image.isNull() ? images.front() : image;
        if (parts[i].isNull())
            return false;
    }
    const int end = std::min(pieceWidth > 0 ? pieceWidth : ShownSize(parts[0]).width(), width() / 2);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(QRect(0, 0, end, height()), parts[0]);
    painter.drawPixmap(QRect(end, 0, width() - 2 * end, height()), parts[1]);
    painter.drawPixmap(QRect(width() - end, 0, end, height()), parts[2]);
    return true;
}

void CButtonEx::DrawGround(QPainter& painter)
{
    if (!pieces[1].isEmpty() && DrawPieces(painter))
        return;
    if (!isFlat()) {
        QStyleOptionButton option;
        initStyleOption(&option);
        option.state.setFlag(QStyle::State_MouseOver, underMouse() && isEnabled());
        return style()->drawControl(QStyle::CE_PushButtonBevel, &option, &painter, this);
    }
    const app::ButtonState state = State();
    if (state == app::ButtonState::down || state == app::ButtonState::hover)
        FillRounded(painter, rect(),
                    state == app::ButtonState::down ? CTheme::Colours().selection : CTheme::Colours().hover,
                    kCornerRadius);
}

void CButtonEx::DrawContent(QPainter& painter) const
{
    const QPixmap face = FillsWithImage() ? QPixmap() : Face();
    const QSize image = ShownSize(face).boundedTo(size());
    const int gap = !image.isEmpty() && !text().isEmpty() ? kGap : 0;
    const int words = fontMetrics().size(Qt::TextShowMnemonic, text()).width();
    const int start = std::max(0, (width() - image.width() - gap - words) / 2);
    const auto placed = [this](const QRect& box) {
        return QStyle::visualRect(layoutDirection(), rect(), box);
    };
    if (!image.isEmpty())
        painter.drawPixmap(placed({{start, (height() - image.height()) / 2}, image}), face);
    painter.setPen(TextColour());
    const QRect box(start + image.width() + gap, 0, width() - start - image.width() - gap, height());
    const bool fits = words <= box.width();
    const QString shown =
        fits ? text() : fontMetrics().elidedText(text(), Qt::ElideRight, box.width(), Qt::TextShowMnemonic);
    const Qt::Alignment side = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft);
    painter.drawText(placed(box), int(side | Qt::AlignVCenter) | Qt::TextShowMnemonic | Qt::TextSingleLine,
                     shown);
}

void CButtonEx::DrawFocus(QPainter& painter)
{
    DrawRing(painter, 1.5, 1);
}

void CButtonEx::DrawRing(QPainter& painter, qreal width, float strength) const
{
    QColor colour = CTheme::Colours().accent;
    colour.setAlphaF(strength);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, width));
    painter.setBrush(Qt::NoBrush);
    const qreal inset = width > 1 ? 1 : 0.5;
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), kCornerRadius - inset,
                            kCornerRadius - inset);
}

void CRescaleButton::DrawGround(QPainter& painter)
{
    const QPixmap image = StateImage();
    if (image.isNull())
        return CButtonEx::DrawGround(painter);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(rect(), image);
}

}  // namespace ui
