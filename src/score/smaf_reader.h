// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// ReadSmaf: what a SMAF file holds, taken apart event for event.
//
// It is strict: every size, the nesting of chunks, the checksum, the framing of every event and what stands
// behind an end must be right. Chunks that are not known are stepped over. Handy Phone Standard and Mobile
// uncompressed score tracks and audio tracks are read; compressed ones are refused. Memory and time are in
// proportion to the file.
#pragma once

#include "score/smaf_file.h"

#include <optional>
#include <span>

namespace score
{

struct SmafChunk {
    std::string tag;  // a number in its place is written out, as in "MTR5"
    std::size_t offset = 0;
    std::uint32_t size = 0;  // of the body
    int depth = 0;           // 0 for the file's own
};

struct SmafReading {
    SmafFile file;
    std::vector<SmafChunk> chunks;  // in the order of the file
};

// Nothing when something is wrong; `error` says what, and at which byte.
std::optional<SmafReading> ReadSmaf(std::span<const std::uint8_t> bytes, std::string& error);

}  // namespace score
