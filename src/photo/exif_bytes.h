// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CExifBytes: an EXIF block's bytes, and the numbers in them in the block's byte order.
//
// Any offset may be asked for: bytes past the end read as 0. The bytes must outlive the object.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <span>

namespace photo
{

enum class ByteOrder { intel, motorola };

// The size of a value's unit by its TIFF format code, 0 to 12. Code 0 stands for a value without bytes.
inline std::size_t FormatSize(unsigned format)
{
    constexpr std::uint8_t kSizes[] = {0, 1, 1, 2, 4, 8, 1, 1, 2, 4, 8, 4, 8};
    return format < std::size(kSizes) ? kSizes[format] : 0;
}

class CExifBytes
{
public:
    CExifBytes() = default;
    CExifBytes(std::span<std::uint8_t> viewed, ByteOrder byteOrder) : bytes(viewed), order(byteOrder) {}

    std::size_t Size() const { return bytes.size(); }
    std::uint8_t At(std::size_t offset) const { return offset < bytes.size() ? bytes[offset] : 0; }
    void Clear(std::size_t offset) { bytes[offset] = 0; }
    const std::uint8_t* Address(std::size_t offset) const { return bytes.data() + offset; }
    unsigned Get16(std::size_t offset) const
    {
        const unsigned first = At(offset);
        const unsigned second = At(offset + 1);
        return order == ByteOrder::motorola ? first << 8 | second : second << 8 | first;
    }
    std::uint32_t Get32(std::size_t offset) const
    {
        const std::uint32_t first = Get16(offset);
        const std::uint32_t second = Get16(offset + 2);
        return order == ByteOrder::motorola ? first << 16 | second : second << 16 | first;
    }
    std::int32_t GetSigned32(std::size_t offset) const { return static_cast<std::int32_t>(Get32(offset)); }
    // The value at `offset` by its format code; 0 for texts, codes without a number and division by 0.
    // Floating point numbers are taken in the machine's own byte order.
    double Number(std::size_t offset, unsigned format) const;

private:
    template <typename Float> double Native(std::size_t offset) const;

    std::span<std::uint8_t> bytes;
    ByteOrder order = ByteOrder::intel;
};

}  // namespace photo
