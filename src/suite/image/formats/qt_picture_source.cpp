// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/image/formats/qt_picture_source.h"

#include "suite/image/area_scaler.h"
#include "suite/image/bitmap_tools.h"
#include "suite/image/formats/tiff_items.h"

#include <QSize>
#include <algorithm>
#include <unistd.h>

namespace suite
{
namespace
{

constexpr int kMostMegabytes = 512;
// How many rows are converted for the scaler at a time.
constexpr int kStripHeight = 16;

const char* FormatName(PictureKind kind)
{
    switch (kind) {
    case PictureKind::bmp:
        return "bmp";
    case PictureKind::dib:
        return "dib";
    case PictureKind::tiff:
        return "tiff";
    case PictureKind::gif:
        return "gif";
    default:
        return "webp";
    }
}

// The EXIF orientation that says the same as Qt's transformation.
int Orientation(QImageIOHandler::Transformations transformation)
{
    switch (static_cast<int>(transformation)) {
    case QImageIOHandler::TransformationMirror:
        return 2;
    case QImageIOHandler::TransformationRotate180:
        return 3;
    case QImageIOHandler::TransformationFlip:
        return 4;
    case QImageIOHandler::TransformationFlipAndRotate90:
        return 5;
    case QImageIOHandler::TransformationRotate90:
        return 6;
    case QImageIOHandler::TransformationMirrorAndRotate90:
        return 7;
    case QImageIOHandler::TransformationRotate270:
        return 8;
    default:
        return 1;
    }
}

std::vector<std::uint8_t> Scaled(const QImage& image, platform::Extent target)
{
    CAreaScaler scaler({image.width(), image.height()}, target, 4);
    for (int top = 0; top < image.height(); top += kStripHeight) {
        const int height = std::min(kStripHeight, image.height() - top);
        const QImage strip =
            image.copy(0, top, image.width(), height).convertToFormat(QImage::Format_ARGB32_Premultiplied);
        std::vector<std::uint8_t> row(static_cast<std::size_t>(image.width()) * 4);
        for (int y = 0; y < strip.height(); ++y) {
            const QRgb* const pixels = reinterpret_cast<const QRgb*>(strip.constScanLine(y));
            for (int x = 0; x < strip.width(); ++x) {
                std::uint8_t* const out = row.data() + static_cast<std::size_t>(x) * 4;
                out[0] = static_cast<std::uint8_t>(qBlue(pixels[x]));
                out[1] = static_cast<std::uint8_t>(qGreen(pixels[x]));
                out[2] = static_cast<std::uint8_t>(qRed(pixels[x]));
                out[3] = static_cast<std::uint8_t>(qAlpha(pixels[x]));
            }
            scaler.AddRow(row.data());
        }
    }
    return scaler.Pixels();
}

// What could be decoded before the file broke off is kept: the rest stays transparent, not whatever the
// memory held before.
QImage Read(QImageReader& reader, platform::Extent stored)
{
    QImage image;
    if (reader.imageFormat() != QImage::Format_Invalid) {
        image = QImage(stored.width, stored.height, reader.imageFormat());
        image.fill(Qt::transparent);
    }
    const uchar* const before = image.constBits();
    if (reader.read(&image) || image.constBits() == before)
        return image;
    return {};
}

}  // namespace

std::unique_ptr<platform::CImageSource> CQtPictureSource::Open(CInputFile file, PictureKind kind)
{
    QImageReader::setAllocationLimit(kMostMegabytes);
    std::unique_ptr<CQtPictureSource> source(new CQtPictureSource(std::move(file), kind));
    if (!source->Open())
        return nullptr;
    return source;
}

bool CQtPictureSource::Prepare(QFile& file, QImageReader& reader) const
{
    lseek(input.Descriptor(), 0, SEEK_SET);
    if (!file.open(input.Descriptor(), QIODevice::ReadOnly))
        return false;
    reader.setAutoDetectImageFormat(false);
    reader.setFormat(FormatName(kind));
    reader.setDevice(&file);
    return true;
}

bool CQtPictureSource::Open()
{
    QFile file;
    QImageReader reader;
    if (!Prepare(file, reader))
        return false;
    QSize read = reader.size();
    if (!read.isValid() && reader.canRead())
        read = reader.read().size();
    stored = {read.width(), read.height()};
    orientation = Orientation(reader.transformation());
    size = Turned(stored, orientation);
    return stored.width >= 1 && stored.height >= 1;
}

platform::BitmapHandle CQtPictureSource::Render(int width, int height)
{
    const platform::Extent target = Turned({width, height}, orientation);
    QFile file;
    QImageReader reader;
    if (!IsBitmapSize({width, height}) || !IsBitmapSize(stored) || !Prepare(file, reader))
        return nullptr;
    platform::Extent decoded = stored;
    if (kind == PictureKind::webp && target.width <= stored.width && target.height <= stored.height) {
        reader.setScaledSize(QSize(target.width, target.height));
        decoded = target;
    }
    const QImage image = Read(reader, decoded);
    if (image.isNull() || !IsBitmapSize({image.width(), image.height()}))
        return nullptr;
    return std::make_shared<platform::Bitmap>(
        Upright(BitmapFromPremultiplied(target, Scaled(image, target)), orientation));
}

std::optional<platform::PropertyItem> CQtPictureSource::GetPropertyItem(std::uint16_t tag)
{
    return kind == PictureKind::tiff ? ReadTiffItem(input, tag) : std::nullopt;
}

}  // namespace suite
