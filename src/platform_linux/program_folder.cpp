// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/program_folder.h"

#include "platform_linux/linux_file_system.h"
#include "platform_linux/paths.h"

#include <cstdlib>
#include <sys/stat.h>

namespace platform_linux
{

namespace
{

// From BUILD/src/ui up to BUILD.
constexpr int kMostLevels = 4;

bool IsFolder(const std::string& path)
{
    struct stat facts {
    };
    return stat(Native(path), &facts) == 0 && S_ISDIR(facts.st_mode);
}

}  // namespace

std::string FindProgramFolder()
{
    CLinuxFileSystem files;
    if (const char* set = std::getenv("KELVO_PROGRAM_FOLDER"); set && *set)
        return files.ResolveLink(set).value_or(set);
    const std::string program = FollowLinks("/proc/self/exe").value_or("/usr/bin/kelvo");
    std::string folder = ParentOf(program);
    for (int i = 0; i < kMostLevels && folder != "/"; ++i, folder = ParentOf(folder))
        if (IsFolder(Join(folder, "share/kelvo")))
            return Join(folder, "share/kelvo");
    return Join(ParentOf(ParentOf(program)), "share/kelvo");
}

}  // namespace platform_linux
