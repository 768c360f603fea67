// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The audio track of WriteSmaf, and what the two kinds of track have in common.
#pragma once

#include "score/smaf_bytes.h"
#include "score/smaf_file.h"

namespace score
{

// Why the events and the end do not make a sequence, or nothing.
std::string CheckSmafTimes(const std::vector<SmafEvent>& events, std::uint64_t end);

// Whether number and width are of those that the format has.
bool IsSmafWave(const SmafWave& wave);

// Why the track cannot be written, or nothing.
std::string CheckSmafAudio(const SmafAudioTrack& track);

// Appends a track that can be written.
void PutSmafAudio(CSmafBytes& out, const SmafAudioTrack& track);

}  // namespace score
