// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/program_library.h"

#include "platform/services.h"
#include "platform/utility.h"

namespace sound
{

std::string ProgramFile(const std::string& name)
{
    return platform::Os().utility->ql_GetModulePath() + "/" + name;
}

std::unique_ptr<platform::CLibrary> LoadProgramLibrary(const std::string& name)
{
    platform::CLibraries* const libraries = platform::Os().libraries;
    return libraries ? libraries->LoadLibrary(ProgramFile(name)) : nullptr;
}

}  // namespace sound
