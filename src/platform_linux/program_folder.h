// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The program folder: where the program's own files lie (skin, samples, help, INI files).
#pragma once

#include <string>

namespace platform_linux
{

// $KELVO_PROGRAM_FOLDER when set, else "share/kelvo" in the nearest folder above the running program that has
// one: that is PREFIX/share/kelvo for an installed program and the build folder's own for one that is not.
// Absolute, without a trailing separator.
std::string FindProgramFolder();

}  // namespace platform_linux
