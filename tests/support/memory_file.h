// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CMemoryFile: bytes as an open file for reading, which notes how far they were read.
#pragma once

#include "platform/file_system.h"

#include <algorithm>
#include <string>
#include <utility>

namespace support
{

class CMemoryFile : public platform::CFile
{
public:
    explicit CMemoryFile(std::string held) : bytes(std::move(held)) {}

    std::uint64_t readTo = 0;  // the end of the farthest read
    std::uint64_t bytesRead = 0;

    std::size_t ReadAt(std::uint64_t offset, std::span<std::byte> buffer) override
    {
        if (offset >= bytes.size())
            return 0;
        const std::size_t count = std::min(buffer.size(), bytes.size() - static_cast<std::size_t>(offset));
        std::copy_n(reinterpret_cast<const std::byte*>(bytes.data()) + offset, count, buffer.begin());
        readTo = std::max(readTo, offset + count);
        bytesRead += count;
        return count;
    }
    bool WriteAt(std::uint64_t, std::span<const std::byte>) override { return false; }
    bool Truncate(std::uint64_t) override { return false; }
    bool Sync() override { return false; }
    std::optional<platform::FileStamp> Stamp() override { return platform::FileStamp{0, 0, bytes.size(), 0}; }
    bool MarkChanged() override { return false; }
    bool Lock(platform::LockKind, int) override { return true; }
    bool IsStill(const std::string&) override { return true; }
    void WillNeed(std::uint64_t, std::uint64_t) override {}
    bool KeepNote(const std::string&, const std::string&) override { return false; }
    std::string Note(const std::string&) override { return {}; }

private:
    std::string bytes;
};

}  // namespace support
