// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CSectionInput: the sections at the start of a JPEG file, read forwards in whole blocks.
//
// No block is read twice, and none beyond the one in which the last byte asked for lies, so that a photo of
// any length costs no more of the disk than its sections take. The file must outlive the input.
#pragma once

#include "platform/file_system.h"

#include <cstdint>
#include <memory>
#include <span>

namespace photo
{

class CSectionInput
{
public:
    static constexpr std::size_t kBlock = 4096;

    explicit CSectionInput(platform::CFile& opened);

    // The next byte; -1 at the end of the file.
    int Byte();
    // False when the file ends before all of `bytes` are filled.
    bool Read(std::span<std::uint8_t> bytes);
    // Passes over bytes without reading them; false when the file ends before.
    bool Skip(std::size_t length);

    // Ask the disk in the background for what the sections will need: first for the file's first block, then,
    // each time that the blocks asked for should have come, for what they tell of further ones. To be called
    // before the first read.
    void ForeseeStart();
    void ForeseeMore();

private:
    // Reads the blocks that hold [at, at + length), which begins at or behind the window's end.
    void Fill(std::size_t length);
    // Reads on up to what was asked for, keeping what is there.
    void Extend();
    void AskFor(std::uint64_t end);
    // Whether the section whose four bytes of head are in the window will be kept, as far as can be told.
    bool IsWanted(std::size_t head) const;
    std::uint64_t WindowEnd() const { return windowStart + windowLength; }

    platform::CFile& file;
    std::uint64_t at = 0;
    std::uint64_t windowStart = 0;
    std::size_t windowLength = 0;
    std::size_t windowRoom = 0;
    std::unique_ptr<std::uint8_t[]> window;
    bool ended = false;        // the window reaches the end of the file
    bool restricted = false;   // the system reads nothing ahead
    std::uint64_t asked = 0;   // the end of what the disk was asked for
    std::size_t nextHead = 2;  // the first section that has not been foreseen
    bool foreseen = false;     // there is nothing more to ask for
};

}  // namespace photo
