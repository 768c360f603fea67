// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/presence.h"

#include "platform_linux/failure.h"
#include "platform_linux/folder_reader.h"
#include "platform_linux/paths.h"
#include "platform_linux/volumes.h"

#include <cstdlib>
#include <fcntl.h>
#include <mntent.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform_linux
{

namespace
{

bool IsEmptyFolder(const std::string& folder)
{
    const DirHandle opened = OpenFolder(AT_FDCWD, folder, 0);
    return opened && !NextEntry(opened.get());
}

// The first `levels` parts of `path` below `place`, or nothing when it has fewer.
std::string VolumeFolder(const std::string& path, const std::string& place, int levels)
{
    if (!IsBelow(path, place))
        return {};
    std::size_t end = place.size();
    for (int i = 0; i < levels; ++i) {
        if (end == std::string::npos || end + 1 >= path.size())
            return {};
        end = path.find('/', end + 1);
    }
    return path.substr(0, end);
}

bool LooksUnmounted(const std::string& volume)
{
    struct stat facts {
    };
    if (stat(Native(volume), &facts) != 0)
        return true;
    return !IsMountPoint(volume) && IsEmptyFolder(volume);
}

bool IsOnUnmountedVolume(const std::string& path)
{
    struct Place {
        std::string folder;
        int levels;
    };
    const char* runtime = std::getenv("XDG_RUNTIME_DIR");
    for (const Place& place :
         {Place{"/media", 2}, {"/run/media", 2}, {"/mnt", 1}, {runtime ? Join(runtime, "gvfs") : "", 1}}) {
        const std::string volume = place.folder.empty() ? "" : VolumeFolder(path, place.folder, place.levels);
        if (!volume.empty() && LooksUnmounted(volume))
            return true;
    }
    return false;
}

bool IsBelowUnmountedEntry(const std::string& path)
{
    FILE* table = setmntent("/etc/fstab", "re");
    if (!table)
        return false;
    bool found = false;
    mntent entry{};
    char buffer[8192];
    while (!found && getmntent_r(table, &entry, buffer, sizeof buffer)) {
        const std::string folder = entry.mnt_dir;
        found = folder.size() > 1 && (path == folder || IsBelow(path, folder)) && !IsMountPoint(folder) &&
                LooksUnmounted(folder);
    }
    endmntent(table);
    return found;
}

std::optional<std::string> Absolute(const std::string& path)
{
    if (path.starts_with('/'))
        return path;
    char* folder = getcwd(nullptr, 0);
    if (!folder)
        return std::nullopt;
    const std::string result = Join(folder, path);
    std::free(folder);
    return result;
}

}  // namespace

platform::Presence PresenceOf(const std::string& path)
{
    struct stat facts {
    };
    if (stat(Native(path), &facts) == 0)
        return platform::Presence::present;
    Fail();
    if (errno != ENOENT && errno != ENOTDIR)
        return platform::Presence::unreachable;
    const std::optional<std::string> absolute = Absolute(path);
    const std::optional<std::string> end = absolute ? FollowAllLinks(*absolute) : std::nullopt;
    if (!end || IsOnUnmountedVolume(*end) || IsBelowUnmountedEntry(*end))
        return platform::Presence::unreachable;
    return platform::Presence::missing;
}

}  // namespace platform_linux
