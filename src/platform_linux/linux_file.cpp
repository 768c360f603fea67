// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/linux_file.h"

#include "platform_linux/failure.h"
#include "platform_linux/file_lock.h"
#include "platform_linux/file_times.h"
#include "platform_linux/paths.h"

#include <algorithm>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>

namespace platform_linux
{

namespace
{

constexpr std::int64_t kNanosecondsPerSecond = 1'000'000'000;
const std::string kNotePrefix = "user.kelvo.";
constexpr std::size_t kLongestNote = 256;
constexpr off_t kWriteBackPiece = 4 << 20;

// Offsets beyond off_t would turn negative.
bool FitsOffset(std::uint64_t offset, std::uint64_t length)
{
    constexpr auto kMost = static_cast<std::uint64_t>(INT64_MAX);
    return offset <= kMost && length <= kMost - offset;
}

int FlagsOf(platform::OpenMode mode)
{
    constexpr int kAlways = O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
    switch (mode) {
    case platform::OpenMode::read:
        return kAlways | O_RDONLY;
    case platform::OpenMode::readWrite:
        return kAlways | O_RDWR;
    case platform::OpenMode::create:
        return kAlways | O_RDWR | O_CREAT;
    case platform::OpenMode::createNew:
        return kAlways | O_RDWR | O_CREAT | O_EXCL;
    }
    return kAlways;
}

}  // namespace

CHandle OpenRegular(const std::string& path, platform::OpenMode mode)
{
    int descriptor = -1;
    do
        descriptor = open(Native(path), FlagsOf(mode), 0666);
    while (descriptor < 0 && errno == EINTR);
    CHandle handle(descriptor);
    struct stat facts {
    };
    if (!handle.IsOpen() || fstat(handle.Get(), &facts) != 0) {
        Fail();
        return CHandle();
    }
    if (!S_ISREG(facts.st_mode)) {
        Fail(S_ISDIR(facts.st_mode) ? EISDIR : EINVAL);
        return CHandle();
    }
    if (mode == platform::OpenMode::create && facts.st_size != 0 && ftruncate(handle.Get(), 0) != 0) {
        Fail();
        return CHandle();
    }
    return handle;
}

bool WriteAllAt(int fd, std::uint64_t offset, std::span<const std::byte> bytes)
{
    if (!FitsOffset(offset, bytes.size()))
        return Fail(EFBIG);
    while (!bytes.empty()) {
        const ssize_t written = pwrite(fd, bytes.data(), bytes.size(), static_cast<off_t>(offset));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return Fail(written == 0 ? EIO : errno);
        bytes = bytes.subspan(static_cast<std::size_t>(written));
        offset += static_cast<std::uint64_t>(written);
    }
    return true;
}

bool WriteAll(int fd, std::span<const std::byte> bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = write(fd, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return Fail(written == 0 ? EIO : errno);
        bytes = bytes.subspan(static_cast<std::size_t>(written));
    }
    return true;
}

std::int64_t ModifiedNanoseconds(const struct stat& facts)
{
    return facts.st_mtim.tv_sec * kNanosecondsPerSecond + facts.st_mtim.tv_nsec;
}

std::int64_t NowNanoseconds()
{
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    return now.tv_sec * kNanosecondsPerSecond + now.tv_nsec;
}

timespec FromNanoseconds(std::int64_t since1970)
{
    return {since1970 / kNanosecondsPerSecond, since1970 % kNanosecondsPerSecond};
}

bool NamesDescriptor(const std::string& path, int fd)
{
    struct stat named {
    };
    struct stat opened {
    };
    return stat(Native(path), &named) == 0 && fstat(fd, &opened) == 0 && named.st_dev == opened.st_dev &&
           named.st_ino == opened.st_ino;
}

void CEarlyWriteBack::Written(off_t upTo)
{
    if (upTo - begun < kWriteBackPiece)
        return;
    (void)sync_file_range(fd, begun, upTo - begun, SYNC_FILE_RANGE_WRITE);
    begun = upTo;
}

CLinuxFile::CLinuxFile(CHandle opened, Writing writing) : handle(std::move(opened))
{
    if (writing == Writing::fromStartToEnd)
        writeBack.emplace(handle.Get(), 0);
    // From here on, MarkChanged knows the time before any write.
    if (writing != Writing::none)
        (void)Stamp();
}

std::size_t CLinuxFile::ReadAt(std::uint64_t offset, std::span<std::byte> buffer)
{
    if (!FitsOffset(offset, buffer.size())) {
        Fail(EFBIG);
        return 0;
    }
    std::size_t done = 0;
    while (done < buffer.size()) {
        const ssize_t count = pread(handle.Get(), buffer.data() + done, buffer.size() - done,
                                    static_cast<off_t>(offset + done));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            Fail();
        if (count <= 0)
            break;
        done += static_cast<std::size_t>(count);
    }
    return done;
}

bool CLinuxFile::WriteAt(std::uint64_t offset, std::span<const std::byte> bytes)
{
    if (!WriteAllAt(handle.Get(), offset, bytes))
        return false;
    if (writeBack)
        writeBack->Written(static_cast<off_t>(offset + bytes.size()));
    return true;
}

bool CLinuxFile::Truncate(std::uint64_t size)
{
    if (!FitsOffset(size, 0))
        return Fail(EFBIG);
    while (ftruncate(handle.Get(), static_cast<off_t>(size)) != 0)
        if (errno != EINTR)
            return Fail();
    return true;
}

bool CLinuxFile::Sync()
{
    while (fdatasync(handle.Get()) != 0)
        if (errno != EINTR)
            return Fail();
    return true;
}

std::optional<platform::FileStamp> CLinuxFile::Stamp()
{
    struct stat facts {
    };
    if (fstat(handle.Get(), &facts) != 0) {
        Fail();
        return std::nullopt;
    }
    const std::int64_t modified = ModifiedNanoseconds(facts);
    latestModified = std::max(latestModified, modified);
    return platform::FileStamp{facts.st_dev, facts.st_ino, static_cast<std::uint64_t>(facts.st_size),
                               modified};
}

bool CLinuxFile::MarkChanged()
{
    const std::int64_t before = latestModified;
    if (!Stamp())
        return false;
    const std::int64_t floor = std::max(before, latestModified);
    // A file system may round times down to its own steps (100 ns, 1 us, 1 s, 2 s): take the first step that
    // it can tell from the time before.
    for (const std::int64_t step : {1LL, 100LL, 1'000LL, 1'000'000LL, 1'000'000'000LL, 2'000'000'000LL}) {
        const std::int64_t wanted = std::max(NowNanoseconds(), floor + step);
        if (!SetModificationTime(handle.Get(), FromNanoseconds(wanted)))
            return false;
        const std::optional<platform::FileStamp> now = Stamp();
        if (now && now->modifiedNanoseconds > floor)
            return true;
    }
    return Fail(EOVERFLOW);
}

bool CLinuxFile::Lock(platform::LockKind kind, int patienceMilliseconds)
{
    return LockDescriptor(handle.Get(), kind, patienceMilliseconds);
}

bool CLinuxFile::IsStill(const std::string& path)
{
    return NamesDescriptor(path, handle.Get());
}

void CLinuxFile::WillNeed(std::uint64_t offset, std::uint64_t length)
{
    if (FitsOffset(offset, length))
        (void)posix_fadvise(handle.Get(), static_cast<off_t>(offset), static_cast<off_t>(length),
                            POSIX_FADV_WILLNEED);
}

void CLinuxFile::ReadOnlyWhatIsAsked()
{
    (void)posix_fadvise(handle.Get(), 0, 0, POSIX_FADV_RANDOM);
}

bool CLinuxFile::KeepNote(const std::string& name, const std::string& text)
{
    return fsetxattr(handle.Get(), (kNotePrefix + name).c_str(), text.data(), text.size(), 0) == 0 || Fail();
}

std::string CLinuxFile::Note(const std::string& name)
{
    char text[kLongestNote];
    const ssize_t length = fgetxattr(handle.Get(), (kNotePrefix + name).c_str(), text, sizeof text);
    return std::string(text, length > 0 ? static_cast<std::size_t>(length) : 0);
}

}  // namespace platform_linux
