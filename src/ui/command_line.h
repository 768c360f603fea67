// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The words behind the program's name.
#pragma once

#include "platform/types.h"

#include <string>
#include <vector>

namespace ui
{

enum class Task { run, shot, version, help, refuse };

struct CommandLine {
    Task task = Task::run;
    std::string folder;    // absolute; empty when none was asked for
    std::string fileName;  // to be selected in it
    std::string shotFile;
    platform::Extent shotSize{1280, 800};
    std::string suiteWords;  // "/load" and its like, for CKelvoApp
    std::string error;       // why the words are refused
};

// A word that begins with "/" is a path when it names something that is there; else it may be one of the
// suite's switches. `currentFolder` is where relative paths begin.
CommandLine ReadCommandLine(const std::vector<std::string>& words, const std::string& currentFolder);

std::string UsageText();

}  // namespace ui
