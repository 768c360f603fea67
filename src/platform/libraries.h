// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CLibraries: shared libraries that are loaded by name while the program runs.
#pragma once

#include <memory>
#include <string>

namespace platform
{

// A loaded library. It stays loaded for the life of the process: not every library survives being unloaded.
class CLibrary
{
public:
    virtual ~CLibrary() = default;
    // The address of an entry point, or null.
    virtual void* GetProcAddress(const std::string& name) = 0;
};

class CLibraries
{
public:
    virtual ~CLibraries() = default;
    // `path` is the program folder with the library's name as the suite knows it, "…/qrxKelvo.dll". Null when
    // there is no such library or it cannot be loaded.
    virtual std::unique_ptr<CLibrary> LoadLibrary(const std::string& path) = 0;
};

}  // namespace platform
