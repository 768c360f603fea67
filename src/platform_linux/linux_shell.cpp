// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/linux_shell.h"

#include "platform_linux/base_folders.h"
#include "platform_linux/failure.h"
#include "platform_linux/file_operations.h"
#include "platform_linux/file_steps.h"
#include "platform_linux/launch.h"
#include "platform_linux/paths.h"
#include "platform_linux/trash.h"
#include "platform_linux/tree_removal.h"
#include "platform_linux/volumes.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform_linux
{

namespace
{

std::string PathOf(platform::KnownFolder folder)
{
    switch (folder) {
    case platform::KnownFolder::localAppData:
        return DataFolder();
    case platform::KnownFolder::documents:
        return DocumentsFolder();
    case platform::KnownFolder::commonAppData:
        return CommonDataFolder();
    case platform::KnownFolder::home:
        return HomeFolder();
    case platform::KnownFolder::windows:
        break;
    }
    return {};
}

bool OperateOn(const std::string& source, const platform::FileOperationRequest& request)
{
    const std::string name(NameOf(source));
    if (name.empty() || name == "." || name == "..")
        return Fail(EINVAL);
    switch (request.operation) {
    case platform::FileOperation::copy:
        return CopyTree(source, Join(request.target, name), {.filesOnly = request.filesOnly});
    case platform::FileOperation::move:
        return MoveTree(source, Join(request.target, name));
    case platform::FileOperation::rename:
        return MoveTree(source, request.target);
    case platform::FileOperation::remove:
        return RemoveTree(AT_FDCWD, source);
    case platform::FileOperation::removeEmpty:
        return rmdir(Native(source)) == 0 || Fail();
    case platform::FileOperation::trash:
        return MoveToTrash(source);
    case platform::FileOperation::restore:
        return RestoreFromTrash(source, request.target);
    }
    return false;
}

}  // namespace

std::optional<std::string> CLinuxShell::GetFolderPath(platform::KnownFolder folder, bool create)
{
    const std::string path = PathOf(folder);
    if (path.empty() || (create && !MakeFolders(path)))
        return std::nullopt;
    struct stat facts {
    };
    return stat(Native(path), &facts) == 0 && S_ISDIR(facts.st_mode) ? std::optional(path) : std::nullopt;
}

bool CLinuxShell::SHFileOperation(const platform::FileOperationRequest& request)
{
    bool all = true;
    for (std::string source : request.sources) {
        // "link/" would name what the link leads to.
        while (source.size() > 1 && source.back() == '/')
            source.pop_back();
        all = OperateOn(source, request) && all;
    }
    return all;
}

platform::FileStepResult CLinuxShell::DoFileStep(const platform::FileStep& step)
{
    return DoStep(step);
}

std::optional<platform::EntryFacts> CLinuxShell::FindEntry(const std::string& path)
{
    return EntryAt(path);
}

bool CLinuxShell::WinExec(const std::string& command)
{
    return Launch(SplitCommand(command));
}

bool CLinuxShell::StartProgram(const std::vector<std::string>& words)
{
    return Launch(words);
}

bool CLinuxShell::ShellExecute(const std::string& path)
{
    // A name that begins with "-" must not be taken for an option.
    return Launch({"xdg-open", path.starts_with('-') ? "./" + path : path});
}

std::vector<platform::Volume> CLinuxShell::Volumes()
{
    return MountedVolumes();
}

}  // namespace platform_linux
