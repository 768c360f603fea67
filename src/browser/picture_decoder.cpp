// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/picture_decoder.h"

#include "platform/file_system.h"

#include <algorithm>
#include <cmath>

namespace browser
{

namespace
{

// As the list's thumbnails are made.
constexpr int kMethod = 7;
constexpr std::uint32_t kFlags = 0x21808;

platform::Extent Times(platform::Extent size, double factor)
{
    const auto side = [factor](int length) {
        return std::max(1, static_cast<int>(std::lround(length * factor)));
    };
    return {side(size.width), side(size.height)};
}

bool IsOpaque(const platform::Bitmap& bitmap)
{
    std::uint32_t all = 0xFF000000U;
    for (const std::uint32_t pixel : bitmap.pixels)
        all &= pixel;
    return all >> 24 == 0xFF;
}

}  // namespace

platform::Extent DecodedSize(platform::Extent original, const PictureRequest& request)
{
    if (original.width <= 0 || original.height <= 0)
        return {};
    const platform::Extent box = request.box;
    const double factor = std::min({1.0, static_cast<double>(box.width) / original.width,
                                    static_cast<double>(box.height) / original.height});
    platform::Extent fitted = Times(original, factor);
    if (request.use == BoxUse::fill)
        fitted = {std::clamp(box.width, 1, original.width), std::clamp(box.height, 1, original.height)};
    const double pixels = static_cast<double>(fitted.width) * fitted.height;
    if (pixels <= kMostPixelsDecoded)
        return fitted;
    return Times(fitted, std::sqrt(kMostPixelsDecoded / pixels));
}

FileStamp StampOf(const std::string& path)
{
    const auto facts = platform::Os().files->FindFirstFile(path);
    return facts ? FileStamp{facts->size, facts->lastWriteTime} : FileStamp{};
}

DecodedPicture DecodePicture(const PictureRequest& request)
{
    DecodedPicture result;
    // Taken first: a file that changes while it is read is found to have changed.
    result.stamp = StampOf(request.path);
    const platform::CImage image(request.path);
    result.original = {image.Width(), image.Height()};
    const platform::Extent size = DecodedSize(result.original, request);
    if (size.width > 0)
        result.pixels = image.GetThumbnail(size.width, size.height, kMethod, kFlags);
    if (result.pixels)
        result.opaque = IsOpaque(*result.pixels);
    return result;
}

}  // namespace browser
