// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CExifBlock: the EXIF values of one picture.
//
// Made from the block as it stands in the picture: "Exif", two zero bytes, then a TIFF structure. A damaged
// block gives the values that could be read, an empty one none.
#pragma once

#include "platform/image.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <span>

struct _ExifData;

namespace suite
{

class CExifBlock
{
public:
    explicit CExifBlock(std::span<const std::uint8_t> block);
    // 1 to 8; 1 when the block does not say.
    int Orientation() const;
    // Looked for in the main, the EXIF and the GPS directory, in this order.
    std::optional<platform::PropertyItem> Item(std::uint16_t tag) const;

private:
    struct Release {
        void operator()(_ExifData* released) const;
    };
    std::unique_ptr<_ExifData, Release> data;
};

}  // namespace suite
