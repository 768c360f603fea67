// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Advisory locks on open files.
//
// They belong to the open file description, so that two opens of one file exclude each other within one
// process too, and they end when the last descriptor of it is closed. A lock may be changed from shared to
// exclusive and back.
#pragma once

#include "platform/file_system.h"

namespace platform_linux
{

// Tries until the lock is had or `patienceMilliseconds` are over. True as well where the file system knows no
// locks. An exclusive lock needs a descriptor that may write.
bool LockDescriptor(int fd, platform::LockKind kind, int patienceMilliseconds);

// Whether somebody holds the file exclusively through another open; takes nothing itself.
bool IsLockedElsewhere(int fd);

}  // namespace platform_linux
