// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The ends of the zlib streams by which members get into an archive and out of it.
#pragma once

#include "archive/block_writer.h"
#include "archive/zlib_stream.h"
#include "platform/file_system.h"

#include <atomic>
#include <functional>
#include <memory>

namespace archive
{

// Reads a range of a file in few large pieces.
class CRangeReader
{
public:
    CRangeReader(platform::CFile& file, std::uint64_t begin, std::uint64_t end);
    std::size_t Read(std::span<std::byte> block);
    // Whether reading stopped at the end of the range, not before.
    bool ReachedEnd() const { return position >= end; }
    // Whether the file gave less than it should have.
    bool Failed() const { return failed; }

private:
    platform::CFile& file;
    std::uint64_t position;
    std::uint64_t end;
    std::size_t capacity;
    std::unique_ptr<std::byte[]> buffer;
    std::size_t taken = 0;
    std::size_t filled = 0;
    bool failed = false;
};

// What both directions share: the input, the abort flag and the progress.
class CMemberStream : public CStreamEnds
{
public:
    struct Watch {
        const std::atomic<bool>& aborted;
        std::function<void(int)> progress;
    };
    // `length` is that of the whole file being read.
    CMemberStream(CRangeReader& reader, std::uint64_t length, const Watch& watching)
        : input(reader), inputLength(length), watch(watching)
    {
    }
    std::size_t Read(std::span<std::byte> block) override { return input.Read(block); }
    void Consumed(std::uint64_t total) override;
    bool Aborted() const override { return watch.aborted; }

private:
    CRangeReader& input;
    std::uint64_t inputLength;
    const Watch& watch;
};

// Writes to a file, up to `most` bytes.
class CFileSink : public CMemberStream
{
public:
    CFileSink(CRangeReader& reader, std::uint64_t length, const Watch& watching, CBlockWriter& target,
              std::uint64_t most)
        : CMemberStream(reader, length, watching), writer(target), room(most)
    {
    }
    bool Write(std::span<const std::byte> block) override;
    bool WasFull() const { return full; }

private:
    CBlockWriter& writer;
    std::uint64_t room;
    bool full = false;
};

// Appends to a string, up to `most` bytes.
class CMemorySink : public CMemberStream
{
public:
    CMemorySink(CRangeReader& reader, std::uint64_t length, const Watch& watching, std::string& target,
                std::uint64_t most)
        : CMemberStream(reader, length, watching), data(target), room(most)
    {
    }
    bool Write(std::span<const std::byte> block) override;

private:
    std::string& data;
    std::uint64_t room;
};

}  // namespace archive
