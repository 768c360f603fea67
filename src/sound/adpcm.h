// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// 4-bit adaptive delta modulation as the handset's sound chip plays it: a sign and a 3-bit magnitude a
// sample, two samples a byte with the earlier one in the low nibble. docs/formats/smaf.md has the arithmetic.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace sound
{

// What both directions carry from one sample to the next.
struct AdpcmState {
    std::int32_t predictor = 0;
    std::int32_t step = 127;  // 127 to 24576
};

// Encodes a sound that is given in pieces.
class CAdpcmEncoder
{
public:
    // Appends the samples to `encoded`. An odd sample count leaves the last byte's high nibble 0, and the
    // next piece goes on there.
    void Encode(std::span<const std::int16_t> samples, std::vector<std::uint8_t>& encoded);

    const AdpcmState& State() const { return state; }

private:
    AdpcmState state;
    bool halfByte = false;
};

// The samples of that data, two a byte.
std::vector<std::int16_t> DecodeAdpcm(std::span<const std::uint8_t> encoded);

}  // namespace sound
