// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/block_writer.h"

#include <algorithm>

namespace archive
{

CBlockWriter::CBlockWriter(platform::CFile& target, std::uint64_t start, std::size_t blockSize)
    : file(target), flushed(start), block(blockSize)
{
}

bool CBlockWriter::Append(std::span<const std::byte> bytes)
{
    if (pending.size() + bytes.size() > block && !Flush())
        return false;
    pending.insert(pending.end(), bytes.begin(), bytes.end());
    return true;
}

bool CBlockWriter::Patch(std::uint64_t position, std::span<const std::byte> bytes)
{
    if (position < flushed)
        return Flush() && file.WriteAt(position, bytes);
    std::copy(bytes.begin(), bytes.end(), pending.begin() + static_cast<std::ptrdiff_t>(position - flushed));
    return true;
}

bool CBlockWriter::Flush()
{
    if (!pending.empty() && !file.WriteAt(flushed, pending))
        return false;
    flushed += pending.size();
    pending.clear();
    return true;
}

}  // namespace archive
