// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Recorded sounds in ring tones: into a SMAF file, and out of one.
#pragma once

#include "score/smaf_file.h"
#include "sound/wave_record.h"

#include <optional>
#include <span>

namespace sound
{

enum class WavePlace {
    audioTrack,
    streamPcm,  // within a score track for MA-3, started by a note of its own
};

// A ring tone that plays the sound once. Nothing when the sound is longer than such a track can play.
std::optional<score::SmafFile> WaveAsSmaf(const WaveRecord& record, const std::string& title,
                                          WavePlace place);

// All waves of the file, those of audio tracks first.
std::vector<const score::SmafWave*> WavesOf(const score::SmafFile& file);

bool IsMonoAdpcm(const score::SmafWave& wave);

// Samples of one channel as a WAV file; at most 2^30 of them.
std::vector<std::uint8_t> PcmAsWav(std::span<const std::int16_t> samples, std::uint32_t rate);

// A mono ADPCM wave as a WAV file; nothing for any other.
std::optional<std::vector<std::uint8_t>> WaveAsWav(const score::SmafWave& wave);

}  // namespace sound
