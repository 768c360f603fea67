// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Huffman tables of a baseline JPEG, made for reading DC terms and leaping over AC terms.
#pragma once

#include "suite/image/entropy_bytes.h"

#include <array>
#include <cstdint>
#include <cstdio>  // jpeglib.h needs FILE and does not say so
#include <jpeglib.h>
#include <optional>

namespace suite
{

class CHuffmanTable
{
public:
    // False when the table's codes do not fit their lengths.
    bool Build(const JHUFF_TBL& table);
    // Takes the next symbol; -1 when no code matches. The window must hold 16 bits.
    int Symbol(BitWindow& window) const
    {
        const unsigned entry = first[window.Peek(kPeek)];
        if (entry == 0)
            return LongSymbol(window);
        window.Drop(static_cast<int>(entry & kLengthMask));
        return static_cast<int>(entry >> kLengthBits);
    }

    static constexpr int kPeek = 13;
    static constexpr unsigned kLengthBits = 5;
    static constexpr unsigned kLengthMask = 31;

protected:
    // By the next 13 bits: symbol << 5 | length of its code; 0 when the code is longer.
    std::array<std::uint16_t, 1 << kPeek> first;

private:
    int LongSymbol(BitWindow& window) const;

    std::array<std::uint8_t, 256> values;
    std::array<int, 17> codeEnd;     // one past the last code of a length
    std::array<int, 17> valueStart;  // what to add to a code for its place in `values`
};

// A table of AC codes with a second one that tells, for 13 bits, how far all symbols lead whose codes lie
// within them. The values behind the codes are passed over unseen.
class CAcTable : public CHuffmanTable
{
public:
    bool Build(const JHUFF_TBL& table);
    // Passes over a block's AC terms; false when a code is unknown or the block overfull.
    bool SkipBlock(BitWindow& window) const;

private:
    bool SkipSymbol(BitWindow& window, unsigned& place) const;

    std::array<std::uint16_t, 1 << kPeek> leaps;  // terms passed << 5 | bits passed
};

}  // namespace suite
