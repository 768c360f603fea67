// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/image/module_loader.h"

#include <climits>
#include <cstdlib>
#include <dlfcn.h>
#include <unistd.h>
#include <vector>

namespace suite
{
namespace
{

std::string ProgramFolder()
{
    char path[PATH_MAX];
    const ssize_t length = readlink("/proc/self/exe", path, sizeof path);
    const std::string program(path, length > 0 ? static_cast<std::size_t>(length) : 0);
    return program.substr(0, program.find_last_of('/') + 1);
}

std::vector<std::string> ModuleFolders()
{
    std::vector<std::string> folders;
    if (const char* const chosen = std::getenv("KELVO_MODULE_FOLDER"); chosen != nullptr && *chosen == '/')
        folders.push_back(std::string(chosen) + '/');
    const std::string program = ProgramFolder();
    if (!program.empty()) {
        folders.push_back(program);
        folders.push_back(program + "../lib/kelvo/");
    }
    return folders;
}

}  // namespace

std::unique_ptr<platform::CImageSource> CModuleLoader::Open(CInputFile file, PictureKind kind)
{
    std::call_once(loaded, [this] { Load(); });
    if (open == nullptr)
        return nullptr;
    return std::unique_ptr<platform::CImageSource>(open(file.Release(), kind));
}

void CModuleLoader::Load()
{
    for (const std::string& folder : ModuleFolders()) {
        // Never unloaded: the libraries behind it do not all survive that.
        void* const module = dlopen((folder + name).c_str(), RTLD_NOW | RTLD_LOCAL);
        if (module == nullptr)
            continue;
        open = reinterpret_cast<OpenPictureFunction*>(dlsym(module, kOpenPictureName));
        if (open != nullptr)
            return;
    }
}

}  // namespace suite
