// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/tree_removal.h"

#include "platform_linux/failure.h"
#include "platform_linux/folder_reader.h"
#include "platform_linux/paths.h"

#include <fcntl.h>
#include <unistd.h>

namespace platform_linux
{

namespace
{

// `path` is for people: what the entry is called when it cannot be removed.
bool Remove(int parent, const std::string& name, const std::string& path, COperationLog& log)
{
    if (!log.Advance())
        return false;
    if (unlinkat(parent, Native(name), 0) == 0)
        return true;
    if (errno != EISDIR && errno != EPERM)
        return Fail() || log.Failed(path);
    const DirHandle folder = OpenFolder(parent, name, O_NOFOLLOW);
    if (!folder)
        return log.Failed(path);
    bool all = true;
    while (const dirent* entry = NextEntry(folder.get())) {
        all = Remove(dirfd(folder.get()), entry->d_name, Join(path, entry->d_name), log) && all;
        if (log.IsCancelled())
            return Fail(ECANCELED);
    }
    // A folder that is not empty for a reason already told needs no second word.
    return all && (unlinkat(parent, Native(name), AT_REMOVEDIR) == 0 || Fail() || log.Failed(path));
}

}  // namespace

bool RemoveTree(int parent, const std::string& name, COperationLog* log)
{
    COperationLog own;
    return Remove(parent, name, name, log ? *log : own);
}

}  // namespace platform_linux
