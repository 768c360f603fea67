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

// Brings predictor and step from one sample to the next.
void Advance(AdpcmState& state, unsigned magnitude, bool isNegative)
{
    const std::int32_t step = state.step;
    const std::int32_t change = ((magnitude & 4) != 0 ? step : 0) + ((magnitude & 2) != 0 ? step / 2 : 0) +
                                ((magnitude & 1) != 0 ? step / 4 : 0) + step / 8;
    state.predictor = std::clamp(state.predictor + (isNegative ? -change : change), -32768, 32767);
    state.step = std::clamp(step * kMultipliers[magnitude] >> 8, kLeastStep, kGreatestStep);
}

unsigned Encode(AdpcmState& state, std::int32_t sample)
{
    const std::int32_t difference = sample - state.predictor;
    const bool isNegative = difference < 0;
    std::int32_t rest = isNegative ? -difference : difference;
    // The count of quarter steps in the difference, at most 7, without a division.
    const std::int32_t quarter = state.step / 4;
    unsigned magnitude = 0;
    for (unsigned bit = 4; bit != 0; bit /= 2) {
        const auto part = static_cast<std::int32_t>(bit) * quarter;
        const bool fits = rest >= part;
        magnitude |= fits ? bit : 0;
        rest -= fits ? part : 0;
    }
    Advance(state, magnitude, isNegative);
    return (isNegative ? 8U : 0U) | magnitude;
}

}  // namespace

void CAdpcmEncoder::Encode(std::span<const std::int16_t> samples, std::vector<std::uint8_t>& encoded)
{
    std::size_t i = 0;
    if (halfByte && !samples.empty()) {
        const unsigned nibble = sound::Encode(state, samples[i++]);
        encoded.back() = static_cast<std::uint8_t>(encoded.back() | nibble << 4);
        halfByte = false;
    }
    const std::size_t begin = encoded.size();
    encoded.resize(begin + (samples.size() - i + 1) / 2);
    for (std::size_t at = begin; i < samples.size(); ++at, i += 2) {
        const unsigned low = sound::Encode(state, samples[i]);
        halfByte = i + 1 == samples.size();
        const unsigned high = halfByte ? 0 : sound::Encode(state, samples[i + 1]);
        encoded[at] = static_cast<std::uint8_t>(low | high << 4);
    }
}

std::vector<std::int16_t> DecodeAdpcm(std::span<const std::uint8_t> encoded)
{
    std::vector<std::int16_t> samples;
    samples.reserve(encoded.size() * 2);
    AdpcmState state;
    for (const std::uint8_t byte : encoded) {
        for (const int nibble : {byte & 15, byte >> 4}) {
            Advance(state, static_cast<unsigned>(nibble & 7), (nibble & 8) != 0);
            samples.push_back(static_cast<std::int16_t>(state.predictor));
        }
    }
    return samples;
}

}  // namespace sound
