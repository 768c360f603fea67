// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/port_list.h"
#include "cli/commands.h"
#include "handset/record_file.h"
#include "platform_linux/handset_program.h"
#include "platform_linux/linux_serial_ports.h"
#include "platform_linux/services.h"
#include "suite/camera/msd_module.h"
#include "suite/handset/handset_library.h"
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
    platform_linux::CLinuxSerialPorts serialPorts;
    platform::Os().serialPorts = &serialPorts;
    platform_linux::CHandsetProgram handsetProgram;
    const auto deviceOfPort = [&](unsigned port) {
        return handsetProgram.TerminalOf(app::DeviceOfPort(port));
    };
    suite::CHandsetLibrary handset({deviceOfPort, handset::AddHandsetRecord, {}});
    platform::Os().handset = &handset;
    return cli::Run(argc, argv, KELVO_VERSION);
}
