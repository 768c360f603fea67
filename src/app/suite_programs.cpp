// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/suite_programs.h"

#include "browser/file_names.h"
#include "browser/list_file.h"
#include "browser/media_types.h"
#include "platform/file_system.h"
#include "platform/services.h"
#include "platform/settings_store.h"
#include "platform/shell.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>

namespace app
{

namespace
{

using platform::Os;

bool IsInstalled(const std::string& program)
{
    return Os().files->FindFirstFile(program).has_value();
}

// Blanks divide the words of a command.
std::string Quoted(const std::string& path)
{
    return path.find_first_of(" \t") == std::string::npos ? path : fmt::format("\"{}\"", path);
}

}  // namespace

StartedProgram StartPrinting(const std::string& programFolder, const std::vector<std::string>& selected)
{
    const bool pictures =
        std::ranges::any_of(selected, [](const std::string& file) { return browser::IsPictureFile(file); });
    if (!pictures)
        return StartedProgram::noPictures;
    const std::string program = browser::JoinPath(programFolder, "Inkwell.EXE");
    if (!IsInstalled(program))
        return StartedProgram::missing;
    const std::string list = Os().profiles->WritableFile(browser::JoinPath(programFolder, "files.lst"));
    if (browser::WriteFileList(list, selected) == 0)
        return StartedProgram::notWritten;
    const bool started = Os().shell->WinExec(fmt::format("{} {}", Quoted(program), "/load:1"));
    return started ? StartedProgram::started : StartedProgram::missing;
}

StartedProgram StartVideoTrim(const std::string& programFolder, std::uint64_t windowHandle)
{
    const std::string program = browser::JoinPath(programFolder, "Clipcut.exe");
    if (!IsInstalled(program))
        return StartedProgram::missing;
    const std::string settings = browser::JoinPath(programFolder, "Clipcut.ini");
    if (!Os().profiles->WritePrivateProfileString("mode", "active", "0", settings) &&
        IsFatalWriteError(Os().profiles->GetLastError()))
        return StartedProgram::notWritten;
    const bool started = Os().shell->WinExec(fmt::format("{} {:x}", Quoted(program), windowHandle));
    return started ? StartedProgram::started : StartedProgram::missing;
}

bool HasClips(const std::vector<std::string>& selected)
{
    constexpr std::array<std::string_view, 3> refused{"asf", "avi", "mp4"};
    return std::ranges::any_of(selected, [&refused](const std::string& file) {
        const std::string extension = browser::LowerCase(browser::Extension(file));
        return std::ranges::find(refused, extension) != refused.end();
    });
}

bool IsFatalWriteError(int error)
{
    constexpr std::array fatal{3, 5, 21, 82};
    return std::ranges::find(fatal, error) != fatal.end();
}

}  // namespace app
