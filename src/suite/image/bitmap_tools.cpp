// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/image/bitmap_tools.h"

#include <algorithm>
#include <cstddef>

namespace suite
{
namespace
{

constexpr std::int64_t kMostPixels = std::int64_t{128} << 20;
constexpr int kLongestSide = 65535;

std::uint32_t Unpremultiplied(std::uint32_t colour, std::uint32_t alpha)
{
    return std::min<std::uint32_t>(255, (colour * 255 + alpha / 2) / alpha);
}

}  // namespace

bool IsBitmapSize(platform::Extent size)
{
    return size.width >= 1 && size.height >= 1 && size.width <= kLongestSide && size.height <= kLongestSide &&
           static_cast<std::int64_t>(size.width) * size.height <= kMostPixels;
}

platform::Bitmap BitmapFromPremultiplied(platform::Extent size, std::span<const std::uint8_t> bytes)
{
    platform::Bitmap bitmap = BitmapFromOpaque(size, bytes);
    for (std::size_t i = 0; i < bitmap.pixels.size(); ++i) {
        const std::uint8_t* const pixel = bytes.data() + i * 4;
        const std::uint32_t alpha = pixel[3];
        if (alpha == 0)
            bitmap.pixels[i] = 0;
        else if (alpha != 255)
            bitmap.pixels[i] = alpha << 24 | Unpremultiplied(pixel[2], alpha) << 16 |
                               Unpremultiplied(pixel[1], alpha) << 8 | Unpremultiplied(pixel[0], alpha);
    }
    return bitmap;
}

platform::Bitmap BitmapFromOpaque(platform::Extent size, std::span<const std::uint8_t> bytes)
{
    platform::Bitmap bitmap{size.width, size.height, {}};
    bitmap.pixels.resize(static_cast<std::size_t>(size.width) * size.height);
    const std::uint8_t* in = bytes.data();
    for (std::uint32_t& pixel : bitmap.pixels) {
        pixel = 0xFF000000U | static_cast<std::uint32_t>(in[2]) << 16 |
                static_cast<std::uint32_t>(in[1]) << 8 | in[0];
        in += 4;
    }
    return bitmap;
}

platform::Bitmap Upright(platform::Bitmap stored, int orientation)
{
    if (orientation < 2 || orientation > 8)
        return stored;
    const platform::Extent size = Turned({stored.width, stored.height}, orientation);
    platform::Bitmap upright{size.width, size.height, {}};
    upright.pixels.resize(stored.pixels.size());
    // Going right or down in the upright picture goes along x or y of the stored one, forwards or backwards.
    const bool sideways = IsSideways(orientation);
    const bool xBackwards = orientation == 2 || orientation == 3 || orientation == 7 || orientation == 8;
    const bool yBackwards = orientation == 3 || orientation == 4 || orientation == 6 || orientation == 7;
    std::uint32_t* out = upright.pixels.data();
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
            const int alongX = sideways ? y : x;
            const int alongY = sideways ? x : y;
            const int storedX = xBackwards ? stored.width - 1 - alongX : alongX;
            const int storedY = yBackwards ? stored.height - 1 - alongY : alongY;
            *out++ = stored.pixels[static_cast<std::size_t>(storedY) * stored.width + storedX];
        }
    }
    return upright;
}

}  // namespace suite
