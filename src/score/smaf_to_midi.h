// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// SmafAsMidi: the score tracks of a SMAF file as a standard MIDI file, to be heard on a computer.
//
// Format 0, a tick is a millisecond. The chip's banks become General MIDI: channels of drums play on channel
// 10, all others on channels of their own as long as there are any. In Handy Phone Standard tracks, where the
// program chooses the drum, it becomes the key. Exclusives and recorded sounds are left out.
#pragma once

#include "score/smaf_file.h"

namespace score
{

std::vector<std::uint8_t> SmafAsMidi(const SmafFile& file);

}  // namespace score
