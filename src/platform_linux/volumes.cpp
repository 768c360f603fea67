// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/volumes.h"

#include "platform_linux/paths.h"

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <fstream>
#include <map>
#include <sstream>
#include <sys/stat.h>

namespace platform_linux
{

namespace
{

bool IsOctal(char c)
{
    return c >= '0' && c <= '7';
}

std::string DecodeOctal(std::string_view text)
{
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\\' && i + 3 < text.size() && IsOctal(text[i + 1]) && IsOctal(text[i + 2]) &&
            IsOctal(text[i + 3])) {
            result +=
                static_cast<char>((text[i + 1] - '0') * 64 + (text[i + 2] - '0') * 8 + (text[i + 3] - '0'));
            i += 3;
        } else {
            result += text[i];
        }
    }
    return result;
}

bool IsAtOrBelow(std::string_view path, std::string_view folder)
{
    return path == folder || IsBelow(path, folder);
}

bool IsUserMount(std::string_view mountPoint)
{
    return IsBelow(mountPoint, "/media") || IsBelow(mountPoint, "/run/media") || IsBelow(mountPoint, "/mnt");
}

template <std::size_t N> bool IsOneOf(std::string_view text, const std::array<std::string_view, N>& all)
{
    return std::find(all.begin(), all.end(), text) != all.end();
}

bool ReadsOne(const std::string& path)
{
    std::ifstream file(path);
    return file.get() == '1';
}

}  // namespace

std::vector<MountEntry> ParseMountTable(std::string_view table)
{
    std::vector<MountEntry> entries;
    std::istringstream lines{std::string(table)};
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        std::string skipped;
        MountEntry entry;
        words >> skipped >> skipped >> entry.device >> skipped >> entry.mountPoint;
        while (words >> skipped && skipped != "-") {
        }
        if (!(words >> entry.type >> entry.source))
            continue;
        entry.mountPoint = DecodeOctal(entry.mountPoint);
        entry.source = DecodeOctal(entry.source);
        entries.push_back(std::move(entry));
    }
    return entries;
}

bool IsRemovable(const MountEntry& entry)
{
    const std::string device = "/sys/dev/block/" + entry.device;
    return IsBelow(entry.mountPoint, "/media") || IsBelow(entry.mountPoint, "/run/media") ||
           ReadsOne(device + "/removable") || ReadsOne(device + "/../removable");
}

bool IsSystemPlace(std::string_view mountPoint)
{
    static constexpr std::array<std::string_view, 8> kSystemPlaces = {"/boot", "/efi", "/proc", "/sys",
                                                                      "/dev",  "/run", "/snap", "/var/lib"};
    return std::any_of(kSystemPlaces.begin(), kSystemPlaces.end(),
                       [&](auto place) { return IsAtOrBelow(mountPoint, place); });
}

bool HoldsFiles(const MountEntry& entry)
{
    static constexpr std::array<std::string_view, 13> kTypesWithoutDisk = {
        "nfs",  "nfs4", "cifs", "smb3",     "9p",      "virtiofs",  "vboxsf",
        "ceph", "afs",  "zfs",  "ecryptfs", "fuseblk", "fuse.sshfs"};
    if (entry.mountPoint == "/" || IsUserMount(entry.mountPoint))
        return entry.type != "squashfs" && entry.type != "autofs";
    if (IsSystemPlace(entry.mountPoint) || entry.type == "squashfs")
        return false;
    return entry.source.starts_with("/dev/") || IsOneOf(entry.type, kTypesWithoutDisk);
}

std::vector<MountEntry> ReadMountTable()
{
    std::ifstream file("/proc/self/mountinfo");
    std::ostringstream table;
    table << file.rdbuf();
    return ParseMountTable(table.str());
}

std::vector<platform::Volume> MountedVolumes()
{
    std::map<std::string, platform::Volume> found;
    for (const MountEntry& entry : ReadMountTable()) {
        // Containers mount single files. A share is always a folder, and asking one that is gone would hang.
        struct stat facts {
        };
        const bool isDisk = entry.source.starts_with("/dev/");
        if (!HoldsFiles(entry) ||
            (isDisk && (stat(Native(entry.mountPoint), &facts) != 0 || !S_ISDIR(facts.st_mode))))
            continue;
        const std::string_view name = NameOf(entry.mountPoint);
        found[entry.mountPoint] = {entry.mountPoint, name.empty() ? "/" : std::string(name),
                                   IsRemovable(entry)};
    }
    std::vector<platform::Volume> volumes;
    for (auto& [mountPoint, volume] : found)
        volumes.push_back(std::move(volume));
    return volumes;
}

bool IsMountPoint(const std::string& folder)
{
    struct statx facts {
    };
    return statx(AT_FDCWD, Native(folder), 0, STATX_TYPE, &facts) == 0 &&
           (facts.stx_attributes & STATX_ATTR_MOUNT_ROOT) != 0;
}

std::string MountPointOf(std::string path)
{
    while (path != "/" && path != "." && !IsMountPoint(path))
        path = ParentOf(path);
    return path;
}

}  // namespace platform_linux
