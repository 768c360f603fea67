// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/image/huffman_table.h"

#include <algorithm>

namespace suite
{
namespace
{

constexpr unsigned kZeroRun = 0xF0;  // sixteen zeros
constexpr int kMostDcBits = 15;
// Stands for the terms passed where not even one symbol is known: more than a block has.
constexpr unsigned kNoTerms = 128;

constexpr unsigned ValueBitsOf(unsigned symbol)
{
    return symbol & 15;
}

// The value that `bits`, `length` of them, stand for: the lower half of their range is negative.
constexpr int ValueOf(unsigned bits, int length)
{
    const int value = static_cast<int>(bits);
    return length > 0 && value >> (length - 1) == 0 ? value - (1 << length) + 1 : value;
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

CHuffmanTable::Step CHuffmanTable::Symbol(BitWindow window) const
{
    const unsigned entry = first[window.Peek(kPeek)];
    if (entry != 0) {
        window.Drop(static_cast<int>(entry & kLengthMask));
        return {window, static_cast<int>(entry >> kLengthBits)};
    }
    for (int length = kPeek + 1; length <= 16; ++length) {
        const int code = static_cast<int>(window.Peek(length));
        // Codes of a length follow on one another, and all that are smaller begin a shorter code.
        if (code < codeEnd[length]) {
            window.Drop(length);
            return {window, values[static_cast<unsigned>(code + valueStart[length]) & 255]};
        }
    }
    return {window, -1};
}

bool CDcTable::Build(const JHUFF_TBL& table)
{
    if (!CHuffmanTable::Build(table))
        return false;
    for (unsigned start = 0; start < differences.size(); ++start) {
        const int codeLength = static_cast<int>(first[start] & kLengthMask);
        const int length = first[start] >> kLengthBits;
        const int unused = kPeek - codeLength - length;
        const bool isWithin = codeLength > 0 && unused >= 0;
        const int value = isWithin ? ValueOf(start >> unused & ((1U << length) - 1), length) : 0;
        differences[start] = static_cast<std::int16_t>(isWithin ? value * 16 + codeLength + length : 0);
    }
    return true;
}

CHuffmanTable::Step CDcTable::ReadLongDifference(BitWindow window) const
{
    Step step = Symbol(window);
    const int length = step.result;
    if (length < 0 || length > kMostDcBits)
        return {window, kUnknown};
    if (length == 0)
        return step;
    step.result = ValueOf(step.window.Peek(length), length);
    step.window.Drop(length);
    return step;
}

// The zeros before a value and the value, or sixteen zeros, or what is left of the block.
unsigned CAcTable::TermsOf(unsigned symbol)
{
    return ValueBitsOf(symbol) == 0 && symbol != kZeroRun ? kEndOfBlock : (symbol >> 4) + 1;
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
            terms += TermsOf(symbol);
        }
        leaps[start] = static_cast<std::uint16_t>((bits == 0 ? kNoTerms : terms) << kLeapBits | bits);
    }
    return true;
}

CHuffmanTable::Step CAcTable::SkipSymbol(BitWindow window) const
{
    window.Fill();
    Step step = Symbol(window);
    if (step.result < 0)
        return step;
    const unsigned symbol = static_cast<unsigned>(step.result);
    step.window.Drop(static_cast<int>(ValueBitsOf(symbol)));
    step.result = static_cast<int>(TermsOf(symbol));
    return step;
}

}  // namespace suite
