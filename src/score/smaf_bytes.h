// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CSmafBytes: the bytes of a SMAF file while they are put together: big-endian numbers, the two kinds of
// numbers of variable length, and chunks whose length is filled in when they end.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

namespace score
{

class CSmafBytes
{
public:
    void Byte(unsigned value) { bytes.push_back(static_cast<std::uint8_t>(value)); }
    void Word(unsigned value);
    void Long(std::uint32_t value);
    void Text(std::string_view text) { bytes.insert(bytes.end(), text.begin(), text.end()); }
    void Block(std::span<const std::uint8_t> block) { bytes.insert(bytes.end(), block.begin(), block.end()); }

    // Seven bits a byte, as in MIDI files; below 2^28.
    void MobileNumber(std::uint32_t value);
    // One byte below 128, else two; at most 16511.
    void HandyPhoneNumber(std::uint32_t value);

    // A chunk begins; where it does, for EndChunk.
    std::size_t BeginChunk(std::string_view tag);
    // A tag of three letters and a number.
    std::size_t BeginChunk(std::string_view letters, std::uint8_t number);
    // Fills in the length; `more` bytes that belong to it follow.
    void EndChunk(std::size_t chunk, std::uint32_t more = 0);

    std::size_t Size() const { return bytes.size(); }
    std::vector<std::uint8_t>& Bytes() { return bytes; }

private:
    std::vector<std::uint8_t> bytes;
};

}  // namespace score
