// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The sibling programs of the suite that the main frame starts. They lie in the program folder; where one
// does not, nothing is written for it and nothing is started.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace app
{

enum class StartedProgram {
    started,
    noPictures,  // nothing that it could work on
    missing,     // not in the program folder, or it does not start
    notWritten,  // what it reads could not be written; CFileSystem::LastError says why
};

// Writes the pictures among `selected` to "files.lst" and starts the print program on it.
StartedProgram StartPrinting(const std::string& programFolder, const std::vector<std::string>& selected);

// Sets the video trimmer to its plain mode and starts it with the main window's handle.
StartedProgram StartVideoTrim(const std::string& programFolder, std::uint64_t windowHandle);

// Whether the slide show refuses these files: it shows no "asf", "avi" and "mp4".
bool HasClips(const std::vector<std::string>& selected);

// Whether a failed write of the trimmer's settings means that it must not be started, by the system's error
// number: 3 (path not found), 5 (access denied), 21 (device not ready) and 82 (cannot make).
bool IsFatalWriteError(int error);

}  // namespace app
