// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CTempFolder: the folder of this process for files that need not outlive it.
//
// Made on first use below the private run-time folder, or with a random name in /tmp where there is none;
// gone with the object. A file lock in it tells that its process lives: the next process to make one removes
// the folders of those that were killed.
#pragma once

#include "platform_linux/handle.h"

#include <mutex>
#include <string>
#include <sys/types.h>

namespace platform_linux
{

class CTempFolder
{
public:
    CTempFolder() = default;
    ~CTempFolder();
    CTempFolder(const CTempFolder&) = delete;
    CTempFolder& operator=(const CTempFolder&) = delete;

    // Without a trailing separator; empty when none can be made. Any thread.
    std::string Path();

private:
    std::mutex mutex;
    std::string path;
    CHandle alive;
    pid_t owner = 0;  // a forked child must not remove its parent's folder
};

}  // namespace platform_linux
