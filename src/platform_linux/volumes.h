// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The mounted file systems that hold people's files.
#pragma once

#include "platform/shell.h"

#include <string_view>

namespace platform_linux
{

// One line of the kernel's mount table.
struct MountEntry {
    std::string device;  // "8:1"
    std::string mountPoint;
    std::string type;
    std::string source;
};

// Reads the form of /proc/self/mountinfo, octal escapes decoded; lines that are not of that form are left
// out.
std::vector<MountEntry> ParseMountTable(std::string_view table);
// Whether people keep files there: disks, shares and the root, not the kernel's own file systems nor the
// places that belong to the system alone.
bool HoldsFiles(const MountEntry& entry);
// A place that belongs to the system alone, by its path.
bool IsSystemPlace(std::string_view mountPoint);
bool IsRemovable(const MountEntry& entry);
// What is mounted now, in the order of mounting.
std::vector<MountEntry> ReadMountTable();
// In the order of their mount points.
std::vector<platform::Volume> MountedVolumes();

bool IsMountPoint(const std::string& folder);
// The mount point at or above an absolute path without links.
std::string MountPointOf(std::string path);

}  // namespace platform_linux
