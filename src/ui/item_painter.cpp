// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/item_painter.h"

#include "app/tone_facts.h"
#include "browser/file_names.h"
#include "browser/thumbnail_maker.h"
#include "ui/display_text.h"
#include "ui/icons.h"
#include "ui/style.h"
#include "ui/theme.h"

#include <QTextLayout>

#include <cmath>

namespace ui
{

namespace
{

constexpr int kPadding = 2 * kGrid;
constexpr int kNameLines = 2;
constexpr int kPictureRadius = 3;
constexpr qreal kFadedOpacity = 0.4;

// The name broken over at most two lines, its middle left out when it is longer.
QStringList NameLines(const QString& name, const QFontMetrics& metrics, const QFont& font, int width)
{
    if (metrics.horizontalAdvance(name) <= width)
        return {name};
    QString text = name;
    for (int room = kNameLines * width; room > width; room -= width / 8) {
        QTextLayout layout(text, font);
        QTextOption wrap;
        wrap.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        layout.setTextOption(wrap);
        QStringList lines;
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(width);
            lines.append(text.mid(line.textStart(), line.textLength()).trimmed());
        }
        layout.endLayout();
        if (lines.size() <= kNameLines)
            return lines;
        text = metrics.elidedText(name, Qt::ElideMiddle, room);
    }
    return {metrics.elidedText(name, Qt::ElideMiddle, width)};
}

}  // namespace

QImage ImageOf(const platform::BitmapHandle& bitmap)
{
    const auto pixels = static_cast<std::size_t>(bitmap->width) * static_cast<std::size_t>(bitmap->height);
    if (bitmap->width <= 0 || bitmap->height <= 0 || bitmap->pixels.size() < pixels)
        return {};
    auto* owner = new platform::BitmapHandle(bitmap);
    return QImage(
        reinterpret_cast<const uchar*>(bitmap->pixels.data()), bitmap->width, bitmap->height,
        QImage::Format_ARGB32, [](void* handle) { delete static_cast<platform::BitmapHandle*>(handle); },
        owner);
}

CItemPainter::CItemPainter()
{
    // Kilobytes: a few screens full of pictures.
    cache.setMaxCost(12 * 1024);
}

QSize CItemPainter::CellSize(int side, const QFontMetrics& metrics)
{
    return {side + 2 * kPadding, kPadding + side + kGrid + kNameLines * metrics.lineSpacing() + kGrid};
}

QString CItemPainter::IconName(const browser::MediaItem& item, IconUse use)
{
    if (item.isFolder)
        return QStringLiteral("folder");
    if (item.thumbnailFailed)
        return QStringLiteral("broken-picture");
    if (item.types & browser::kTypeVideo)
        return QStringLiteral("video");
    if (item.types & (browser::kTypePicture | browser::kTypeHandsetImage))
        return use == IconUse::kind ? QStringLiteral("photo") : QStringLiteral("picture-placeholder");
    if ((item.types & browser::kTypeSound) || app::ToneKindOf(item.name) != app::ToneKind::none)
        return QStringLiteral("sound");
    if (browser::LowerCase(browser::Extension(item.name)) == "asr")
        return QStringLiteral("search");
    return QStringLiteral("file");
}

void CItemPainter::Draw(QPainter& painter, const browser::MediaItem& item, const CellLook& look)
{
    const ThemeColours& colours = CTheme::Colours();
    if (look.selected || look.hovered)
        FillRounded(painter, look.box, look.selected ? colours.selection : colours.hover, kCornerRadius);
    if (look.current) {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(colours.accent, 1));
        painter.drawRoundedRect(QRectF(look.box).adjusted(0.5, 0.5, -0.5, -0.5), kCornerRadius,
                                kCornerRadius);
        painter.restore();
    }
    const QRect picture = PictureBox(look.box);
    painter.setOpacity(look.faded ? kFadedOpacity : 1);
    if (item.thumbnail)
        DrawPicture(painter, item.thumbnail, picture);
    else
        DrawIcon(painter, item, picture);
    DrawName(painter, Shown(item.name), NameBox(look.box));
    painter.setOpacity(1);
}

