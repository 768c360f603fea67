// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/image/formats/tiff_items.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

namespace suite
{
namespace
{

constexpr std::uint16_t kExifDirectory = 0x8769;
constexpr std::size_t kEntryLength = 12;
constexpr std::size_t kMostEntries = 4096;
constexpr std::uint64_t kLongestValue = 65536;

// By TIFF type: the bytes of a component, and of the units in them that have a byte order.
constexpr std::array<std::uint8_t, 13> kTypeSizes = {0, 1, 1, 2, 4, 8, 1, 1, 2, 4, 8, 4, 8};
constexpr std::array<std::uint8_t, 13> kUnitSizes = {1, 1, 1, 2, 4, 4, 1, 1, 2, 4, 4, 4, 8};

class CTiffReader
{
public:
    explicit CTiffReader(const CInputFile& read) : file(read)
    {
        const std::vector<std::uint8_t> order = Bytes(0, 2);
        const bool isIntel = order == std::vector<std::uint8_t>{'I', 'I'};
        swaps = isIntel != (std::endian::native == std::endian::little);
    }

    std::uint64_t FirstDirectory() const { return Number<std::uint32_t>(Bytes(4, 4), 0); }

    std::optional<platform::PropertyItem> Find(std::uint64_t directory, std::uint16_t tag) const
    {
        const std::size_t count = Number<std::uint16_t>(Bytes(directory, 2), 0);
        const std::vector<std::uint8_t> entries =
            Bytes(directory + 2, std::min(count, kMostEntries) * kEntryLength);
        for (std::size_t at = 0; at + kEntryLength <= entries.size(); at += kEntryLength) {
            if (Number<std::uint16_t>(entries, at) == tag)
                return Item(entries, at, directory + 2 + at);
        }
        return std::nullopt;
    }

private:
    // The bytes at `offset`, fewer at the end of the file.
    std::vector<std::uint8_t> Bytes(std::uint64_t offset, std::size_t length) const
    {
        std::vector<std::uint8_t> bytes(length);
        bytes.resize(file.ReadAt(offset, bytes));
        return bytes;
    }

    // 0 where the bytes end before.
    template <typename Value> Value Number(const std::vector<std::uint8_t>& bytes, std::size_t at) const
    {
        std::array<std::uint8_t, sizeof(Value)> stored{};
        if (at + stored.size() > bytes.size())
            return 0;
        std::copy_n(bytes.begin() + at, stored.size(), stored.begin());
        if (swaps)
            std::ranges::reverse(stored);
        return std::bit_cast<Value>(stored);
    }

    std::optional<platform::PropertyItem> Item(const std::vector<std::uint8_t>& entries, std::size_t at,
                                               std::uint64_t place) const
    {
        platform::PropertyItem item{
            Number<std::uint16_t>(entries, at + 2), Number<std::uint32_t>(entries, at + 4), {}};
        if (item.type >= kTypeSizes.size())
            return std::nullopt;
        const std::uint64_t length = std::uint64_t{item.count} * kTypeSizes[item.type];
        if (length == 0 || length > kLongestValue)
            return std::nullopt;
        const std::uint64_t offset = length <= 4 ? place + 8 : Number<std::uint32_t>(entries, at + 8);
        item.value = Bytes(offset, static_cast<std::size_t>(length));
        if (item.value.size() != length)
            return std::nullopt;
        const std::size_t unit = kUnitSizes[item.type];
        for (std::size_t i = 0; swaps && i + unit <= item.value.size(); i += unit)
            std::reverse(item.value.begin() + i, item.value.begin() + i + unit);
        return item;
    }

    const CInputFile& file;
    bool swaps = false;
};

}  // namespace

std::optional<platform::PropertyItem> ReadTiffItem(const CInputFile& file, std::uint16_t tag)
{
    const CTiffReader reader(file);
    const std::uint64_t first = reader.FirstDirectory();
    if (auto item = reader.Find(first, tag))
        return item;
    const std::optional<platform::PropertyItem> link = reader.Find(first, kExifDirectory);
    std::uint32_t exif = 0;
    if (!link || link->value.size() != sizeof exif)
        return std::nullopt;
    std::memcpy(&exif, link->value.data(), sizeof exif);
    return reader.Find(exif, tag);
}

}  // namespace suite
