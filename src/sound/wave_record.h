// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// WaveRecord: a short recorded sound as 4-bit ADPCM, as a SMAF ring tone carries it.
//
// EncodeWave makes one of a WAV file of 4000 or 8000 Hz, 16 bits and one channel; anything else is refused.
#pragma once

#include "sound/wav_file.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sound
{

inline constexpr std::uint8_t kAdpcmFormat = 4;

struct WaveRecord {
    std::uint16_t number = 0;
    std::array<char, 16> name{};  // ends with a zero only when it is shorter
    std::uint8_t b = 0;
    std::uint8_t a = 0;
    std::uint8_t format = kAdpcmFormat;
    std::uint8_t reserved = 0;
    std::uint16_t sampleRate = 0;  // Hz
    std::uint32_t length = 0;      // of the data, in bytes
    std::vector<std::uint8_t> data;
};

struct WaveRequest {
    std::uint8_t a = 0;
    std::uint8_t b = 0;
    std::string name;     // cut to 16 bytes, never within a character
    bool halved = false;  // of 8000 Hz, every second sample is left out
};

// Two numbers as one: from b = 92 on, a step of 49 in `a` no longer sets numbers apart. Handsets know it so.
std::uint16_t WaveNumber(std::uint8_t a, std::uint8_t b);

// Whether a recording of that form suits the handset's sound chip.
bool SuitsHandset(const WavFormat& format);

// The record of that file; nothing when it cannot be read or does not suit, with the reason in `error`.
std::optional<WaveRecord> EncodeWave(const std::string& path, const WaveRequest& request, std::string& error);

// The name without the zeros behind it.
std::string_view WaveName(const WaveRecord& record);

}  // namespace sound