QRect CItemPainter::PictureBox(const QRect& cell)
{
    const int side = cell.width() - 2 * kPadding;
    return {cell.left() + kPadding, cell.top() + kPadding, side, side};
}

QRect CItemPainter::NameBox(const QRect& cell)
{
    const int top = PictureBox(cell).bottom() + 1 + kGrid;
    return {cell.left() + kGrid, top, cell.width() - 2 * kGrid, cell.bottom() + 1 - top};
}

void CItemPainter::DrawPicture(QPainter& painter, const platform::BitmapHandle& bitmap, const QRect& box)
{
    const qreal ratio = painter.device()->devicePixelRatioF();
    QSizeF size(bitmap->width, bitmap->height);
    // Small pictures keep their size; the maker's limit is not one, so larger ones than that fill the cell.
    const bool small = bitmap->width < browser::kThumbnailSide && bitmap->height < browser::kThumbnailSide;
    if (!small || size.width() > box.width() || size.height() > box.height())
        size.scale(box.size(), Qt::KeepAspectRatio);
    const QSize pixels = (size * ratio).toSize().expandedTo({1, 1});
    const QSizeF drawn = QSizeF(pixels) / ratio;
    const qreal left = box.left() + std::floor((box.width() - drawn.width()) / 2);
    const qreal top = box.top() + std::floor((box.height() - drawn.height()) / 2);
    const QRectF target(QPointF(left, top), drawn);

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, CTheme::IsDark() ? 70 : 26));
    painter.drawRoundedRect(target.adjusted(-1, 0, 1, 2), kPictureRadius, kPictureRadius);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.drawPixmap(target, ScaledPicture(bitmap, pixels), QRectF(QPointF(0, 0), QSizeF(pixels)));
    painter.restore();
}

const QPixmap& CItemPainter::ScaledPicture(const platform::BitmapHandle& bitmap, const QSize& pixels)
{
    Scaled* known = cache.object(bitmap.get());
    if (!known || known->size != pixels) {
        QImage image = ImageOf(bitmap);
        if (!image.isNull() && image.size() != pixels)
            image = image.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        known = new Scaled{bitmap, pixels, QPixmap::fromImage(image)};
        cache.insert(bitmap.get(), known, std::max(1, pixels.width() * pixels.height() * 4 / 1024));
    }
    return known->picture;
}

void CItemPainter::DrawIcon(QPainter& painter, const browser::MediaItem& item, const QRect& box)
{
    QColor colour = CTheme::Colours().dimText;
    if (item.isFolder)
        colour = CTheme::Colours().accent;
    const int side = box.width() * (item.isFolder ? 5 : 3) / 8;
    const QRect place(box.left() + (box.width() - side) / 2, box.top() + (box.height() - side) / 2, side,
                      side);
    painter.drawPixmap(place, IconPixmap(IconName(item, IconUse::thumbnail), side, colour,
                                         painter.device()->devicePixelRatioF()));
}

void CItemPainter::DrawName(QPainter& painter, const QString& name, const QRect& box)
{
    const QFontMetrics metrics = painter.fontMetrics();
    painter.setPen(CTheme::Colours().text);
    // A name reads as its own letters do, whatever the layout.
    painter.setLayoutDirection(Qt::LayoutDirectionAuto);
    QRect line(box.left(), box.top(), box.width(), metrics.lineSpacing());
    for (const QString& text : NameLines(name, metrics, painter.font(), box.width())) {
        painter.drawText(line, Qt::AlignHCenter | Qt::AlignTop | Qt::TextSingleLine, text);
        line.translate(0, metrics.lineSpacing());
    }
}

}  // namespace ui
