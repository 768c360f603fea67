// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The desktop's trash, by the freedesktop.org trash specification 1.0: the trash below $XDG_DATA_HOME for
// files of its file system, else the one at the top of the file's own volume.
#pragma once

#include <string>

namespace platform_linux
{

// Moves a file, link or folder to the trash and tells in `place` where it lies there. False, with the file
// where it was, when that cannot be; with ENOTSUP when its volume has no trash and none can be made there.
bool MoveToTrash(const std::string& path, std::string* place = nullptr);
// Moves what lies at `place` in a trash to the free name `path`.
bool RestoreFromTrash(const std::string& place, const std::string& path);

}  // namespace platform_linux
