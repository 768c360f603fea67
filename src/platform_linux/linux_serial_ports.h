// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CLinuxSerialPorts: the serial lines that the kernel shows below /sys/class/tty.
//
// A built-in line counts when there is a chip behind it. An adapter is a ttyUSB or ttyACM line; its name is
// what the device at the other end of the plug says (or Bluetooth's rfcomm number), its device the link below
// /dev/serial/by-id where there is one, since ttyUSB numbers move.
#pragma once

#include "platform/serial_ports.h"

namespace platform_linux
{

class CLinuxSerialPorts final : public platform::CSerialPorts
{
public:
    // `root` stands in for "/" in tests.
    explicit CLinuxSerialPorts(std::string root = {}) : base(std::move(root)) {}
    std::vector<platform::SerialPort> Ports() override;

private:
    std::string base;
};

}  // namespace platform_linux
