// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// File times, and the creation time that Linux keeps but does not let one set.
//
// A creation time is written where the file system offers a place for it: NTFS through FUSE as the attribute
// "system.ntfs_crtime", a Windows share as "user.cifs.creationtime" (both the 64-bit number in native byte
// order), anywhere else as the extended attribute "user.kelvo.creation-time", whose value is the number of
// 100-nanosecond steps since 1601 in decimal digits. It is read from the same place; without one there the
// birth time counts, then the modification time.
#pragma once

#include "platform/file_system.h"

#include <ctime>
#include <optional>
#include <sys/stat.h>

namespace platform_linux
{

platform::FileTime ToFileTime(std::int64_t seconds, std::uint32_t nanoseconds);
timespec ToTimeSpec(platform::FileTime time);

// Sets the modification time. The access time is given along as it is: not every file system in user space
// knows how to leave one out.
bool SetModificationTime(int fd, const timespec& modified);
bool SetModificationTime(const std::string& path, const timespec& modified);

// One statx, and for regular files and folders one read of an attribute.
// The recorded creation time is taken from `known`, an earlier answer, where no change has happened since.
std::optional<platform::FileFacts> ReadFacts(const std::string& path,
                                             const platform::FileFacts* known = nullptr);
bool WriteCreationTime(const std::string& path, platform::FileTime time);
// Gives the open file `to`, on the same file system, the creation time recorded for `from`, if there is one.
void KeepCreationTime(const std::string& from, int to);

}  // namespace platform_linux
