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

bool RemoveTree(int parent, const std::string& name)
{
    if (unlinkat(parent, Native(name), 0) == 0)
        return true;
    if (errno != EISDIR && errno != EPERM)
        return Fail();
    const DirHandle folder = OpenFolder(parent, name, O_NOFOLLOW);
    if (!folder)
        return false;
    bool all = true;
    while (const dirent* entry = NextEntry(folder.get()))
        all = RemoveTree(dirfd(folder.get()), entry->d_name) && all;
    return (unlinkat(parent, Native(name), AT_REMOVEDIR) == 0 || Fail()) && all;
}

}  // namespace platform_linux
