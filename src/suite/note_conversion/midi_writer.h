// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// WriteMidi: a MIDI file of format 0 from an arrangement, with the division and the texts of its source.
//
// At one tick stand the notes' ends, then the changes, then the notes' starts; a note without any length ends
// behind them. Running status is used wherever it can be.
#pragma once

#include "score/arrangement.h"

#include <cstddef>
#include <optional>

namespace suite
{

// Nothing when the file would be longer than `most` bytes.
std::optional<std::vector<std::uint8_t>> WriteMidi(const score::MidiFile& source,
                                                   const score::Arrangement& arrangement, std::size_t most);

}  // namespace suite
