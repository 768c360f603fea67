// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What was read of a MIDI file and what was left out, as lines of English for logs and the command line.
#pragma once

#include "score/arrangement.h"

namespace score
{

// A clause such as "is not a MIDI file"; empty for none.
const char* MidiErrorText(MidiError error);

// What was left out, a line each without a line break; nothing when all is as in the source.
std::vector<std::string> LossLines(const ArrangementReport& report);

// "120 notes on 3 channels, at most 12 at once, 1:05"
std::string SummaryLine(const ArrangementReport& report);

}  // namespace score
