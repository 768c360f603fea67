// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CBlockWriter: collects bytes and writes them to a file in few large pieces.
#pragma once

#include "platform/file_system.h"

#include <vector>

namespace archive
{

class CBlockWriter
{
public:
    // Writes from `start` on. `file` must outlive the writer; nothing is written by the destructor.
    CBlockWriter(platform::CFile& file, std::uint64_t start, std::size_t blockSize);

    std::uint64_t Position() const { return flushed + pending.size(); }
    bool Append(std::span<const std::byte> bytes);
    // Overwrites bytes that were appended before, wherever they are by now.
    bool Patch(std::uint64_t position, std::span<const std::byte> bytes);
    bool Flush();

private:
    platform::CFile& file;
    std::uint64_t flushed;
    std::size_t block;
    std::vector<std::byte> pending;
};

}  // namespace archive
