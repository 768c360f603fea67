// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/image/formats/heif_source.h"

#ifdef KELVO_HAVE_LIBHEIF

#include "suite/image/area_scaler.h"
#include "suite/image/bitmap_tools.h"

#include <libheif/heif.h>

namespace suite
{
namespace
{

constexpr std::uint64_t kMostBytes = 256U << 20;
constexpr int kLongestSide = 16384;
// The EXIF item begins with the distance from its own end to the TIFF structure.
constexpr std::size_t kExifPrefix = 4;

bool IsFine(const heif_error& error)
{
    return error.code == heif_error_Ok;
}

struct ReleaseImage {
    void operator()(heif_image* image) const { heif_image_release(image); }
};

std::vector<std::uint8_t> Scaled(const heif_image* image, platform::Extent size, platform::Extent target)
{
    int stride = 0;
    const std::uint8_t* plane = heif_image_get_plane_readonly(image, heif_channel_interleaved, &stride);
    if (plane == nullptr)
        return {};
    CAreaScaler scaler(size, target, 4);
    std::vector<std::uint8_t> row(static_cast<std::size_t>(size.width) * 4);
    for (int y = 0; y < size.height; ++y, plane += stride) {
        for (std::size_t at = 0; at < row.size(); at += 4) {
            const unsigned alpha = plane[at + 3];
            row[at] = static_cast<std::uint8_t>(plane[at + 2] * alpha / 255);
            row[at + 1] = static_cast<std::uint8_t>(plane[at + 1] * alpha / 255);
            row[at + 2] = static_cast<std::uint8_t>(plane[at] * alpha / 255);
            row[at + 3] = static_cast<std::uint8_t>(alpha);
        }
        scaler.AddRow(row.data());
    }
    return scaler.Pixels();
}

}  // namespace

std::unique_ptr<platform::CImageSource> CHeifSource::Open(CInputFile file)
{
    std::optional<std::vector<std::uint8_t>> whole = file.ReadWhole(kMostBytes);
    if (!whole)
        return nullptr;
    std::unique_ptr<CHeifSource> source(new CHeifSource);
    source->bytes = std::move(*whole);
    return source->Read() ? std::move(source) : nullptr;
}

CHeifSource::~CHeifSource()
{
    heif_image_handle_release(handle);
    heif_context_free(context);
}

bool CHeifSource::Read()
{
    context = heif_context_alloc();
    heif_context_set_maximum_image_size_limit(context, kLongestSide);
    return IsFine(heif_context_read_from_memory_without_copy(context, bytes.data(), bytes.size(), nullptr)) &&
           IsFine(heif_context_get_primary_image_handle(context, &handle)) && Width() >= 1 && Height() >= 1;
}

int CHeifSource::Width() const
{
    return heif_image_handle_get_width(handle);
}

int CHeifSource::Height() const
{
    return heif_image_handle_get_height(handle);
}

platform::BitmapHandle CHeifSource::Render(int width, int height)
{
    const platform::Extent target = {width, height};
    if (!IsBitmapSize(target) || !IsBitmapSize({Width(), Height()}))
        return nullptr;
    heif_image* decoded = nullptr;
    const heif_error error =
        heif_decode_image(handle, &decoded, heif_colorspace_RGB, heif_chroma_interleaved_RGBA, nullptr);
    const std::unique_ptr<heif_image, ReleaseImage> image(decoded);
    if (!IsFine(error) || !image)
        return nullptr;
    const platform::Extent size = {heif_image_get_width(decoded, heif_channel_interleaved),
                                   heif_image_get_height(decoded, heif_channel_interleaved)};
    if (!IsBitmapSize(size))
        return nullptr;
    const std::vector<std::uint8_t> pixels = Scaled(decoded, size, target);
    if (pixels.empty())
        return nullptr;
    return std::make_shared<platform::Bitmap>(BitmapFromPremultiplied(target, pixels));
}

std::optional<platform::PropertyItem> CHeifSource::GetPropertyItem(std::uint16_t tag)
{
    heif_item_id item = 0;
    if (heif_image_handle_get_list_of_metadata_block_IDs(handle, "Exif", &item, 1) != 1)
        return std::nullopt;
    const std::size_t length = heif_image_handle_get_metadata_size(handle, item);
    constexpr std::size_t kMostExif = 1U << 20;
    if (length <= kExifPrefix || length > kMostExif)
        return std::nullopt;
    std::vector<std::uint8_t> block(length);
    if (!IsFine(heif_image_handle_get_metadata(handle, item, block.data())))
        return std::nullopt;
    return CExifBlock(std::span(block).subspan(kExifPrefix)).Item(tag);
}

}  // namespace suite

#endif
