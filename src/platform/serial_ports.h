// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CSerialPorts: the serial lines of this machine.
#pragma once

#include <string>
#include <vector>

namespace platform
{

struct SerialPort {
    std::string device;      // "/dev/ttyS0", or the lasting name of an adapter where it has one
    std::string name;        // what the adapter says it is, "Halden Handset Cable"; empty for a built-in line
    int builtInNumber = -1;  // n of /dev/ttySn, -1 for an adapter
    bool operator==(const SerialPort&) const = default;
};

class CSerialPorts
{
public:
    virtual ~CSerialPorts() = default;
    // Those that are there now: the built-in ones by number, then the adapters by device. May take a moment;
    // any thread.
    virtual std::vector<SerialPort> Ports() = 0;
};

}  // namespace platform
