// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "score/smaf_chunk_walk.h"

#include "score/smaf_text.h"

namespace score
{

namespace
{

// Ring tones have some dozens.
constexpr std::size_t kMostChunks = 4096;

bool IsNumbered(std::string_view letters)
{
    return letters == "MTR" || letters == "ATR" || letters == "Mwa" || letters == "Awa" || letters == "Dch";
}

}  // namespace

SmafOpenChunk CSmafChunkWalk::Open(CSmafCursor& from, int depth)
{
    const std::size_t offset = from.Offset();
    const auto block = from.Block(4);
    const std::uint8_t number = block.empty() ? std::uint8_t{0} : block[3];
    std::string tag(block.begin(), block.end());
    const bool isNumbered = IsNumbered(tag.substr(0, 3));
    if (isNumbered) {
        tag.resize(3);
    }
    const std::uint32_t size = from.Long();
    if (size > from.Remaining()) {
        from.Fail(offset + 4, "a chunk is longer than what it lies in");
    }
    if (chunks.size() == kMostChunks) {
        from.Fail(offset, "there are too many chunks");
    }
    SmafOpenChunk chunk{tag, number, from.Piece(size)};
    if (from.IsGood()) {
        chunks.push_back({isNumbered ? tag + std::to_string(number) : CleanText(tag), offset, size, depth});
    }
    return chunk;
}

}  // namespace score
