// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The mounted file systems as drives: their roots and what kind each is.
#pragma once

#include "platform/change_notifications.h"
#include "platform_linux/volumes.h"

namespace platform_linux
{

// The mount points of file systems that hold files, and of RAM disks outside the system's own places, in
// order, without repetition.
std::vector<std::string> DriveRoots(const std::vector<MountEntry>& table);
// noRoot when nothing is mounted there.
platform::DriveType DriveTypeOf(const std::string& root, const std::vector<MountEntry>& table);

// The mount point at or above an absolute path, by its text: nothing is asked of the file systems, which may
// never answer. Empty when the table has none.
std::string MountPointIn(const std::vector<MountEntry>& table, const std::string& path);

}  // namespace platform_linux
