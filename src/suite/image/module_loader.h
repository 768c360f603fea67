// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CModuleLoader: finds and loads one picture module on first use.
//
// Looked for in the folder that KELVO_MODULE_FOLDER names, beside the program, and in ../lib/kelvo from
// there. A module that is missing or does not load stays missing for the life of the object. May be used from
// several threads.
#pragma once

#include "suite/image/input_file.h"
#include "suite/image/picture_module.h"

#include <memory>
#include <mutex>
#include <string>

namespace suite
{

class CModuleLoader
{
public:
    explicit CModuleLoader(const char* fileName) : name(fileName) {}
    std::unique_ptr<platform::CImageSource> Open(CInputFile file, PictureKind kind);

private:
    void Load();

    std::string name;
    std::once_flag loaded;
    OpenPictureFunction* open = nullptr;
};

}  // namespace suite
