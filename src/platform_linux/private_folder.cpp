// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/private_folder.h"

#include "platform_linux/failure.h"
#include "platform_linux/paths.h"

#include <cstdlib>
#include <sys/stat.h>
#include <unistd.h>

namespace platform_linux
{

namespace
{

constexpr mode_t kOthersMayWrite = 022;
constexpr mode_t kOthersMayAnything = 077;

bool IsOwnFolder(const std::string& path, mode_t forbidden)
{
    struct stat facts {
    };
    return lstat(Native(path), &facts) == 0 && S_ISDIR(facts.st_mode) && facts.st_uid == geteuid() &&
           (facts.st_mode & forbidden) == 0;
}

bool MakePrivate(const std::string& path)
{
    if (mkdir(Native(path), 0700) != 0 && errno != EEXIST)
        return Fail();
    return IsOwnFolder(path, kOthersMayAnything) || Fail(EACCES);
}

}  // namespace

std::string PrivateRuntimeFolder()
{
    const char* runtime = std::getenv("XDG_RUNTIME_DIR");
    if (runtime && *runtime == '/' && IsOwnFolder(runtime, kOthersMayWrite)) {
        std::string folder = Join(runtime, "kelvo");
        if (MakePrivate(folder))
            return folder;
    }
    // In memory where that is offered: names there come and go many times a second.
    for (const char* parent : {"/dev/shm", "/tmp"}) {
        std::string folder = parent + ("/kelvo-" + std::to_string(geteuid()));
        if (MakePrivate(folder))
            return folder;
    }
    return {};
}

}  // namespace platform_linux
