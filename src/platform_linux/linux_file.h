// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CLinuxFile: an open regular file on a file descriptor.
#pragma once

#include "platform/file_system.h"
#include "platform_linux/handle.h"

#include <ctime>
#include <optional>
#include <sys/stat.h>

namespace platform_linux
{

// Opens without ever waiting for a pipe's or a device's other end: a closed handle, with the reason kept,
// when the path cannot be opened in that way or is no regular file.
CHandle OpenRegular(const std::string& path, platform::OpenMode mode);

// Write all of `bytes` at `offset`, or at the current position.
bool WriteAllAt(int fd, std::uint64_t offset, std::span<const std::byte> bytes);
bool WriteAll(int fd, std::span<const std::byte> bytes);

// Has the medium start on what a stream of writes has left behind while the rest is still being made, so that
// a sync at the end finds little to do.
class CEarlyWriteBack
{
public:
    CEarlyWriteBack(int descriptor, off_t from) : fd(descriptor), begun(from) {}
    void Written(off_t upTo);

private:
    int fd;
    off_t begun;
};

enum class Writing { none, anywhere, fromStartToEnd };

class CLinuxFile final : public platform::CFile
{
public:
    explicit CLinuxFile(CHandle opened, Writing writing = Writing::anywhere);

    std::size_t ReadAt(std::uint64_t offset, std::span<std::byte> buffer) override;
    bool WriteAt(std::uint64_t offset, std::span<const std::byte> bytes) override;
    bool Truncate(std::uint64_t size) override;
    bool Sync() override;
    std::optional<platform::FileStamp> Stamp() override;
    bool MarkChanged() override;
    bool Lock(platform::LockKind kind, int patienceMilliseconds) override;
    bool IsStill(const std::string& path) override;
    void WillNeed(std::uint64_t offset, std::uint64_t length) override;
    void ReadOnlyWhatIsAsked() override;
    bool KeepNote(const std::string& name, const std::string& text) override;
    std::string Note(const std::string& name) override;

private:
    CHandle handle;
    std::optional<CEarlyWriteBack> writeBack;
    std::int64_t latestModified = 0;  // nanoseconds since 1970; the latest seen of this file
};

std::int64_t ModifiedNanoseconds(const struct stat& facts);
std::int64_t NowNanoseconds();
timespec FromNanoseconds(std::int64_t since1970);
// Whether `path` names the file open as `fd`.
bool NamesDescriptor(const std::string& path, int fd);

}  // namespace platform_linux
