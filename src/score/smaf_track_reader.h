// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The tracks of a SMAF file, from their chunks. What is wrong stands in the chunk's cursor.
#pragma once

#include "score/smaf_chunk_walk.h"

namespace score
{

SmafScoreTrack ReadSmafScore(SmafOpenChunk& chunk, CSmafChunkWalk& walk);
SmafAudioTrack ReadSmafAudio(SmafOpenChunk& chunk, CSmafChunkWalk& walk);

}  // namespace score
