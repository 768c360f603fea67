// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// PackageMember: one member of a package archive, and its record's form in the file.
//
// Byte layout: docs/formats/package.md.
#pragma once

#include "platform/types.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace archive
{

struct PackageMember {
    std::string name;
    std::string extraText;  // always empty in archives of our own
    std::string caption;
    std::string timeStampText;
    std::string secondText;
    std::uint64_t originalSize = 0;  // what the caller said of the source; says nothing of the data's length
    std::uint32_t storedSize = 0;    // bytes of the compressed data
    platform::FileTime creationTime = 0;
    platform::FileTime lastWriteTime = 0;
    platform::FileTime thirdTime = 0;
    bool deleted = false;
    std::uint64_t recordPosition = 0;  // in the file; not stored
    std::uint64_t dataPosition = 0;
};

inline constexpr std::string_view kPackageMagic = "*QRX";
inline constexpr std::size_t kCountOffset = 4;
inline constexpr std::size_t kTextLengthsOffset = 8;
inline constexpr std::size_t kHeaderSize = 16;  // without header texts

inline constexpr std::size_t kStoredSizeOffset = 18;
inline constexpr std::size_t kDeletedMarkOffset = 46;
inline constexpr std::size_t kRecordSize = 48;  // without the texts
inline constexpr std::size_t kLongestText = 65535;

inline std::uint64_t LoadNumber(const std::byte* from, std::size_t width)
{
    std::uint64_t value = 0;
    for (std::size_t i = width; i-- > 0;)
        value = value << 8 | std::to_integer<std::uint64_t>(from[i]);
    return value;
}

inline void StoreNumber(std::byte* to, std::uint64_t value, std::size_t width)
{
    for (std::size_t i = 0; i < width; ++i)
        to[i] = static_cast<std::byte>(value >> (8 * i) & 0xff);
}

// The header of an archive with `count` members.
std::string EncodeHeader(std::uint32_t count);
// How many bytes of texts follow the fixed part of a header or of a record.
std::size_t HeaderTextsSize(const std::byte* header);
std::size_t RecordTextsSize(const std::byte* record);
// The texts must not be longer than kLongestText.
std::string EncodeRecord(const PackageMember& member);
// `record` holds the fixed part and all texts; the positions stay 0.
PackageMember DecodeRecord(const std::byte* record);

}  // namespace archive
