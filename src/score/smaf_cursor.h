// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CSmafCursor: a place within the bytes of a SMAF file that never leaves its piece of them.
//
// The first thing that goes wrong is kept, with its place, in the text that all cursors of one file share.
// From then on every number is 0 and every cursor is at its end, so that loops end by themselves.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace score
{

class CSmafCursor
{
public:
    CSmafCursor(std::span<const std::uint8_t> piece, std::size_t offset, std::string& error);

    bool IsGood() const { return failure->empty(); }
    bool AtEnd() const { return !IsGood() || bytes.empty(); }
    std::size_t Offset() const { return offset; }  // in the file
    std::size_t Remaining() const { return bytes.size(); }

    std::uint8_t Byte();
    std::uint8_t Peek() const { return AtEnd() ? std::uint8_t{0} : bytes[0]; }
    std::uint8_t DataByte();  // below 80h
    std::uint16_t Word();
    std::uint32_t Long();
    std::span<const std::uint8_t> Block(std::size_t length);
    // See CSmafBytes.
    std::uint32_t MobileNumber();
    std::uint32_t HandyPhoneNumber();
    // The next `length` bytes as a piece of their own.
    CSmafCursor Piece(std::size_t length);

    // Notes what is wrong at `at`, unless something was before; false.
    bool Fail(std::size_t at, const std::string& why);
    bool Fail(const std::string& why) { return Fail(offset, why); }

private:
    std::span<const std::uint8_t> bytes;  // what remains
    std::size_t offset = 0;
    std::string* failure = nullptr;
};

}  // namespace score
