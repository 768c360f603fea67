// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CLinuxServices: owns the services of the operating system for a program.
//
// A program makes one at the start of main and installs it; it must outlive every use of platform::Os(). The
// suite's libraries and the messages of the desktop install themselves.
#pragma once

#include "platform_linux/dynamic_libraries.h"
#include "platform_linux/linux_change_notifications.h"
#include "platform_linux/linux_file_system.h"
#include "platform_linux/linux_profiles.h"
#include "platform_linux/linux_registry.h"
#include "platform_linux/linux_screen_saver.h"
#include "platform_linux/linux_shell.h"

namespace platform_linux
{

class CLinuxServices
{
public:
    // The folders of the environment as it is now.
    CLinuxServices();
    // Puts the services into platform::Os().
    void Install();

    // See program_folder.h.
    const std::string& ProgramFolder() const { return programFolder; }

private:
    std::string programFolder;
    CLinuxFileSystem files;
    CLinuxRegistry registry;
    CLinuxProfiles profiles;
    CLinuxShell shell;
    CLinuxChangeNotifications changes;
    CDynamicLibraries libraries;
    CLinuxScreenSaver screenSaver;
};

}  // namespace platform_linux
