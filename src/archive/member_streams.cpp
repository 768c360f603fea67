// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/member_streams.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <stdexcept>

namespace archive
{
namespace
{

constexpr std::uint64_t kReadAhead = 64 * 1024;
// From this length on, the percentage is reckoned by a division first: 32-bit readers of it do the same.
constexpr std::uint64_t kLongFile = 10'000'001;

int PercentOf(std::uint64_t done, std::uint64_t length)
{
    if (length == 0 || done >= length)
        return 100;
    return static_cast<int>(length >= kLongFile ? done / (length / 100) : done * 100 / length);
}

}  // namespace

CRangeReader::CRangeReader(platform::CFile& source, std::uint64_t begin, std::uint64_t rangeEnd)
    : file(source), position(begin), end(rangeEnd),
      capacity(static_cast<std::size_t>(std::clamp<std::uint64_t>(rangeEnd - begin, 1, kReadAhead))),
      buffer(new std::byte[capacity])
{
}

std::size_t CRangeReader::Read(std::span<std::byte> block)
{
    if (taken == filled) {
        const auto wanted = static_cast<std::size_t>(std::min<std::uint64_t>(end - position, capacity));
        taken = 0;
        filled = wanted > 0 ? file.ReadAt(position, std::span(buffer.get(), wanted)) : 0;
        position += filled;
        failed = failed || filled < wanted;
    }
    const std::size_t count = std::min(block.size(), filled - taken);
    std::memcpy(block.data(), buffer.get() + taken, count);
    taken += count;
    return count;
}

void CMemberStream::Consumed(std::uint64_t total)
{
    watch.progress(PercentOf(total, inputLength));
}

bool CFileSink::Write(std::span<const std::byte> block)
{
    full = block.size() > room;
    if (full)
        return false;
    room -= block.size();
    return writer.Append(block);
}

bool CMemorySink::Write(std::span<const std::byte> block)
{
    if (block.size() > room)
        return false;
    room -= block.size();
    try {
        data.append(reinterpret_cast<const char*>(block.data()), block.size());
    } catch (const std::bad_alloc&) {
        return false;
    }
    return true;
}

}  // namespace archive
