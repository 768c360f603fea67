// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/drives.h"

#include "platform_linux/paths.h"

#include <algorithm>
#include <array>
#include <set>

namespace platform_linux
{

namespace
{

using platform::DriveType;

template <std::size_t N> bool IsOneOf(std::string_view text, const std::array<std::string_view, N>& all)
{
    return std::find(all.begin(), all.end(), text) != all.end();
}

DriveType TypeOf(const MountEntry& entry)
{
    static constexpr std::array<std::string_view, 2> kRamDisks = {"tmpfs", "ramfs"};
    static constexpr std::array<std::string_view, 11> kShares = {
        "nfs",  "nfs4", "cifs",       "smb3",           "9p", "virtiofs", "vboxsf",
        "ceph", "afs",  "fuse.sshfs", "fuse.gvfsd-fuse"};
    if (IsOneOf(entry.type, kRamDisks))
        return DriveType::ramDisk;
    if (IsOneOf(entry.type, kShares))
        return DriveType::remote;
    if (entry.type == "iso9660" || entry.source.starts_with("/dev/sr"))
        return DriveType::optical;
    return IsRemovable(entry) ? DriveType::removable : DriveType::fixed;
}

}  // namespace

std::vector<std::string> DriveRoots(const std::vector<MountEntry>& table)
{
    std::set<std::string> roots;
    for (const MountEntry& entry : table) {
        const bool isRamDisk = TypeOf(entry) == DriveType::ramDisk && !IsSystemPlace(entry.mountPoint);
        if (HoldsFiles(entry) || isRamDisk)
            roots.insert(entry.mountPoint);
    }
    return {roots.begin(), roots.end()};
}

platform::DriveType DriveTypeOf(const std::string& root, const std::vector<MountEntry>& table)
{
    // The one that was mounted last hides the others.
    const auto found = std::find_if(table.rbegin(), table.rend(),
                                    [&](const MountEntry& entry) { return entry.mountPoint == root; });
    return found == table.rend() ? DriveType::noRoot : TypeOf(*found);
}

std::string MountPointIn(const std::vector<MountEntry>& table, const std::string& path)
{
    std::string nearest;
    for (const MountEntry& entry : table) {
        if (entry.mountPoint.size() > nearest.size() &&
            (path == entry.mountPoint || IsBelow(path, entry.mountPoint)))
            nearest = entry.mountPoint;
    }
    return nearest;
}

}  // namespace platform_linux
