// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/linux_file_system.h"

#include "platform_linux/failure.h"
#include "platform_linux/file_lock.h"
#include "platform_linux/file_replacement.h"
#include "platform_linux/file_times.h"
#include "platform_linux/folder_reader.h"
#include "platform_linux/linux_file.h"
#include "platform_linux/paths.h"
#include "platform_linux/presence.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>

namespace platform_linux
{

namespace
{

class CLinuxLock final : public platform::CLock
{
public:
    explicit CLinuxLock(CHandle locked) : handle(std::move(locked)) {}

private:
    CHandle handle;
};

class CLinuxReplacement final : public platform::CReplacement
{
public:
    CLinuxReplacement(std::unique_ptr<CFileReplacement> started, CHandle second)
        : replacement(std::move(started)), file(std::move(second), Writing::fromStartToEnd)
    {
    }
    platform::CFile& File() override { return file; }
    bool Commit() override { return replacement->Commit(); }

private:
    std::unique_ptr<CFileReplacement> replacement;
    CLinuxFile file;
};

}  // namespace

std::unique_ptr<platform::CFile> CLinuxFileSystem::Open(const std::string& path, platform::OpenMode mode)
{
    CHandle handle = OpenRegular(path, mode);
    const Writing writing = mode == platform::OpenMode::read ? Writing::none : Writing::anywhere;
    return handle.IsOpen() ? std::make_unique<CLinuxFile>(std::move(handle), writing) : nullptr;
}

std::optional<platform::FileFacts> CLinuxFileSystem::FindFirstFile(const std::string& path)
{
    return ReadFacts(path);
}

std::optional<platform::FileFacts> CLinuxFileSystem::FindFirstFileAgain(const std::string& path,
                                                                        const platform::FileFacts& known)
{
    return ReadFacts(path, &known);
}

platform::Presence CLinuxFileSystem::FindPresence(const std::string& path)
{
    return PresenceOf(path);
}

std::unique_ptr<platform::CFolderReader> CLinuxFileSystem::ReadFolder(const std::string& path)
{
    DirHandle folder = OpenFolder(AT_FDCWD, path, 0);
    return folder ? std::make_unique<CLinuxFolderReader>(std::move(folder)) : nullptr;
}

bool CLinuxFileSystem::CreateDirectory(const std::string& path)
{
    return mkdir(Native(path), 0777) == 0 || Fail();
}

bool CLinuxFileSystem::CopyFile(const std::string& source, const std::string& target)
{
    return CopyRegular(source, target, ExistingTarget::replace);
}

bool CLinuxFileSystem::DeleteFile(const std::string& path)
{
    return unlink(Native(path)) == 0 || Fail();
}

bool CLinuxFileSystem::MoveFile(const std::string& source, const std::string& target)
{
    return rename(Native(source), Native(target)) == 0 || Fail();
}

bool CLinuxFileSystem::MoveFileNoReplace(const std::string& source, const std::string& target)
{
    return RenameNoReplace(AT_FDCWD, source, AT_FDCWD, target);
}

bool CLinuxFileSystem::ReplaceFile(const std::string& path, std::span<const std::byte> bytes)
{
    return ReplaceBytes(path, bytes);
}

std::unique_ptr<platform::CReplacement> CLinuxFileSystem::BeginReplacement(const std::string& path)
{
    auto started = CFileReplacement::Start(path, 0666, ExistingTarget::replace);
    if (!started)
        return nullptr;
    CHandle second(fcntl(started->Get(), F_DUPFD_CLOEXEC, 0));
    if (!second.IsOpen()) {
        Fail();
        return nullptr;
    }
    return std::make_unique<CLinuxReplacement>(std::move(started), std::move(second));
}

std::optional<std::string> CLinuxFileSystem::ReadWhole(const std::string& path, std::uint64_t most)
{
    const CHandle handle = OpenRegular(path, platform::OpenMode::read);
    return handle.IsOpen() ? ReadAll(handle.Get(), most) : std::nullopt;
}

bool CLinuxFileSystem::SetFileTime(const std::string& path, platform::FileTime creation,
                                   platform::FileTime lastWrite)
{
    if (creation != 0 && !WriteCreationTime(path, creation))
        return false;
    return lastWrite == 0 || SetModificationTime(path, ToTimeSpec(lastWrite));
}

std::unique_ptr<platform::CLock> CLinuxFileSystem::LockFile(const std::string& path, int patienceMilliseconds)
{
    CHandle handle(open(Native(path), O_RDWR | O_CREAT | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, 0666));
    if (!handle.IsOpen()) {
        Fail();
        return nullptr;
    }
    if (!LockDescriptor(handle.Get(), platform::LockKind::exclusive, patienceMilliseconds))
        return nullptr;
    return std::make_unique<CLinuxLock>(std::move(handle));
}

std::string CLinuxFileSystem::GetTempPath()
{
    return temp.Path();
}

std::optional<std::string> CLinuxFileSystem::ResolveLink(const std::string& path)
{
    char* resolved = realpath(Native(path), nullptr);
    if (!resolved) {
        Fail();
        return std::nullopt;
    }
    std::string result = resolved;
    std::free(resolved);
    return result;
}

std::string CLinuxFileSystem::LastError()
{
    return LastFailureText();
}

bool ReplaceBytes(const std::string& path, std::span<const std::byte> bytes)
{
    const auto replacement = CFileReplacement::Start(path, 0666, ExistingTarget::replace);
    if (!replacement || !WriteAll(replacement->Get(), bytes))
        return false;
    // The kernel's own stamp moves in steps of milliseconds; readers that keep a parsed file tell two states
    // by it.
    (void)SetModificationTime(replacement->Get(), FromNanoseconds(NowNanoseconds()));
    return replacement->Commit();
}

std::optional<std::string> ReadAll(int fd, std::uint64_t most)
{
    struct stat facts {
    };
    if (fstat(fd, &facts) != 0 || static_cast<std::uint64_t>(facts.st_size) > most) {
        Fail(EFBIG);
        return std::nullopt;
    }
    // The size is only a start: the file may grow meanwhile, and the kernel's own files say 0.
    constexpr std::size_t kPiece = 64 * 1024;
    std::string bytes;
    std::size_t length = 0;
    for (std::size_t room = static_cast<std::size_t>(facts.st_size) + 1;; room = length + kPiece) {
        bytes.resize(room);
        while (length < room) {
            const ssize_t count = pread(fd, bytes.data() + length, room - length, static_cast<off_t>(length));
            if (count < 0 && errno == EINTR)
                continue;
            if (count < 0) {
                Fail();
                return std::nullopt;
            }
            if (count == 0) {
                bytes.resize(length);
                return bytes;
            }
            length += static_cast<std::size_t>(count);
            if (length > most) {
                Fail(EFBIG);
                return std::nullopt;
            }
        }
    }
}

}  // namespace platform_linux
