// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/linux_serial_ports.h"
#include "support/temp_folder.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

namespace
{

namespace fs = std::filesystem;

void WriteLine(const fs::path& file, const std::string& text)
{
    fs::create_directories(file.parent_path());
    std::ofstream(file) << text << '\n';
}

}  // namespace

TEST(SerialPorts, LinesWithAChipComeFirstAndAdaptersGoByWhatTheySayTheyAre)
{
    const support::CTempFolder folder;
    const std::string root = folder.Path();
    const fs::path tty = root + "/sys/class/tty";
    for (const auto& [line, type] :
         {std::pair{"ttyS0", "4"}, {"ttyS10", "16"}, {"ttyS2", "16"}, {"ttyS3", "0"}})
        WriteLine(tty / line / "type", type);
    for (const char* other : {"tty0", "ttySx", "console", "ttyUSB"})
        fs::create_directories(tty / other);
    const fs::path plug = root + "/sys/devices/usb1/1-2";
    WriteLine(plug / "product", "Handset Cable");
    WriteLine(plug / "manufacturer", "Halden");
    fs::create_directories(plug / "1-2:1.0/ttyUSB1");
    fs::create_directories(tty / "ttyUSB1");
    fs::create_directory_symlink(plug / "1-2:1.0/ttyUSB1", tty / "ttyUSB1/device");
    fs::create_directories(tty / "ttyACM0");
    fs::create_directories(root + "/dev/serial/by-id");
    fs::create_symlink("../../ttyUSB1", root + "/dev/serial/by-id/usb-Halden");

    const auto ports = platform_linux::CLinuxSerialPorts(root).Ports();

    EXPECT_THAT(ports,
                testing::ElementsAre(
                    platform::SerialPort{"/dev/ttyS0", "", 0}, platform::SerialPort{"/dev/ttyS2", "", 2},
                    platform::SerialPort{"/dev/ttyS10", "", 10},
                    platform::SerialPort{"/dev/serial/by-id/usb-Halden", "Halden Handset Cable", -1},
                    platform::SerialPort{"/dev/ttyACM0", "", -1}));
    EXPECT_TRUE(platform_linux::CLinuxSerialPorts(folder.Path("nothing")).Ports().empty());
}
