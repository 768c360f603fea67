// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CDynamicLibraries: "NAME.dll" (in any case) is NAME.so, looked for in the folder given, then in the folder
// that KELVO_MODULE_FOLDER names, then in ../lib/kelvo as seen from the running program.
#pragma once

#include "platform/libraries.h"

namespace platform_linux
{

class CDynamicLibraries : public platform::CLibraries
{
public:
    std::unique_ptr<platform::CLibrary> LoadLibrary(const std::string& path) override;
};

}  // namespace platform_linux
