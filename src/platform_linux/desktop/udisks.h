// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What UDisks2 says about the mounted file systems.
#pragma once

#include <QDBusMessage>

#include <cstdint>
#include <map>
#include <string>

namespace platform_linux
{

inline constexpr char kUdisks[] = "org.freedesktop.UDisks2";
inline constexpr char kUdisksPath[] = "/org/freedesktop/UDisks2";
inline constexpr char kObjectManager[] = "org.freedesktop.DBus.ObjectManager";

// What is mounted, by mount point, with the flags of platform::DeviceChange for its coming and going.
using MountedFlags = std::map<std::string, std::uint16_t>;

// Reads the answer to GetManagedObjects; what is not of the form told by UDisks2's own description is left
// out.
MountedFlags ReadManagedObjects(const QDBusMessage& answer);

}  // namespace platform_linux
