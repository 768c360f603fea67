// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/commands.h"
#include "platform_linux/services.h"
#include "suite/camera/msd_module.h"
#include "suite/image/image_library.h"
#include "suite/utility/utility_library.h"

int main(int argc, char** argv)
{
    platform_linux::CLinuxServices services;
    services.Install();
    suite::CUtilityLibrary utility(services.ProgramFolder());
    suite::CSuiteImageLibrary images;
    suite::CMountedStore camera;
    platform::Os().utility = &utility;
    platform::Os().images = &images;
    platform::Os().cameraStore = &camera;
    return cli::Run(argc, argv, KELVO_VERSION);
}
