// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The window on real files, through the real shell or one made from it.
#pragma once

#include "platform_linux/linux_file_system.h"
#include "platform_linux/linux_shell.h"
#include "window_test_base.h"

namespace support
{

template <typename Shell = platform_linux::CLinuxShell> class RealFilesTest : public WindowTest
{
protected:
    RealFilesTest() : realGuard(Real(realShell, realFiles)) {}
    ~RealFilesTest() override { frame.reset(); }

    Shell realShell;
    platform_linux::CLinuxFileSystem realFiles;
    CServicesGuard realGuard;

private:
    static platform::Services Real(platform::CShell& shell, platform::CFileSystem& files)
    {
        platform::Services all = platform::Os();
        all.shell = &shell;
        all.files = &files;
        return all;
    }
};

}  // namespace support
