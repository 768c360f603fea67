// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/services.h"

#include "platform/services.h"
#include "platform_linux/base_folders.h"
#include "platform_linux/paths.h"
#include "platform_linux/program_folder.h"

namespace platform_linux
{

namespace
{

std::string RegistryFile()
{
    const std::string folder = ConfigFolder();
    return folder.empty() ? folder : Join(folder, "registry.ini");
}

}  // namespace

CLinuxServices::CLinuxServices()
    : programFolder(FindProgramFolder()), registry(RegistryFile()), profiles(programFolder, ConfigFolder())
{
}

void CLinuxServices::Install()
{
    platform::Services& os = platform::Os();
    os.files = &files;
    os.registry = &registry;
    os.profiles = &profiles;
    os.shell = &shell;
    os.changes = &changes;
    os.libraries = &libraries;
    os.screenSaver = &screenSaver;
}

}  // namespace platform_linux
