// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/exif_bytes.h"

#include <cstring>

namespace photo
{

namespace
{

enum Format : unsigned {
    unsignedByte = 1,
    unsignedShort = 3,
    unsignedLong = 4,
    unsignedRational = 5,
    signedByte = 6,
    signedShort = 8,
    signedLong = 9,
    signedRational = 10,
    singleFloat = 11,
    doubleFloat = 12,
};

}  // namespace

template <typename Float> double CExifBytes::Native(std::size_t offset) const
{
    std::uint8_t stored[sizeof(Float)];
    for (std::size_t i = 0; i < sizeof stored; ++i) {
        stored[i] = At(offset + i);
    }
    Float value;
    std::memcpy(&value, stored, sizeof value);
    return static_cast<double>(value);
}

double CExifBytes::Number(std::size_t offset, unsigned format) const
{
    switch (format) {
    case unsignedByte:
        return At(offset);
    case signedByte:
        return static_cast<std::int8_t>(At(offset));
    case unsignedShort:
        return Get16(offset);
    case signedShort:
        return static_cast<std::int16_t>(Get16(offset));
    case unsignedLong:
        return Get32(offset);
    case signedLong:
        return GetSigned32(offset);
    case unsignedRational:  // read signed as well
    case signedRational: {
        const std::int32_t denominator = GetSigned32(offset + 4);
        return denominator == 0 ? 0 : static_cast<double>(GetSigned32(offset)) / denominator;
    }
    case singleFloat:
        return Native<float>(offset);
    case doubleFloat:
        return Native<double>(offset);
    default:
        return 0;
    }
}

}  // namespace photo
