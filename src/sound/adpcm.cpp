// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/adpcm.h"

#include <algorithm>
#include <array>

namespace sound
{

namespace
{

constexpr std::int32_t kLeastStep = 127;
constexpr std::int32_t kGreatestStep = 24576;
constexpr std::array<std::int32_t, 8> kMultipliers = {230, 230, 230, 230, 307, 409, 512, 614};

// All of a value for a bit that is set, else 0.
inline std::int32_t If(unsigned bit, std::int32_t value)
{
    return -static_cast<std::int32_t>(bit & 1) & value;
}

// Brings predictor and step from one sample to the next; `sign` is 0, or -1 for less. What depends on the
// sound is computed rather than branched on, for a processor could not foresee it; what leaves the range is
// rare.
inline void Advance(AdpcmState& state, unsigned magnitude, std::int32_t sign)
{
    const std::int32_t step = state.step;
    const std::int32_t change =
        If(magnitude >> 2, step) + If(magnitude >> 1, step >> 1) + If(magnitude, step >> 2) + (step >> 3);
    state.predictor += (change ^ sign) - sign;
    if (state.predictor < -32768 || state.predictor > 32767) [[unlikely]] {
        state.predictor = std::clamp(state.predictor, -32768, 32767);
    }
    state.step = std::max(step * kMultipliers[magnitude] >> 8, kLeastStep);
    if (state.step > kGreatestStep) [[unlikely]] {
        state.step = kGreatestStep;
    }
}

inline unsigned Encode(AdpcmState& state, std::int32_t sample)
{
    const std::int32_t difference = sample - state.predictor;
    const std::int32_t sign = difference >> 31;
    const std::int32_t size = (difference ^ sign) - sign;
    // The count of quarter steps in it, at most 7: a division would take longer than the rest.
    const std::int32_t quarter = state.step >> 2;
    unsigned magnitude = 0;
    for (std::int32_t count = 1; count <= 7; ++count) {
        magnitude += size >= quarter * count ? 1 : 0;
    }
    Advance(state, magnitude, sign);
    return (static_cast<unsigned>(sign) & 8) | magnitude;
}

}  // namespace

void CAdpcmEncoder::Encode(std::span<const std::int16_t> samples, std::vector<std::uint8_t>& encoded)
{
    std::size_t nibbles = encoded.size() * 2 - (halfByte ? 1 : 0);
    encoded.resize((nibbles + samples.size() + 1) / 2);
    AdpcmState now = state;  // kept in registers
    for (const std::int16_t sample : samples) {
        std::uint8_t& byte = encoded[nibbles / 2];
        byte = static_cast<std::uint8_t>(byte | sound::Encode(now, sample) << (nibbles % 2 * 4));
        ++nibbles;
    }
    state = now;
    halfByte = nibbles % 2 != 0;
}

std::vector<std::int16_t> DecodeAdpcm(std::span<const std::uint8_t> encoded)
{
    std::vector<std::int16_t> samples;
    samples.reserve(encoded.size() * 2);
    AdpcmState state;
    for (const std::uint8_t byte : encoded) {
        for (const int nibble : {byte & 15, byte >> 4}) {
            Advance(state, static_cast<unsigned>(nibble & 7), (nibble & 8) != 0 ? -1 : 0);
            samples.push_back(static_cast<std::int16_t>(state.predictor));
        }
    }
    return samples;
}

}  // namespace sound
