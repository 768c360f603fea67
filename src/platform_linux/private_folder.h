// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Folders that nobody but this user can look into or plant files in.
#pragma once

#include <string>

namespace platform_linux
{

// The folder for this user's run-time files, made when missing: $XDG_RUNTIME_DIR/kelvo where that is this
// user's own folder, else kelvo-UID in /dev/shm or in /tmp. Empty when there is none that is ours alone, for
// instance because somebody else made them first.
std::string PrivateRuntimeFolder();

}  // namespace platform_linux
