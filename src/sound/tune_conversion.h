// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// ConvertTune: a MIDI file as a SMAF file for the handset, through both converters and in memory.
//
// The note converter comes first. Where it is missing or fails, the SMAF converter gets the source as it is.
#pragma once

#include "platform/smaf_conversion.h"

#include <cstdint>
#include <string>
#include <vector>

namespace sound
{

// The handset takes no longer ones.
constexpr std::uint64_t kLongestRingTone = 65536;

struct Tune {
    int result = platform::kSmafNotConverted;  // 0, or what the SMAF converter's front end said
    std::string error;                         // in English; empty for 0
    std::string smaf;                          // the file's bytes; empty but for 0
    std::vector<std::string> leftOut;          // what the tune lost, in English
    bool hasNotes = false;                     // the note converter had its part
};

// Any name of the source will do. Takes as long as the file wants; to be called on any one thread.
Tune ConvertTune(const std::string& source, unsigned chip = platform::kSmafAnyChip);

}  // namespace sound
