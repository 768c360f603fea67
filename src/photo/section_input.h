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

    // Has the disk fetch in the background what the section that reaches beyond the first block needs. To be
    // called before the first read.
    void Foresee();

private:
    // Reads the blocks that hold [at, at + length), which begins at or behind the window's end.
    void Fill(std::size_t length);
    std::uint64_t WindowEnd() const { return windowStart + windowLength; }

    platform::CFile& file;
    std::uint64_t at = 0;
    std::uint64_t windowStart = 0;
    std::size_t windowLength = 0;
    std::size_t windowRoom = 0;
    std::unique_ptr<std::uint8_t[]> window;
    bool ended = false;  // the window reaches the end of the file
};

}  // namespace photo
