// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// MakePreview: a ring tone in a form that programs of a computer play.
//
// A score becomes a standard MIDI file. A tone of nothing but recordings becomes a WAV file in which each of
// them sounds when the tone starts it, of half an hour at most. Where a tone has both, the recordings stay
// out.
#pragma once

#include "score/smaf_file.h"

#include <optional>

namespace sound
{

struct Preview {
    std::vector<std::uint8_t> bytes;
    bool isMidi = false;  // else a WAV file
};

// Nothing when there is nothing to be heard, or a recording is not mono ADPCM.
std::optional<Preview> MakePreview(const score::SmafFile& file);

// Whether the tone's notes do nothing but start recordings.
bool IsOnlyRecordings(const score::SmafFile& file);

}  // namespace sound
