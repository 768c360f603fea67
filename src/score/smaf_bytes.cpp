// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "score/smaf_bytes.h"

namespace score
{

void CSmafBytes::Word(unsigned value)
{
    Byte(value >> 8);
    Byte(value);
}

void CSmafBytes::Long(std::uint32_t value)
{
    Word(value >> 16);
    Word(value & 0xFFFF);
}

void CSmafBytes::MobileNumber(std::uint32_t value)
{
    for (int shift = 21; shift > 0; shift -= 7) {
        if (value >> shift != 0) {
            Byte((value >> shift & 0x7F) | 0x80);
        }
    }
    Byte(value & 0x7F);
}

void CSmafBytes::HandyPhoneNumber(std::uint32_t value)
{
    if (value >= 128) {
        Byte((value / 128 - 1) | 0x80);
    }
    Byte(value % 128);
}

std::size_t CSmafBytes::BeginChunk(std::string_view tag)
{
    Text(tag);
    Long(0);
    return bytes.size();
}

std::size_t CSmafBytes::BeginChunk(std::string_view letters, std::uint8_t number)
{
    Text(letters);
    Byte(number);
    Long(0);
    return bytes.size();
}

void CSmafBytes::EndChunk(std::size_t chunk, std::uint32_t more)
{
    auto length = static_cast<std::uint32_t>(bytes.size() - chunk) + more;
    for (std::size_t i = 1; i <= 4; ++i, length >>= 8) {
        bytes[chunk - i] = static_cast<std::uint8_t>(length);
    }
}

}  // namespace score
