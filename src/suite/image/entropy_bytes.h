// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CEntropyBytes and BitWindow: the entropy-coded data of a JPEG scan as a stream of bits.
//
// CEntropyBytes reads the file in blocks and takes the stuffed zeros out; it stops at every marker. BitWindow
// is the 64 bits at hand, copied into a local of the loop that uses it so that it stays in registers.
#pragma once

#include "suite/image/input_file.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace suite
{

struct BitWindow {
    std::uint64_t bits = 0;  // the next bit is the highest
    int count = 0;           // how many of them are certain
    const std::uint8_t* next = nullptr;

    // Afterwards 56 bits at least are there. Reads eight bytes at `next`.
    void Fill()
    {
        std::uint64_t word = 0;
        std::memcpy(&word, next, sizeof word);
        if constexpr (std::endian::native == std::endian::little)
            word = __builtin_bswap64(word);
        bits |= word >> count;
        next += (63 - count) >> 3;
        count |= 56;
    }
    unsigned Peek(int length) const { return static_cast<unsigned>(bits >> (64 - length)); }
    void Drop(int length)
    {
        bits <<= length;
        count -= length;
    }
};

class CEntropyBytes
{
public:
    // How far a window may read on before it must ask again; behind the data's end these are zeros.
    static constexpr std::size_t kSlack = 2048;

    // `begin` is where the scan's data starts in the file.
    CEntropyBytes(const CInputFile& read, std::uint64_t begin) : file(read), offset(begin) {}

    BitWindow Start();
    // Whether `window` has come so near the end of the bytes at hand that Refill must be called.
    bool RunsLow(const BitWindow& window) const { return !atMarker && end - window.next < kLow; }
    void Refill(BitWindow& window);
    // Whether the window has taken bits from behind the data's end.
    bool IsOverrun(const BitWindow& window) const { return (window.next - end) * 8 > window.count; }
    // Steps over the restart marker RST0 + `number`; false when anything else comes, or data before it.
    bool PassRestart(BitWindow& window, int number);

private:
    void Append();
    void TakeBlock(std::size_t length);

    static constexpr std::ptrdiff_t kLow = kSlack;
    static constexpr std::size_t kBlock = 65536;

    const CInputFile& file;
    std::uint64_t offset;   // of the next block in the file
    bool atMarker = false;  // the data stops here; `marker` tells which it is, -1 the end of the file
    int marker = -1;
    std::array<std::uint8_t, kBlock> raw;
    std::array<std::uint8_t, kBlock + 2 * kSlack> bytes;
    std::uint8_t* end = bytes.data();
};

}  // namespace suite
