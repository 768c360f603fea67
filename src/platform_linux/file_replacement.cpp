// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/file_replacement.h"

#include "platform_linux/failure.h"
#include "platform_linux/file_times.h"
#include "platform_linux/linux_file.h"
#include "platform_linux/paths.h"

#include <array>
#include <fcntl.h>
#include <linux/fs.h>
#include <random>
#include <sys/ioctl.h>
#include <sys/stat.h>

namespace platform_linux
{

namespace
{

constexpr int kMostNames = 100;

std::string HiddenName()
{
    static thread_local std::random_device random;
    constexpr char kDigits[] = "0123456789abcdef";
    std::string name = ".kelvo-";
    for (int i = 0; i < 12; ++i)
        name += kDigits[random() % 16];
    return name;
}

std::string DescriptorPath(int fd)
{
    return "/proc/self/fd/" + std::to_string(fd);
}

bool SyncFile(int fd)
{
    while (fsync(fd) != 0)
        if (errno != EINTR)
            return Fail();
    return true;
}

}  // namespace

std::unique_ptr<CFileReplacement> CFileReplacement::Start(const std::string& target, mode_t mode,
                                                          ExistingTarget existing)
{
    const bool follow = existing == ExistingTarget::replace;
    const std::optional<std::string> end = follow ? FollowLinks(target) : target;
    if (!end)
        return nullptr;
    std::unique_ptr<CFileReplacement> result(new CFileReplacement);
    result->policy = existing;
    return result->CheckTarget(*end, mode) ? std::move(result) : nullptr;
}

bool CFileReplacement::CheckTarget(const std::string& target, mode_t mode)
{
    if (target.find('\0') != std::string::npos)
        return Fail(EINVAL);
    name = NameOf(target);
    if (name.empty() || name == "." || name == ".." || target.back() == '/')
        return Fail(EISDIR);
    folder = CHandle(open(ParentOf(target).c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    if (!folder.IsOpen())
        return Fail();
    struct stat old {
    };
    targetIsThere = fstatat(folder.Get(), name.c_str(), &old, AT_SYMLINK_NOFOLLOW) == 0;
    if (!targetIsThere && errno != ENOENT)
        return Fail();
    if (targetIsThere && policy == ExistingTarget::fail)
        return Fail(EEXIST);
    if (targetIsThere && !S_ISREG(old.st_mode))
        return Fail(S_ISDIR(old.st_mode) ? EISDIR : EINVAL);
    if (targetIsThere && faccessat(folder.Get(), name.c_str(), W_OK, AT_EACCESS) != 0)
        return Fail();
    return (OpenUnnamed(mode) || OpenNamed(mode)) && (!targetIsThere || TakeOver(target));
}

bool CFileReplacement::OpenUnnamed(mode_t mode)
{
    static const bool canBeNamedLater = access("/proc/self/fd", X_OK) == 0;
    if (canBeNamedLater)
        file = CHandle(openat(folder.Get(), ".", O_TMPFILE | O_RDWR | O_CLOEXEC, mode));
    return file.IsOpen();
}

bool CFileReplacement::OpenNamed(mode_t mode)
{
    for (int i = 0; i < kMostNames; ++i) {
        const std::string tried = HiddenName();
        file = CHandle(openat(folder.Get(), tried.c_str(), O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC, mode));
        if (file.IsOpen()) {
            temporary = tried;
            return true;
        }
        if (errno != EEXIST)
            break;
    }
    return Fail();
}

bool CFileReplacement::TakeOver(const std::string& target)
{
    struct stat old {
    };
    struct stat fresh {
    };
    if (fstatat(folder.Get(), name.c_str(), &old, AT_SYMLINK_NOFOLLOW) != 0 || fstat(file.Get(), &fresh) != 0)
        return Fail();
    // Only root may give files away; for others the file simply becomes theirs.
    if (old.st_uid != fresh.st_uid || old.st_gid != fresh.st_gid)
        (void)!fchown(file.Get(), old.st_uid, old.st_gid);
    KeepCreationTime(target, file.Get());
    // A file system without modes (a memory card's) refuses; there is nothing to keep then.
    (void)fchmod(file.Get(), old.st_mode & 07777);
    return true;
}

bool CFileReplacement::GiveName()
{
    for (int i = 0; i < kMostNames; ++i) {
        const std::string tried = HiddenName();
        if (linkat(AT_FDCWD, DescriptorPath(file.Get()).c_str(), folder.Get(), tried.c_str(),
                   AT_SYMLINK_FOLLOW) == 0) {
            temporary = tried;
            return true;
        }
        if (errno != EEXIST)
            break;
    }
    return Fail();
}

bool CFileReplacement::PutInPlace()
{
    const int at = folder.Get();
    if (temporary.empty() && !targetIsThere) {
        if (linkat(AT_FDCWD, DescriptorPath(file.Get()).c_str(), at, name.c_str(), AT_SYMLINK_FOLLOW) == 0)
            return true;
        if (errno != EEXIST || policy == ExistingTarget::fail)
            return Fail();
    }
    if (temporary.empty() && !GiveName())
        return false;
    if (policy == ExistingTarget::fail)
        return RenameNoReplace(at, temporary, at, name);
    return renameat(at, temporary.c_str(), at, name.c_str()) == 0 || Fail();
}

bool CFileReplacement::Commit(Durability durability)
{
    const bool sync = durability == Durability::beforeNamed;
    if ((sync && !SyncFile(file.Get())) || !PutInPlace())
        return false;
    temporary.clear();
    if (!sync)
        return true;
    const CHandle listing(openat(folder.Get(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    // The new file is in place now; a folder that cannot be synced does not undo that.
    if (listing.IsOpen())
        (void)fsync(listing.Get());
    return true;
}

CFileReplacement::~CFileReplacement()
{
    if (!temporary.empty())
        (void)unlinkat(folder.Get(), temporary.c_str(), 0);
}

bool RenameNoReplace(int fromFolder, const std::string& from, int toFolder, const std::string& to)
{
    if (renameat2(fromFolder, Native(from), toFolder, Native(to), RENAME_NOREPLACE) == 0)
        return true;
    struct stat old {
    };
    struct stat taken {
    };
    const bool wanting = errno == EINVAL || errno == ENOSYS;
    if (!wanting && errno != EEXIST)
        return Fail();
    const bool isTaken = fstatat(toFolder, Native(to), &taken, AT_SYMLINK_NOFOLLOW) == 0;
    if (fstatat(fromFolder, Native(from), &old, AT_SYMLINK_NOFOLLOW) != 0)
        return Fail();
    // On a file system that does not tell case, a new spelling of the own name is there already.
    const bool isItself = isTaken && old.st_dev == taken.st_dev && old.st_ino == taken.st_ino &&
                          old.st_nlink == 1 && from != to;
    if (isTaken && !isItself)
        return Fail(EEXIST);
    if (!isTaken && wanting && S_ISREG(old.st_mode) &&
        linkat(fromFolder, Native(from), toFolder, Native(to), 0) == 0)
        return unlinkat(fromFolder, Native(from), 0) == 0 || Fail();
    if (wanting && !isTaken && errno == EEXIST)
        return Fail();
    return renameat(fromFolder, Native(from), toFolder, Native(to)) == 0 || Fail();
}

namespace
{

// The part of a copy that the kernel can do by itself; false only when it was stopped.
bool CopyInKernel(int from, int to, const CopyProgress& progress)
{
    constexpr std::size_t kPiece = 16 << 20;
    ssize_t count = 0;
    while ((count = copy_file_range(from, nullptr, to, nullptr, kPiece, 0)) > 0)
        if (progress && !progress(static_cast<std::uint64_t>(count)))
            return Fail(ECANCELED);
    return true;
}

bool CopyThroughBuffer(int from, int to, const CopyProgress& progress)
{
    const auto buffer = std::make_unique<std::array<std::byte, 256 * 1024>>();
    off_t done = lseek(to, 0, SEEK_CUR);
    for (CEarlyWriteBack writeBack(to, done);;) {
        const ssize_t count = read(from, buffer->data(), buffer->size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return count == 0 || Fail();
        if (!WriteAll(to, std::span(buffer->data(), static_cast<std::size_t>(count))))
            return false;
        if (progress && !progress(static_cast<std::uint64_t>(count)))
            return Fail(ECANCELED);
        done += count;
        writeBack.Written(done);
    }
}

}  // namespace

bool CopyBytes(int from, int to, const CopyProgress& progress)
{
    struct stat source {
    };
    struct stat target {
    };
    if (fstat(from, &source) != 0 || fstat(to, &target) != 0)
        return Fail();
    if (ioctl(to, FICLONE, from) == 0)
        return !progress || progress(static_cast<std::uint64_t>(source.st_size)) || Fail(ECANCELED);
    // Asked for at once, the room lies together, and a disk too full is known before anything is written.
    if (fallocate(to, FALLOC_FL_KEEP_SIZE, 0, source.st_size) != 0 && errno == ENOSPC)
        return Fail();
    // Whatever ends the kernel's part - the end of the file, or a file system that cannot - what is left
    // goes through the buffer, and a real failure shows there again.
    return (source.st_dev != target.st_dev || CopyInKernel(from, to, progress)) &&
           CopyThroughBuffer(from, to, progress);
}

bool CopyRegular(const std::string& source, const std::string& target, ExistingTarget existing,
                 Durability durability, const CopyProgress& progress)
{
    const CHandle from = OpenRegular(source, platform::OpenMode::read);
    struct stat facts {
    };
    if (!from.IsOpen() || fstat(from.Get(), &facts) != 0)
        return Fail();
    const auto replacement = CFileReplacement::Start(target, facts.st_mode & 0777, existing);
    if (!replacement || !CopyBytes(from.Get(), replacement->Get(), progress))
        return false;
    return SetModificationTime(replacement->Get(), facts.st_mtim) && replacement->Commit(durability);
}

}  // namespace platform_linux
