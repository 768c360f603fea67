// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CLinuxShell: folders, file operations and programs of a freedesktop.org desktop.
#pragma once

#include "platform/shell.h"

namespace platform_linux
{

class CLinuxShell : public platform::CShell
{
public:
    // There is no folder of the system itself here: `windows` is never to be had.
    std::optional<std::string> GetFolderPath(platform::KnownFolder folder, bool create) override;
    bool SHFileOperation(const platform::FileOperationRequest& request) override;
    platform::FileStepResult DoFileStep(const platform::FileStep& step) override;
    std::optional<platform::EntryFacts> FindEntry(const std::string& path) override;
    bool WinExec(const std::string& command) override;
    bool StartProgram(const std::vector<std::string>& words) override;
    bool ShellExecute(const std::string& path) override;
    std::vector<platform::Volume> Volumes() override;
};

}  // namespace platform_linux
