// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// How the front ends reach what lies in the program's folder: a converter's library, its entry points, files.
#pragma once

#include "platform/libraries.h"

#include <memory>
#include <string>

namespace sound
{

// Null when there is no such library.
std::unique_ptr<platform::CLibrary> LoadProgramLibrary(const std::string& name);

// The path of a file of the program's folder.
std::string ProgramFile(const std::string& name);

// Sets `entry` to the entry point of that name; false when there is none.
template <typename Function> bool FindEntry(platform::CLibrary& library, const char* name, Function*& entry)
{
    entry = reinterpret_cast<Function*>(library.GetProcAddress(name));
    return entry != nullptr;
}

}  // namespace sound
