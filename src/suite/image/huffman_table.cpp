// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/image/huffman_table.h"

#include <algorithm>

namespace suite
{
namespace
{

constexpr unsigned kLastPlace = 63;
// Added to the terms passed when the block's end was among the symbols.
constexpr unsigned kEndOfBlock = 256;
// Stands for the terms passed where not even one symbol is known: more than a block has.
constexpr unsigned kUnknown = 128;
constexpr unsigned kZeroRun = 0xF0;

// How many terms an AC symbol stands for: the zeros before a value and the value, or sixteen zeros.
constexpr unsigned TermsOf(unsigned symbol)
{
    return (symbol >> 4) + 1;
}

constexpr unsigned ValueBitsOf(unsigned symbol)
{
    return symbol & 15;
}

constexpr bool IsEndOfBlock(unsigned symbol)
{
    return ValueBitsOf(symbol) == 0 && symbol != kZeroRun;
}

}  // namespace

bool CHuffmanTable::Build(const JHUFF_TBL& table)
{
    first.fill(0);
    int code = 0;
    int place = 0;
    for (int length = 1; length <= 16; ++length) {
        const int count = table.bits[length];
        if (code + count > 1 << length || place + count > 256)
            return false;
        valueStart[length] = place - code;
        codeEnd[length] = code + count;
        for (int i = 0; i < count; ++i, ++place, ++code) {
            values[place] = table.huffval[place];
            if (length > kPeek)
                continue;
            const int unknown = kPeek - length;
            std::fill_n(first.begin() + (code << unknown), 1 << unknown,
                        static_cast<std::uint16_t>(values[place] << kLengthBits | length));
        }
        code <<= 1;
    }
    return true;
}

int CHuffmanTable::LongSymbol(BitWindow& window) const
{
    for (int length = kPeek + 1; length <= 16; ++length) {
        const int code = static_cast<int>(window.Peek(length));
        // Codes of a length follow on one another, and all that are smaller begin a shorter code.
        if (code < codeEnd[length]) {
            window.Drop(length);
            return values[static_cast<unsigned>(code + valueStart[length]) & 255];
        }
    }
    return -1;
}

bool CAcTable::Build(const JHUFF_TBL& table)
{
    if (!CHuffmanTable::Build(table))
        return false;
    for (unsigned start = 0; start < leaps.size(); ++start) {
        unsigned terms = 0;
        unsigned bits = 0;
        while (bits < kPeek && terms <= kLastPlace) {
            const unsigned entry = first[start << bits & ((1U << kPeek) - 1)];
            const unsigned symbol = entry >> kLengthBits;
            const unsigned length = entry & kLengthMask;
            if (length == 0 || bits + length > kPeek)
                break;
            bits += length + ValueBitsOf(symbol);
            terms += IsEndOfBlock(symbol) ? kEndOfBlock : TermsOf(symbol);
        }
        if (bits == 0)
            terms = kUnknown;
        leaps[start] = static_cast<std::uint16_t>(terms << kLengthBits | bits);
    }
    return true;
}

bool CAcTable::SkipBlock(BitWindow& window) const
{
    unsigned place = 0;
    for (;;) {
        window.Fill();
        // What was filled holds two leaps of at most 28 bits.
        for (int i = 0; i < 2; ++i) {
            const unsigned leap = leaps[window.Peek(kPeek)];
            const unsigned reached = place + (leap >> kLengthBits);
            if (reached < kLastPlace) {
                window.Drop(static_cast<int>(leap & kLengthMask));
                place = reached;
                continue;
            }
            if (reached == kLastPlace || (reached >= kEndOfBlock && reached < kEndOfBlock + kLastPlace)) {
                window.Drop(static_cast<int>(leap & kLengthMask));
                return true;
            }
            if (!SkipSymbol(window, place))
                return false;
            if (place == kLastPlace)
                return true;
            window.Fill();
        }
    }
}

// One symbol by itself: its code is long, or those behind it belong to the next block.
bool CAcTable::SkipSymbol(BitWindow& window, unsigned& place) const
{
    window.Fill();
    const int symbol = Symbol(window);
    if (symbol < 0)
        return false;
    if (IsEndOfBlock(static_cast<unsigned>(symbol))) {
        place = kLastPlace;
        return true;
    }
    window.Drop(static_cast<int>(ValueBitsOf(static_cast<unsigned>(symbol))));
    place += TermsOf(static_cast<unsigned>(symbol));
    return place <= kLastPlace;
}

}  // namespace suite
