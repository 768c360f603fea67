// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/folder_reader.h"

#include "platform_linux/failure.h"
#include "platform_linux/handle.h"
#include "platform_linux/paths.h"

#include <fcntl.h>
#include <string_view>
#include <sys/stat.h>

namespace platform_linux
{

namespace
{

platform::FolderEntry Describe(int folder, const dirent& found)
{
    platform::FolderEntry entry;
    entry.name = found.d_name;
    unsigned char type = found.d_type;
    struct stat facts {
    };
    if (type == DT_UNKNOWN && fstatat(folder, found.d_name, &facts, AT_SYMLINK_NOFOLLOW) == 0)
        type = static_cast<unsigned char>(IFTODT(facts.st_mode));
    entry.isLink = type == DT_LNK;
    if (entry.isLink && fstatat(folder, found.d_name, &facts, 0) == 0)
        type = static_cast<unsigned char>(IFTODT(facts.st_mode));
    entry.isFolder = type == DT_DIR;
    entry.isRegular = type == DT_REG;
    return entry;
}

}  // namespace

DirHandle OpenFolder(int parent, const std::string& name, int flags)
{
    CHandle handle(openat(parent, Native(name), O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NONBLOCK | flags));
    DirHandle folder(handle.IsOpen() ? fdopendir(handle.Get()) : nullptr);
    if (folder)
        (void)handle.Release();
    else
        Fail();
    return folder;
}

const dirent* NextEntry(DIR* folder)
{
    for (;;) {
        errno = 0;
        const dirent* found = readdir(folder);
        if (!found) {
            if (errno != 0)
                Fail();
            return nullptr;
        }
        const std::string_view name = found->d_name;
        if (name != "." && name != "..")
            return found;
    }
}

bool CLinuxFolderReader::Read(std::size_t most, std::vector<platform::FolderEntry>& entries)
{
    for (std::size_t i = 0; i < most; ++i) {
        const dirent* found = NextEntry(folder.get());
        if (!found)
            return false;
        entries.push_back(Describe(dirfd(folder.get()), *found));
    }
    return true;
}

}  // namespace platform_linux
