// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/image/jpeg_source.h"

#include "suite/image/bitmap_tools.h"
#include "suite/image/jpeg_decoder.h"

#include <utility>

namespace suite
{

std::unique_ptr<platform::CImageSource> CJpegSource::Open(CInputFile file)
{
    std::optional<JpegHeader> header = ReadJpegHeader(file);
    if (!header)
        return nullptr;
    return std::make_unique<CJpegSource>(std::move(file), std::move(*header));
}

CJpegSource::CJpegSource(CInputFile opened, JpegHeader header)
    : file(std::move(opened)), stored(header.size), exif(header.exif), orientation(exif.Orientation())
{
}

platform::Extent CJpegSource::UprightSize() const
{
    return Turned(stored, orientation);
}

platform::BitmapHandle CJpegSource::Render(int width, int height)
{
    if (!IsBitmapSize({width, height}))
        return nullptr;
    const platform::Extent target = Turned({width, height}, orientation);
    std::optional<std::vector<std::uint8_t>> pixels = DecodeJpeg(file, stored, target);
    if (!pixels)
        return nullptr;
    platform::Bitmap bitmap = BitmapFromOpaque(target, *pixels);
    pixels.reset();
    return std::make_shared<platform::Bitmap>(Upright(std::move(bitmap), orientation));
}

std::optional<platform::PropertyItem> CJpegSource::GetPropertyItem(std::uint16_t tag)
{
    return exif.Item(tag);
}

}  // namespace suite
