// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// MakeScoreTrack: a SMAF score track from an arrangement, with the sounds of a voice bank.
//
// A channel's bank and program stand before its first event, and its volume (General MIDI's 100 where the
// source tells none) before its first note. Channels without notes are left out. The track ends with the last
// gate.
#pragma once

#include "score/arrangement.h"
#include "score/smaf_file.h"
#include "suite/smf2smaf/voice_bank.h"

namespace suite
{

// `chip` is the track's number, that of the MA-3 or the MA-5.
score::SmafScoreTrack MakeScoreTrack(const score::Arrangement& arrangement, const CVoiceBank& bank,
                                     std::uint8_t chip);

}  // namespace suite
