// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Huffman tables of a baseline JPEG, made for reading DC terms and leaping over AC terms.
//
// Each looks at the next 13 bits at once. The hot paths stand here so that the loop around them keeps its
// BitWindow in registers; for the same reason the rare ones take and give it by value.
#pragma once

#include "suite/image/entropy_bytes.h"

#include <array>
#include <cstdint>
#include <cstdio>  // jpeglib.h needs FILE and does not say so
#include <jpeglib.h>

namespace suite
{

class CHuffmanTable
{
public:
    // False when the table's codes do not fit their lengths.
    bool Build(const JHUFF_TBL& table);

protected:
    static constexpr int kPeek = 13;
    static constexpr unsigned kLengthBits = 5;
    static constexpr unsigned kLengthMask = 31;

    struct Step {
        BitWindow window;
        int result;  // negative when no code matches
    };
    // Takes the next symbol.
    Step Symbol(BitWindow window) const;

    // By the next 13 bits: symbol << 5 | length of its code; 0 when the code is longer.
    std::array<std::uint16_t, 1 << kPeek> first;

private:
    std::array<std::uint8_t, 256> values;
    std::array<int, 17> codeEnd;     // one past the last code of a length
    std::array<int, 17> valueStart;  // what to add to a code for its place in `values`
};

class CDcTable : public CHuffmanTable
{
public:
    bool Build(const JHUFF_TBL& table);
    // Reads the difference to the DC term before; false when the code is unknown.
    bool ReadDifference(BitWindow& window, int& difference) const
    {
        window.Fill();
        const int entry = differences[window.Peek(kPeek)];
        if (entry == 0) {
            const Step step = ReadLongDifference(window);
            window = step.window;
            difference = step.result;
            return difference != kUnknown;
        }
        window.Drop(entry & 15);
        difference = entry >> 4;
        return true;
    }

private:
    static constexpr int kUnknown = -0x10000;
    Step ReadLongDifference(BitWindow window) const;

    std::array<std::int16_t, 1 << kPeek> differences;  // difference << 4 | bits taken; 0: more than 13 bits
};

class CAcTable : public CHuffmanTable
{
public:
    bool Build(const JHUFF_TBL& table);
    // Passes over a block's AC terms, their values unseen; false when a code is unknown or the block
    // overfull.
    bool SkipBlock(BitWindow& window) const
    {
        unsigned place = 0;
        for (;;) {
            window.Fill();
            // What was filled holds two leaps of at most 28 bits.
            for (int i = 0; i < 2; ++i) {
                const unsigned leap = leaps[window.Peek(kPeek)];
                const unsigned reached = place + (leap >> kLeapBits);
                if (reached < kLastPlace) {
                    window.Drop(static_cast<int>(leap & kLeapMask));
                    place = reached;
                    continue;
                }
                if (reached == kLastPlace || (reached >= kEndOfBlock && reached < kEndOfBlock + kLastPlace)) {
                    window.Drop(static_cast<int>(leap & kLeapMask));
                    return true;
                }
                const Step step = SkipSymbol(window);
                window = step.window;
                window.Fill();
                if (step.result < 0)
                    return false;
                place += static_cast<unsigned>(step.result);
                if (place >= kLastPlace)
                    return place == kLastPlace || place >= kEndOfBlock;
            }
        }
    }

private:
    static constexpr unsigned kLastPlace = 63;
    static constexpr unsigned kLeapBits = 6;
    static constexpr unsigned kLeapMask = 63;
    // Added to the terms passed when the block's end was among the symbols.
    static constexpr unsigned kEndOfBlock = 256;

    static unsigned TermsOf(unsigned symbol);
    // One symbol by itself: its code is long, or those behind it belong to the next block. Gives its terms.
    Step SkipSymbol(BitWindow window) const;

    // How far all symbols lead whose codes lie within the 13 bits: terms passed << 6 | bits passed.
    std::array<std::uint16_t, 1 << kPeek> leaps;
};

}  // namespace suite
