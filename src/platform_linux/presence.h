// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Whether a file is gone, or only its volume.
#pragma once

#include "platform/file_system.h"

namespace platform_linux
{

// A file counts as missing only where its volume is there. Below the places where the desktop mounts volumes
// (/media/USER/NAME, /run/media/USER/NAME, /mnt/NAME, $XDG_RUNTIME_DIR/gvfs/NAME) and the mount points of
// /etc/fstab, a volume folder that is not there, or is empty and no mount point, is taken for a volume that
// is not mounted now.
platform::Presence PresenceOf(const std::string& path);

}  // namespace platform_linux
