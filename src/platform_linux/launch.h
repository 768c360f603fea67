// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Starting other programs.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace platform_linux
{

// The words of a command line: divided by blanks, with double quotes around what belongs together. No other
// character means anything.
std::vector<std::string> SplitCommand(std::string_view command);

// Starts a program in a session of its own, with /dev/null for its input and output; it becomes a child of
// the system, not of this process. A name without "/" is looked for in $PATH. False when it cannot be run.
bool Launch(std::vector<std::string> words);

}  // namespace platform_linux
