// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CFaultyFileSystem: another file system that fails where a test wants it to.
//
// Every call that would change a file is one step: WriteAt, Truncate, MarkChanged, KeepNote, SetFileTime,
// creating, deleting, moving, copying or replacing a file (beginning and committing are two), making a
// folder. Steps are counted from 0. A step that fails changes nothing, but for a write that is cut short.
#pragma once

#include "platform/file_system.h"

#include <limits>
#include <set>

namespace support
{

enum class Fault {
    fail,      // this one step fails
    cutShort,  // as fail, but a write leaves its first half behind
    stop,      // this step and all after it fail: the process was killed here
};

class CFaultyFileSystem : public platform::CFileSystem
{
public:
    static constexpr std::size_t kNever = std::numeric_limits<std::size_t>::max();

    explicit CFaultyFileSystem(platform::CFileSystem& real) : inner(real) {}

    std::size_t faultyStep = kNever;
    Fault fault = Fault::fail;
    // How many bytes may still be written at or behind the end of files: the room on the disk.
    std::uint64_t room = std::numeric_limits<std::uint64_t>::max();
    std::set<std::string> refused;                                      // paths that cannot be opened
    std::uint64_t badFrom = std::numeric_limits<std::uint64_t>::max();  // where files cannot be read any more
    std::size_t steps = 0;                                              // steps seen so far
    std::size_t reads = 0;                                              // calls of ReadAt

    std::unique_ptr<platform::CFile> Open(const std::string& path, platform::OpenMode mode) override;
    std::optional<platform::FileFacts> FindFirstFile(const std::string& path) override
    {
        return inner.FindFirstFile(path);
    }
    platform::Presence FindPresence(const std::string& path) override { return inner.FindPresence(path); }
    std::unique_ptr<platform::CFolderReader> ReadFolder(const std::string& path) override
    {
        return inner.ReadFolder(path);
    }
    bool CreateDirectory(const std::string& path) override { return Step() && inner.CreateDirectory(path); }
    bool CopyFile(const std::string& source, const std::string& target) override;
    bool DeleteFile(const std::string& path) override { return Step() && inner.DeleteFile(path); }
    bool MoveFile(const std::string& source, const std::string& target) override
    {
        return Step() && inner.MoveFile(source, target);
    }
    bool MoveFileNoReplace(const std::string& source, const std::string& target) override
    {
        return Step() && inner.MoveFileNoReplace(source, target);
    }
    bool ReplaceFile(const std::string& path, std::span<const std::byte> bytes) override
    {
        return Step() && Take(bytes.size()) && inner.ReplaceFile(path, bytes);
    }
    std::unique_ptr<platform::CReplacement> BeginReplacement(const std::string& path) override;
    std::optional<std::string> ReadWhole(const std::string& path, std::uint64_t most) override
    {
        return refused.contains(path) ? std::nullopt : inner.ReadWhole(path, most);
    }
    bool SetFileTime(const std::string& path, platform::FileTime creation,
                     platform::FileTime lastWrite) override
    {
        return Step() && inner.SetFileTime(path, creation, lastWrite);
    }
    std::unique_ptr<platform::CLock> LockFile(const std::string& path, int patienceMilliseconds) override
    {
        return refused.contains(path) ? nullptr : inner.LockFile(path, patienceMilliseconds);
    }
    std::string GetTempPath() override { return inner.GetTempPath(); }
    std::optional<std::string> ResolveLink(const std::string& path) override
    {
        return inner.ResolveLink(path);
    }
    std::string LastError() override { return "made to fail"; }

    // Counts a step; false when it must fail.
    bool Step();
    // Uses up room for `bytes`; false, using nothing, when there is not enough.
    bool Take(std::uint64_t bytes);

private:
    platform::CFileSystem& inner;
};

}  // namespace support
