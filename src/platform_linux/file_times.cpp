// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/file_times.h"

#include "platform_linux/failure.h"
#include "platform_linux/paths.h"

#include <charconv>
#include <cstring>
#include <fcntl.h>
#include <mutex>
#include <sys/sysmacros.h>
#include <sys/vfs.h>
#include <sys/xattr.h>
#include <vector>

namespace platform_linux
{

namespace
{

constexpr std::int64_t kSecondsFrom1601To1970 = 11'644'473'600;
constexpr platform::FileTime kStepsPerSecond = 10'000'000;

constexpr char kOwnAttribute[] = "user.kelvo.creation-time";
constexpr char kNtfsAttribute[] = "system.ntfs_crtime";
constexpr char kShareAttribute[] = "user.cifs.creationtime";

// The attribute that the mounted file system of `path` keeps creation times in.
const char* AttributeOf(const std::string& path)
{
    constexpr unsigned long kFuse = 0x65735546;
    constexpr unsigned long kCifs = 0xFF534D42;
    constexpr unsigned long kSmb2 = 0xFE534D42;
    struct statfs system {
    };
    if (statfs(Native(path), &system) != 0)
        return kOwnAttribute;
    const auto type = static_cast<unsigned long>(system.f_type) & 0xFFFFFFFFUL;
    if (type == kCifs || type == kSmb2)
        return kShareAttribute;
    char probe[8];
    if (type == kFuse && getxattr(Native(path), kNtfsAttribute, probe, sizeof probe) == sizeof probe)
        return kNtfsAttribute;
    return kOwnAttribute;
}

// AttributeOf, asked once per mount. Device numbers come back after an unmount, hence the mount's number too.
const char* AttributeOf(const std::string& path, const struct statx& facts)
{
    struct Mount {
        dev_t device;
        std::uint64_t number;
        const char* attribute;
    };
    static std::mutex mutex;
    static std::vector<Mount> mounts;
    const dev_t device = makedev(facts.stx_dev_major, facts.stx_dev_minor);
    const std::uint64_t number = (facts.stx_mask & STATX_MNT_ID) != 0 ? facts.stx_mnt_id : 0;

    const std::lock_guard lock(mutex);
    for (const Mount& mount : mounts)
        if (mount.device == device && mount.number == number)
            return mount.attribute;
    mounts.push_back({device, number, AttributeOf(path)});
    return mounts.back().attribute;
}

platform::FileTime ParseCreationTime(const char* attribute, const char* bytes, std::size_t length)
{
    platform::FileTime time = 0;
    if (attribute != kOwnAttribute) {
        if (length == sizeof time)
            std::memcpy(&time, bytes, sizeof time);
        return time;
    }
    const auto [end, error] = std::from_chars(bytes, bytes + length, time);
    return error == std::errc() && end == bytes + length ? time : 0;
}

platform::FileTime RecordedCreationTime(const std::string& path, const struct statx& facts)
{
    const char* attribute = AttributeOf(path, facts);
    char bytes[24];
    const ssize_t length = getxattr(Native(path), attribute, bytes, sizeof bytes);
    return length > 0 ? ParseCreationTime(attribute, bytes, static_cast<std::size_t>(length)) : 0;
}

// 0 where the next change may still get the same time: file systems note it in steps of up to two seconds.
platform::FileTime SettledChangeTime(const struct statx& facts)
{
    constexpr std::int64_t kSettled = 3;
    timespec now{};
    clock_gettime(CLOCK_REALTIME_COARSE, &now);
    const bool settled = facts.stx_ctime.tv_sec < now.tv_sec - kSettled;
    return settled ? ToFileTime(facts.stx_ctime.tv_sec, facts.stx_ctime.tv_nsec) : 0;
}

}  // namespace

platform::FileTime ToFileTime(std::int64_t seconds, std::uint32_t nanoseconds)
{
    if (seconds < -kSecondsFrom1601To1970)
        return 0;
    return static_cast<platform::FileTime>(seconds + kSecondsFrom1601To1970) * kStepsPerSecond +
           nanoseconds / 100;
}

timespec ToTimeSpec(platform::FileTime time)
{
    timespec result{};
    result.tv_sec = static_cast<std::int64_t>(time / kStepsPerSecond) - kSecondsFrom1601To1970;
    result.tv_nsec = static_cast<long>(time % kStepsPerSecond) * 100;
    return result;
}

bool SetModificationTime(int fd, const timespec& modified)
{
    struct stat facts {
    };
    if (fstat(fd, &facts) != 0)
        return Fail();
    const timespec times[2] = {facts.st_atim, modified};
    return futimens(fd, times) == 0 || Fail();
}

bool SetModificationTime(const std::string& path, const timespec& modified)
{
    struct stat facts {
    };
    if (stat(Native(path), &facts) != 0)
        return Fail();
    const timespec times[2] = {facts.st_atim, modified};
    return utimensat(AT_FDCWD, Native(path), times, 0) == 0 || Fail();
}

std::optional<platform::FileFacts> ReadFacts(const std::string& path, const platform::FileFacts* known)
{
    struct statx facts {
    };
    constexpr unsigned kWanted =
        STATX_TYPE | STATX_SIZE | STATX_MTIME | STATX_CTIME | STATX_BTIME | STATX_MNT_ID;
    if (statx(AT_FDCWD, Native(path), 0, kWanted, &facts) != 0) {
        Fail();
        return std::nullopt;
    }
    platform::FileFacts result;
    result.isFolder = S_ISDIR(facts.stx_mode);
    result.isRegular = S_ISREG(facts.stx_mode);
    result.size = facts.stx_size;
    result.lastWriteTime = ToFileTime(facts.stx_mtime.tv_sec, facts.stx_mtime.tv_nsec);
    result.changeTime = SettledChangeTime(facts);
    if (known && known->changeTime != 0 && known->changeTime == result.changeTime &&
        known->lastWriteTime == result.lastWriteTime && AttributeOf(path, facts) == kOwnAttribute) {
        result.creationTime = known->creationTime;
        return result;
    }
    if (result.isFolder || result.isRegular)
        result.creationTime = RecordedCreationTime(path, facts);
    if (result.creationTime == 0 && (facts.stx_mask & STATX_BTIME) != 0)
        result.creationTime = ToFileTime(facts.stx_btime.tv_sec, facts.stx_btime.tv_nsec);
    if (result.creationTime == 0)
        result.creationTime = result.lastWriteTime;
    return result;
}

bool WriteCreationTime(const std::string& path, platform::FileTime time)
{
    const char* attribute = AttributeOf(path);
    std::string value = std::to_string(time);
    if (attribute != kOwnAttribute)
        value.assign(reinterpret_cast<const char*>(&time), sizeof time);
    return setxattr(Native(path), attribute, value.data(), value.size(), 0) == 0 || Fail();
}

void KeepCreationTime(const std::string& from, int to)
{
    const char* attribute = AttributeOf(from);
    char bytes[24];
    const ssize_t length = getxattr(Native(from), attribute, bytes, sizeof bytes);
    if (length > 0)
        (void)fsetxattr(to, attribute, bytes, static_cast<std::size_t>(length), 0);
}

}  // namespace platform_linux
