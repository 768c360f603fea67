// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CSmafChunkWalk: opens the chunks of a SMAF file one after the other and keeps a list of them.
#pragma once

#include "score/smaf_cursor.h"
#include "score/smaf_reader.h"

namespace score
{

struct SmafOpenChunk {
    std::string tag;          // without the number of those that have one
    std::uint8_t number = 0;  // the tag's last byte
    CSmafCursor body;
};

class CSmafChunkWalk
{
public:
    explicit CSmafChunkWalk(std::vector<SmafChunk>& list) : chunks(list) {}

    // The chunk that begins at `from`, which then stands behind it. A chunk longer than what it lies in
    // fails.
    SmafOpenChunk Open(CSmafCursor& from, int depth);

private:
    std::vector<SmafChunk>& chunks;
};

}  // namespace score
