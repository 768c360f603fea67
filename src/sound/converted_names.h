// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What a MIDI file is called after its conversion for the sound chip.
#pragma once

#include <string>

namespace sound
{

struct ConvertedNames {
    std::string midi;
    std::string log;
};

// For a file written beside its source: BASE_Nc.MID, or the first of BASE_Nc1.MID, BASE_Nc2.MID and so on
// that the folder does not have in any case of its letters. BASE is the source's name up to "_Nc", or else to
// its last dot. The log has the same number, or where that is taken too, the next one free.
ConvertedNames FindConvertedNames(const std::string& folder, const std::string& sourceName);

// The log that goes with a file of a chosen name: its path with ".LOG" as extension, taken or not.
std::string LogPathFor(const std::string& output);

}  // namespace sound
