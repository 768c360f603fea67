// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/image/png/png_source.h"

#include "suite/image/area_scaler.h"
#include "suite/image/bitmap_tools.h"
#include "suite/image/picture_module.h"
#include "suite/image/png/png_input.h"

#include <utility>

namespace suite
{
namespace
{

constexpr int kChannels = 4;

// The bytes of the EXIF chunk in the form that a JPEG has them.
std::vector<std::uint8_t> ExifOf(CPngInput& input)
{
    png_uint_32 length = 0;
    png_bytep bytes = nullptr;
    const bool isThere = input.Guarded([&length, &bytes](png_structp reader, png_infop info) {
        png_get_eXIf_1(reader, info, &length, &bytes);
    });
    if (!isThere || bytes == nullptr)
        return {};
    std::vector<std::uint8_t> block = {'E', 'x', 'i', 'f', 0, 0};
    block.insert(block.end(), bytes, bytes + length);
    return block;
}

// Asks for four bytes a pixel: blue, green, red, alpha.
void StartPixels(png_structp reader, png_infop info)
{
    png_read_info(reader, info);
    png_set_expand(reader);
    png_set_scale_16(reader);
    png_set_gray_to_rgb(reader);
    png_set_bgr(reader);
    png_set_add_alpha(reader, 0xFF, PNG_FILLER_AFTER);
    png_set_interlace_handling(reader);
    png_read_update_info(reader, info);
}

void Premultiply(std::uint8_t* row, int width)
{
    for (int x = 0; x < width; ++x, row += kChannels) {
        const unsigned alpha = row[3];
        if (alpha == 255)
            continue;
        for (int c = 0; c < 3; ++c)
            row[c] = static_cast<std::uint8_t>((row[c] * alpha + 127) / 255);
    }
}

void ReadInOrder(CPngInput& input, CAreaScaler& scaler, platform::Extent size)
{
    std::vector<std::uint8_t> row(static_cast<std::size_t>(size.width) * kChannels);
    std::uint8_t* const bytes = row.data();
    input.Guarded([&scaler, bytes, size](png_structp reader, png_infop) {
        for (int y = 0; y < size.height; ++y) {
            png_read_row(reader, bytes, nullptr);
            Premultiply(bytes, size.width);
            scaler.AddRow(bytes);
        }
    });
}

void ReadInterlaced(CPngInput& input, CAreaScaler& scaler, platform::Extent size)
{
    const std::size_t rowLength = static_cast<std::size_t>(size.width) * kChannels;
    std::vector<std::uint8_t> whole(rowLength * size.height);
    std::uint8_t* const bytes = whole.data();
    input.Guarded([bytes, rowLength, size](png_structp reader, png_infop) {
        for (int pass = 0; pass < PNG_INTERLACE_ADAM7_PASSES; ++pass) {
            // What a pass brings fills the place of what is still to come.
            for (int y = 0; y < size.height; ++y)
                png_read_row(reader, nullptr, bytes + rowLength * y);
        }
    });
    for (int y = 0; y < size.height; ++y) {
        Premultiply(bytes + rowLength * y, size.width);
        scaler.AddRow(bytes + rowLength * y);
    }
}

}  // namespace

std::unique_ptr<platform::CImageSource> CPngSource::Open(CInputFile file)
{
    platform::Extent size;
    std::vector<std::uint8_t> exifBytes;
    {
        CPngInput input(file);
        if (!input.Guarded([](png_structp reader, png_infop info) { png_read_info(reader, info); }))
            return nullptr;
        size = {static_cast<int>(png_get_image_width(input.reader, input.info)),
                static_cast<int>(png_get_image_height(input.reader, input.info))};
        exifBytes = ExifOf(input);
    }
    return std::make_unique<CPngSource>(std::move(file), size, exifBytes);
}

CPngSource::CPngSource(CInputFile opened, platform::Extent size, const std::vector<std::uint8_t>& exifBytes)
    : file(std::move(opened)), stored(size), exif(exifBytes), orientation(exif.Orientation())
{
}

platform::Extent CPngSource::UprightSize() const
{
    return Turned(stored, orientation);
}

platform::BitmapHandle CPngSource::Render(int width, int height)
{
    const platform::Extent target = Turned({width, height}, orientation);
    CPngInput input(file);
    if (!IsBitmapSize(target) || !input.Guarded(StartPixels))
        return nullptr;
    const bool isInterlaced = png_get_interlace_type(input.reader, input.info) != PNG_INTERLACE_NONE;
    if (png_get_rowbytes(input.reader, input.info) != static_cast<std::size_t>(stored.width) * kChannels ||
        (isInterlaced && !IsBitmapSize(stored)))
        return nullptr;
    CAreaScaler scaler(stored, target, kChannels);
    if (isInterlaced)
        ReadInterlaced(input, scaler, stored);
    else
        ReadInOrder(input, scaler, stored);
    if (scaler.RowsTaken() == 0)
        return nullptr;
    return std::make_shared<platform::Bitmap>(
        Upright(BitmapFromPremultiplied(target, scaler.Pixels()), orientation));
}

}  // namespace suite

KELVO_PICTURE_MODULE platform::CImageSource* KelvoOpenPicture(int descriptor, suite::PictureKind)
{
    return suite::CPngSource::Open(suite::CInputFile(descriptor)).release();
}
