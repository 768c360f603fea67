// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/file_operations.h"

#include "platform_linux/failure.h"
#include "platform_linux/file_replacement.h"
#include "platform_linux/folder_reader.h"
#include "platform_linux/linux_file_system.h"
#include "platform_linux/paths.h"
#include "platform_linux/tree_removal.h"

#include <climits>
#include <fcntl.h>
#include <sys/stat.h>

namespace platform_linux
{

namespace
{

bool CopyLink(const std::string& source, const std::string& target)
{
    char text[PATH_MAX];
    const ssize_t length = readlink(Native(source), text, sizeof text);
    if (length < 0 || length == sizeof text)
        return Fail(length < 0 ? errno : ENAMETOOLONG);
    return symlink(std::string(text, static_cast<std::size_t>(length)).c_str(), Native(target)) == 0 ||
           Fail();
}

// Makes the folder unless one is there.
bool HaveFolder(const std::string& path, mode_t mode)
{
    struct stat facts {
    };
    if (mkdir(Native(path), mode | 0700) == 0)
        return true;
    return (errno == EEXIST && stat(Native(path), &facts) == 0 && S_ISDIR(facts.st_mode)) || Fail(EEXIST);
}

bool CopyFolder(const std::string& source, const std::string& target, mode_t mode, const CopyRules& rules)
{
    const DirHandle folder = OpenFolder(AT_FDCWD, source, O_NOFOLLOW);
    if (!folder || !HaveFolder(target, mode))
        return false;
    bool all = true;
    while (const dirent* entry = NextEntry(folder.get())) {
        const std::string from = Join(source, entry->d_name);
        struct stat facts {
        };
        if (rules.filesOnly && lstat(Native(from), &facts) == 0 && S_ISDIR(facts.st_mode))
            continue;
        all = CopyTree(from, Join(target, entry->d_name), rules) && all;
    }
    return all;
}

// Whether a copy of the folder to `target` would find itself among what it copies.
bool IsInside(const std::string& target, const std::string& folder)
{
    CLinuxFileSystem files;
    const std::optional<std::string> place = files.ResolveLink(ParentOf(target));
    const std::optional<std::string> source = files.ResolveLink(folder);
    return place && source && (*place == *source || IsBelow(*place, *source));
}

bool MoveByCopy(const std::string& source, const std::string& target)
{
    struct stat facts {
    };
    if (lstat(Native(target), &facts) == 0)
        return Fail(EEXIST);
    if (CopyTree(source, target, {false, LinkCopy::verbatim}))
        return RemoveTree(AT_FDCWD, source);
    const int reason = LastFailure();
    (void)RemoveTree(AT_FDCWD, target);
    return Fail(reason);
}

}  // namespace

bool CopyTree(const std::string& source, const std::string& target, const CopyRules& rules)
{
    struct stat facts {
    };
    if (lstat(Native(source), &facts) != 0)
        return Fail();
    if (S_ISLNK(facts.st_mode)) {
        struct stat end {
        };
        const bool isFile = stat(Native(source), &end) == 0 && S_ISREG(end.st_mode);
        return isFile && rules.links == LinkCopy::content ? CopyRegular(source, target, ExistingTarget::fail)
                                                          : CopyLink(source, target);
    }
    if (S_ISREG(facts.st_mode))
        return CopyRegular(source, target, ExistingTarget::fail);
    if (!S_ISDIR(facts.st_mode) || IsInside(target, source))
        return Fail(EINVAL);
    return CopyFolder(source, target, facts.st_mode & 0777, rules);
}

bool MoveTree(const std::string& source, const std::string& target)
{
    return RenameNoReplace(AT_FDCWD, source, AT_FDCWD, target) ||
           (LastFailure() == EXDEV && MoveByCopy(source, target));
}

}  // namespace platform_linux
