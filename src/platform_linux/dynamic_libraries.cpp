// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/dynamic_libraries.h"

#include "platform_linux/paths.h"

#include <climits>
#include <cstdlib>
#include <dlfcn.h>
#include <unistd.h>

namespace platform_linux
{

namespace
{

class CDynamicLibrary : public platform::CLibrary
{
public:
    explicit CDynamicLibrary(void* opened) : handle(opened) {}
    void* GetProcAddress(const std::string& name) override { return dlsym(handle, name.c_str()); }

private:
    void* handle;
};

std::string ModuleFolderOfProgram()
{
    char path[PATH_MAX];
    const ssize_t length = readlink("/proc/self/exe", path, sizeof path);
    if (length <= 0)
        return {};
    return Join(ParentOf(std::string(path, static_cast<std::size_t>(length))), "../lib/kelvo");
}

std::string ChosenFolder()
{
    const char* const chosen = std::getenv("KELVO_MODULE_FOLDER");
    return chosen != nullptr && *chosen == '/' ? chosen : std::string();
}

}  // namespace

std::unique_ptr<platform::CLibrary> CDynamicLibraries::LoadLibrary(const std::string& path)
{
    const std::string_view name = NameOf(path);
    const std::string file = std::string(name.substr(0, name.find_last_of('.'))) + ".so";
    for (const std::string& folder : {ParentOf(path), ChosenFolder(), ModuleFolderOfProgram()}) {
        // Without a folder the system's own libraries would be searched.
        if (folder.empty() || folder.front() != '/')
            continue;
        if (void* const handle = dlopen(Join(folder, file).c_str(), RTLD_NOW | RTLD_LOCAL))
            return std::make_unique<CDynamicLibrary>(handle);
    }
    return nullptr;
}

}  // namespace platform_linux
