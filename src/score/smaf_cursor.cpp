// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "score/smaf_cursor.h"

#include <fmt/format.h>

namespace score
{

CSmafCursor::CSmafCursor(std::span<const std::uint8_t> piece, std::size_t where, std::string& error)
    : bytes(piece), offset(where), failure(&error)
{
}

bool CSmafCursor::Fail(std::size_t at, const std::string& why)
{
    if (failure->empty()) {
        *failure = fmt::format("byte {}: {}", at, why);
    }
    return false;
}

std::span<const std::uint8_t> CSmafCursor::Block(std::size_t length)
{
    if (!IsGood() || length > bytes.size()) {
        Fail("more bytes are announced than there are");
        return {};
    }
    const auto block = bytes.first(length);
    bytes = bytes.subspan(length);
    offset += length;
    return block;
}

CSmafCursor CSmafCursor::Piece(std::size_t length)
{
    const std::size_t begin = offset;
    return CSmafCursor(Block(length), begin, *failure);
}

std::uint8_t CSmafCursor::Byte()
{
    const auto block = Block(1);
    return block.empty() ? std::uint8_t{0} : block[0];
}

std::uint8_t CSmafCursor::DataByte()
{
    if ((Peek() & 0x80) != 0) {
        Fail("a value of an event is over 7 bits");
    }
    return Byte();
}

std::uint16_t CSmafCursor::Word()
{
    const unsigned high = Byte();
    return static_cast<std::uint16_t>(high << 8 | Byte());
}

std::uint32_t CSmafCursor::Long()
{
    const std::uint32_t high = Word();
    return high << 16 | Word();
}

std::uint32_t CSmafCursor::MobileNumber()
{
    constexpr int kMostBytes = 4;
    const std::size_t begin = offset;
    std::uint32_t value = 0;
    for (int i = 0; i < kMostBytes && IsGood(); ++i) {
        const std::uint8_t byte = Byte();
        value = value << 7 | (byte & 0x7F);
        if ((byte & 0x80) == 0) {
            return value;
        }
    }
    Fail(begin, "a number has more than four bytes");
    return 0;
}

std::uint32_t CSmafCursor::HandyPhoneNumber()
{
    const std::uint32_t first = Byte();
    return first < 0x80 ? first : ((first & 0x7F) + 1) * 128 + DataByte();
}

}  // namespace score
