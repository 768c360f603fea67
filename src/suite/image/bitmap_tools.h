// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Bitmaps from pixel bytes: packing, transparency, EXIF orientation.
#pragma once

#include "platform/image.h"

#include <cstdint>
#include <span>

namespace suite
{

// A picture that is turned by `orientation` (EXIF, 1 to 8; others count as 1) lies on its side.
constexpr bool IsSideways(int orientation)
{
    return orientation >= 5 && orientation <= 8;
}

constexpr platform::Extent Turned(platform::Extent size, int orientation)
{
    return IsSideways(orientation) ? platform::Extent{size.height, size.width} : size;
}

// Whether a bitmap of this size may be made: sides from 1 to 65535, and half a gigabyte at most.
bool IsBitmapSize(platform::Extent size);

// Takes bytes in the order blue, green, red, alpha with premultiplied alpha.
platform::Bitmap BitmapFromPremultiplied(platform::Extent size, std::span<const std::uint8_t> bytes);
// Takes bytes in the order blue, green, red and one that is ignored.
platform::Bitmap BitmapFromOpaque(platform::Extent size, std::span<const std::uint8_t> bytes);

// Turns a picture as stored into the upright one.
platform::Bitmap Upright(platform::Bitmap stored, int orientation);

}  // namespace suite
