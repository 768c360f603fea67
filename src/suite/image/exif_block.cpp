// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/image/exif_block.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <libexif/exif-data.h>

namespace suite
{
namespace
{

constexpr std::uint16_t kTagOrientation = 0x0112;

// Length of the unit whose bytes are in the file's order.
std::size_t UnitLength(ExifFormat format)
{
    switch (format) {
    case EXIF_FORMAT_SHORT:
    case EXIF_FORMAT_SSHORT:
        return 2;
    case EXIF_FORMAT_LONG:
    case EXIF_FORMAT_SLONG:
    case EXIF_FORMAT_RATIONAL:
    case EXIF_FORMAT_SRATIONAL:
    case EXIF_FORMAT_FLOAT:
        return 4;
    case EXIF_FORMAT_DOUBLE:
        return 8;
    default:
        return 1;
    }
}

void SwapUnits(std::vector<std::uint8_t>& bytes, std::size_t unit)
{
    for (std::size_t at = 0; at + unit <= bytes.size(); at += unit)
        std::reverse(bytes.begin() + at, bytes.begin() + at + unit);
}

}  // namespace

void CExifBlock::Release::operator()(_ExifData* released) const
{
    exif_data_unref(released);
}

CExifBlock::CExifBlock(std::span<const std::uint8_t> block)
{
    if (block.empty())
        return;
    data.reset(exif_data_new());
    if (!data)
        return;
    // By default the library drops unknown tags and corrects what it finds.
    exif_data_unset_option(data.get(), EXIF_DATA_OPTION_IGNORE_UNKNOWN_TAGS);
    exif_data_unset_option(data.get(), EXIF_DATA_OPTION_FOLLOW_SPECIFICATION);
    exif_data_load_data(data.get(), block.data(), static_cast<unsigned>(block.size()));
}

int CExifBlock::Orientation() const
{
    if (!data)
        return 1;
    const ExifEntry* const entry =
        exif_content_get_entry(data->ifd[EXIF_IFD_0], static_cast<ExifTag>(kTagOrientation));
    if (entry == nullptr || entry->format != EXIF_FORMAT_SHORT || entry->data == nullptr || entry->size < 2)
        return 1;
    const int value = exif_get_short(entry->data, exif_data_get_byte_order(data.get()));
    return value >= 1 && value <= 8 ? value : 1;
}

std::optional<platform::PropertyItem> CExifBlock::Item(std::uint16_t tag) const
{
    if (!data)
        return std::nullopt;
    for (const ExifIfd directory : {EXIF_IFD_0, EXIF_IFD_EXIF, EXIF_IFD_GPS}) {
        const ExifEntry* const entry =
            exif_content_get_entry(data->ifd[directory], static_cast<ExifTag>(tag));
        if (entry == nullptr || entry->data == nullptr)
            continue;
        platform::PropertyItem item{static_cast<std::uint16_t>(entry->format),
                                    static_cast<std::uint32_t>(entry->components),
                                    {entry->data, entry->data + entry->size}};
        constexpr bool kNativeIsIntel = std::endian::native == std::endian::little;
        if ((exif_data_get_byte_order(data.get()) == EXIF_BYTE_ORDER_INTEL) != kNativeIsIntel)
            SwapUnits(item.value, UnitLength(entry->format));
        return item;
    }
    return std::nullopt;
}

}  // namespace suite
