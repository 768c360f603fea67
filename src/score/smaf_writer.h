// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// WriteSmaf: a SMAF file from its content.
//
// Written are Mobile uncompressed score tracks and audio tracks, with the waves they carry. What the format
// cannot hold is refused rather than changed: times out of order or beyond kSmafMaximumTime, gates of 0 or
// over the maximum, values over 7 bits, controls that the format does not know, waves of another form than
// the track's, Handy Phone Standard scores. Texts may hold any bytes: those that are not UTF-8 are taken for
// Latin-1, and control characters are left out.
#pragma once

#include "score/smaf_file.h"

#include <optional>

namespace score
{

// Whether a Mobile track may hold this control (0, 1, 6, 7, 10, 11, 32, 64, 100, 101, 120, 121, 126, 127).
bool IsSmafControl(std::uint8_t control);

// The bytes of the file; nothing when it cannot be written, with the reason in `error`.
std::optional<std::vector<std::uint8_t>> WriteSmaf(const SmafFile& file, std::string& error);

}  // namespace score
