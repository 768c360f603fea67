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

bool IsThere(const std::string& path)
{
    struct stat facts {
    };
    return lstat(Native(path), &facts) == 0;
}

bool LeadsToFile(const std::string& link)
{
    struct stat end {
    };
    return stat(Native(link), &end) == 0 && S_ISREG(end.st_mode);
}

// One copy of a tree: the rules and the log that all of its parts share.
class CTreeCopy
{
public:
    CTreeCopy(const CopyRules& copyRules, COperationLog& operationLog) : rules(copyRules), log(operationLog)
    {
    }

    bool Copy(const std::string& source, const std::string& target, ExistingFolder existing)
    {
        struct stat facts {
        };
        if (!log.Advance())
            return false;
        if (lstat(Native(source), &facts) != 0)
            return Fail() || log.Failed(source);
        if (S_ISDIR(facts.st_mode))
            return CopyFolder(source, target, facts, existing);
        const bool done = S_ISREG(facts.st_mode)   ? CopyFile(source, target)
                          : S_ISLNK(facts.st_mode) ? CopyLink(source, target)
                                                   : Fail(ENOTSUP);
        return done || log.IsCancelled() || log.Failed(source);
    }

private:
    bool CopyFile(const std::string& source, const std::string& target)
    {
        return CopyRegular(source, target, ExistingTarget::fail, rules.durability,
                           [this](std::uint64_t bytes) { return log.Advance(bytes); });
    }

    bool CopyLink(const std::string& source, const std::string& target)
    {
        char text[PATH_MAX];
        if (rules.links == LinkCopy::content && LeadsToFile(source))
            return CopyFile(source, target);
        const ssize_t length = readlink(Native(source), text, sizeof text);
        if (length < 0 || length == sizeof text)
            return Fail(length < 0 ? errno : ENAMETOOLONG);
        if (symlink(std::string(text, static_cast<std::size_t>(length)).c_str(), Native(target)) == 0)
            return true;
        // A memory card's file system knows no links.
        return errno == EPERM && LeadsToFile(source) ? CopyFile(source, target) : Fail();
    }

    bool MakeFolder(const std::string& path, mode_t mode, ExistingFolder existing)
    {
        struct stat facts {
        };
        if (mkdir(Native(path), mode | 0700) == 0)
            return true;
        return (errno == EEXIST && existing == ExistingFolder::merge && stat(Native(path), &facts) == 0 &&
                S_ISDIR(facts.st_mode)) ||
               Fail();
    }

    bool CopyFolder(const std::string& source, const std::string& target, const struct stat& facts,
                    ExistingFolder existing)
    {
        if (IsInside(target, source))
            return Fail(EINVAL) || log.Failed(source);
        const DirHandle folder = OpenFolder(AT_FDCWD, source, O_NOFOLLOW);
        if (!folder || !MakeFolder(target, facts.st_mode & 0777, existing))
            return log.Failed(source);
        bool all = true;
        while (const dirent* entry = NextEntry(folder.get())) {
            const std::string from = Join(source, entry->d_name);
            struct stat inner {
            };
            if (rules.filesOnly && lstat(Native(from), &inner) == 0 && S_ISDIR(inner.st_mode))
                continue;
            all = Copy(from, Join(target, entry->d_name), rules.existing) && all;
            if (log.IsCancelled())
                return Fail(ECANCELED);
        }
        return all;
    }

    const CopyRules& rules;
    COperationLog& log;
};

void SyncFileSystem(const std::string& path)
{
    const CHandle folder(open(ParentOf(path).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder.IsOpen())
        (void)syncfs(folder.Get());
}

bool MoveByCopy(const std::string& source, const std::string& target, COperationLog& log)
{
    if (IsThere(target))
        return Fail(EEXIST);
    log.Measure(source);
    const CopyRules rules{false, LinkCopy::verbatim, ExistingFolder::fail, Durability::later};
    if (CopyTree(source, target, rules, &log)) {
        SyncFileSystem(target);
        return RemoveTree(AT_FDCWD, source, &log);
    }
    const int reason = LastFailure();
    (void)RemoveTree(AT_FDCWD, target);
    return Fail(reason);
}

}  // namespace

bool IsInside(const std::string& target, const std::string& folder)
{
    CLinuxFileSystem files;
    const std::optional<std::string> place = files.ResolveLink(ParentOf(target));
    const std::optional<std::string> source = files.ResolveLink(folder);
    return place && source && (*place == *source || IsBelow(*place, *source));
}

bool IsSameEntry(const std::string& left, const std::string& right)
{
    struct stat one {
    };
    struct stat other {
    };
    return NameOf(left) == NameOf(right) && IsThere(left) && stat(ParentOf(left).c_str(), &one) == 0 &&
           stat(ParentOf(right).c_str(), &other) == 0 && one.st_dev == other.st_dev &&
           one.st_ino == other.st_ino;
}

bool CopyTree(const std::string& source, const std::string& target, const CopyRules& rules,
              COperationLog* log)
{
    COperationLog own;
    return CTreeCopy(rules, log ? *log : own).Copy(source, target, rules.existing);
}

bool MoveTree(const std::string& source, const std::string& target, COperationLog* log)
{
    COperationLog own;
    return RenameNoReplace(AT_FDCWD, source, AT_FDCWD, target) ||
           (LastFailure() == EXDEV && MoveByCopy(source, target, log ? *log : own));
}

}  // namespace platform_linux
