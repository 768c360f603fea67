// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/operation_log.h"

#include "platform_linux/failure.h"
#include "platform_linux/folder_reader.h"

#include <fcntl.h>
#include <sys/stat.h>

namespace platform_linux
{

namespace
{

constexpr std::size_t kMostProblems = 100;

std::uint64_t BytesBelow(int parent, const std::string& name)
{
    struct stat facts {
    };
    if (fstatat(parent, name.c_str(), &facts, AT_SYMLINK_NOFOLLOW) != 0)
        return 0;
    if (!S_ISDIR(facts.st_mode))
        return S_ISREG(facts.st_mode) ? static_cast<std::uint64_t>(facts.st_size) : 0;
    std::uint64_t sum = 0;
    if (const DirHandle folder = OpenFolder(parent, name, O_NOFOLLOW)) {
        while (const dirent* entry = NextEntry(folder.get()))
            sum += BytesBelow(dirfd(folder.get()), entry->d_name);
    }
    return sum;
}

}  // namespace

void COperationLog::Measure(const std::string& path)
{
    if (tell)
        bytesToDo = BytesBelow(AT_FDCWD, path);
}

bool COperationLog::Advance(std::uint64_t bytes)
{
    bytesDone += bytes;
    cancelled = cancelled || (tell && !tell(bytesDone, bytesToDo));
    return !cancelled || Fail(ECANCELED);
}

bool COperationLog::Failed(const std::string& path)
{
    const int reason = LastFailure();
    if (problems.size() < kMostProblems)
        problems.push_back({path, FailureOf(reason), LastFailureText()});
    return Fail(reason);
}

platform::FileFailure FailureOf(int error)
{
    using platform::FileFailure;
    switch (error) {
    case 0:
        return FileFailure::none;
    case ECANCELED:
        return FileFailure::cancelled;
    case ENOENT:
    case ENOTDIR:
        return FileFailure::missing;
    case EEXIST:
        return FileFailure::nameTaken;
    case EACCES:
    case EPERM:
    case EROFS:
        return FileFailure::noPermission;
    case ENOSPC:
    case EDQUOT:
        return FileFailure::noRoom;
    case ENAMETOOLONG:
    case EILSEQ:
        return FileFailure::badName;
    default:
        return FileFailure::other;
    }
}

}  // namespace platform_linux
