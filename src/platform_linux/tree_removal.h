// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Removing files and whole folders without ever leaving them through a link.
#pragma once

#include "platform_linux/operation_log.h"

#include <string>

namespace platform_linux
{

// Removes the file, link or folder `name` of the folder open as `parent` (AT_FDCWD for a path). Goes on past
// what cannot be removed and says false then; stops where the log says so.
bool RemoveTree(int parent, const std::string& name, COperationLog* log = nullptr);

}  // namespace platform_linux
