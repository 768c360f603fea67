// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/camera/verified_copy.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <linux/fs.h>
#include <memory>
#include <sys/ioctl.h>
#include <sys/stat.h>

namespace suite
{

namespace
{

// Small enough to stop within a moment, on a slow card too.
constexpr std::size_t kPiece = std::size_t{4} << 20;
// What may be on its way to the medium of one file: a stop has to wait for no more.
constexpr std::uint64_t kInFlight = std::uint64_t{64} << 20;
// Two of them stay in a processor's own memory.
constexpr std::size_t kBuffer = std::size_t{256} << 10;

// The bytes at `offset`, fewer only at the end of the file; -1 on failure.
ssize_t ReadFull(int file, char* buffer, std::size_t size, off_t offset)
{
    std::size_t done = 0;
    while (done < size) {
        const ssize_t read = pread(file, buffer + done, size - done, offset + static_cast<off_t>(done));
        if (read < 0 && errno == EINTR)
            continue;
        if (read < 0)
            return -1;
        if (read == 0)
            break;
        done += static_cast<std::size_t>(read);
    }
    return static_cast<ssize_t>(done);
}

bool WriteFull(int file, const char* buffer, std::size_t size)
{
    while (size > 0) {
        const ssize_t written = write(file, buffer, size);
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        buffer += written;
        size -= static_cast<std::size_t>(written);
    }
    return true;
}

bool CannotCopyInKernel(int reason)
{
    return reason == EXDEV || reason == EINVAL || reason == ENOSYS || reason == EOPNOTSUPP || reason == EPERM;
}

// "/f/DSC00001.JPG" becomes "/f/DSC00001 (2).JPG".
std::string Numbered(const std::string& path, int number)
{
    const std::size_t dot = path.rfind('.');
    const std::string text = " (" + std::to_string(number) + ")";
    return dot == std::string::npos || dot < path.rfind('/') ? path + text
                                                             : std::string(path).insert(dot, text);
}

}  // namespace

CVerifiedCopy::CVerifiedCopy(std::string sourcePath, std::string targetFolder)
    : sourceFile(std::move(sourcePath)), folder(std::move(targetFolder))
{
}

CVerifiedCopy::~CVerifiedCopy()
{
    if (!temporary.empty())
        unlink(temporary.c_str());
}

bool CVerifiedCopy::Fail(int reason)
{
    failure = reason;
    return false;
}

bool CVerifiedCopy::OpenSource()
{
    struct stat facts = {};
    // A pipe that took the photo's place must not be waited for.
    source = CDescriptor(open(sourceFile.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
    if (!source.IsOpen() || fstat(source.Get(), &facts) != 0)
        return Fail(errno);
    if (!S_ISREG(facts.st_mode))
        return Fail(EINVAL);
    modified = facts.st_mtim;
    posix_fadvise(source.Get(), 0, 0, POSIX_FADV_SEQUENTIAL);
    return true;
}

bool CVerifiedCopy::OpenCopy()
{
    static std::atomic<unsigned> counter = 0;
    copy = CDescriptor(open(folder.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, 0666));
    if (copy.IsOpen())
        return true;
    if (errno != EOPNOTSUPP && errno != EISDIR && errno != EINVAL)
        return Fail(errno);
    do {
        temporary = folder + "/.kelvo-" + std::to_string(getpid()) + '-' + std::to_string(counter++);
        copy = CDescriptor(open(temporary.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    } while (!copy.IsOpen() && errno == EEXIST);
    if (copy.IsOpen())
        return true;
    temporary.clear();
    return Fail(errno);
}

void CVerifiedCopy::Advance(std::uint64_t bytes)
{
    const std::uint64_t before = copied.fetch_add(bytes);
    sync_file_range(copy.Get(), static_cast<off64_t>(before), static_cast<off64_t>(bytes),
                    SYNC_FILE_RANGE_WRITE);
    if (before >= kInFlight)
        sync_file_range(copy.Get(), static_cast<off64_t>(before - kInFlight), static_cast<off64_t>(bytes),
                        SYNC_FILE_RANGE_WAIT_BEFORE | SYNC_FILE_RANGE_WRITE | SYNC_FILE_RANGE_WAIT_AFTER);
}

bool CVerifiedCopy::CopyInKernel()
{
    for (;;) {
        if (stopped)
            return Fail(ECANCELED);
        const ssize_t moved = copy_file_range(source.Get(), nullptr, copy.Get(), nullptr, kPiece, 0);
        if (moved < 0 && errno == EINTR)
            continue;
        if (moved < 0)
            return Fail(errno);
        if (moved == 0)
            return true;
        Advance(static_cast<std::uint64_t>(moved));
    }
}

bool CVerifiedCopy::CopyThroughBuffer()
{
    const std::unique_ptr<char[]> buffer(new char[kPiece]);
    for (;;) {
        if (stopped)
            return Fail(ECANCELED);
        const ssize_t bytes = ReadFull(source.Get(), buffer.get(), kPiece, static_cast<off_t>(copied.load()));
        if (bytes == 0)
            return true;
        if (bytes < 0 || !WriteFull(copy.Get(), buffer.get(), static_cast<std::size_t>(bytes)))
            return Fail(errno);
        Advance(static_cast<std::uint64_t>(bytes));
    }
}

bool CVerifiedCopy::Copy()
{
    if (!OpenSource() || !OpenCopy())
        return false;
    if (ioctl(copy.Get(), FICLONE, source.Get()) != 0) {
        const bool isCopied =
            CopyInKernel() || (copied == 0 && CannotCopyInKernel(failure) && CopyThroughBuffer());
        if (!isCopied)
            return false;
    }
    failure = 0;
    const timespec times[] = {{0, UTIME_NOW}, modified};
    return futimens(copy.Get(), times) == 0 || Fail(errno);
}

bool CVerifiedCopy::Verify()
{
    if (stopped)
        return Fail(ECANCELED);
    if (fsync(copy.Get()) != 0)
        return Fail(errno);
    posix_fadvise(copy.Get(), 0, 0, POSIX_FADV_DONTNEED);
    const std::unique_ptr<char[]> buffers(new char[2 * kBuffer]);
    char* const original = buffers.get();
    char* const read = buffers.get() + kBuffer;
    for (off_t offset = 0;; offset += static_cast<off_t>(kBuffer)) {
        if (stopped)
            return Fail(ECANCELED);
        const ssize_t bytes = ReadFull(source.Get(), original, kBuffer, offset);
        if (bytes < 0)
            return Fail(errno);
        const ssize_t same = ReadFull(copy.Get(), read, kBuffer, offset);
        if (same < 0)
            return Fail(errno);
        if (bytes != same || std::memcmp(original, read, static_cast<std::size_t>(bytes)) != 0)
            return Fail(EIO);
        if (static_cast<std::size_t>(bytes) < kBuffer)
            break;
    }
    source = CDescriptor();
    return true;
}

// 0, or why not.
int CVerifiedCopy::TryName(const std::string& path)
{
    if (temporary.empty()) {
        const std::string link = "/proc/self/fd/" + std::to_string(copy.Get());
        return linkat(AT_FDCWD, link.c_str(), AT_FDCWD, path.c_str(), AT_SYMLINK_FOLLOW) == 0 ? 0 : errno;
    }
    if (renameat2(AT_FDCWD, temporary.c_str(), AT_FDCWD, path.c_str(), RENAME_NOREPLACE) == 0)
        return 0;
    if (errno != EINVAL && errno != ENOSYS)
        return errno;
    // File systems that know no exclusive rename: the name is looked at once more instead.
    struct stat facts = {};
    if (lstat(path.c_str(), &facts) == 0)
        return EEXIST;
    return std::rename(temporary.c_str(), path.c_str()) == 0 ? 0 : errno;
}

bool CVerifiedCopy::GiveName(const std::string& path)
{
    constexpr int kMostNumbers = 100000;
    name = path;
    int reason = TryName(name);
    for (int number = 2; reason == EEXIST && number < kMostNumbers; ++number) {
        name = Numbered(path, number);
        reason = TryName(name);
    }
    if (reason != 0)
        return Fail(reason);
    temporary.clear();
    copy = CDescriptor();
    return true;
}

}  // namespace suite
