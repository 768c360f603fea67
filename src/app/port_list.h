// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What stands behind the port numbers of the option dialog.
//
// A number's device is the one that "Port.ini" names for it in section "Map" (key: the number), else the
// built-in line of that number, counted from 1. An adapter that neither names gets the lowest number that is
// still free; choosing it writes the adapter's lasting name down in "Map", so that the number stays its own.
#pragma once

#include "platform/serial_ports.h"

#include <string>
#include <vector>

namespace app
{

inline constexpr int kMostPorts = 255;

struct PortEntry {
    std::string text;       // "COM 4"
    std::string device;     // what stands behind it; empty for nothing
    std::string name;       // the adapter's name; empty when not known
    bool present = false;   // the device is there now
    bool proposed = false;  // not written in "Map" yet
};

// The 255 ports in order, given the lines of this machine.
std::vector<PortEntry> ListPorts(const std::string& programFolder,
                                 const std::vector<platform::SerialPort>& lines);
// Writes a proposed port's device down; true as well for ports that need nothing written.
bool KeepPort(const std::string& programFolder, const std::vector<PortEntry>& ports, int position);
// The device at a port number, empty for none: the one that the environment names in KELVO_PORT_n, else as
// listed for the lines that are there now. Any thread.
std::string DeviceOfPort(unsigned port);

// Makes the number of that line the handset's, written down as the option dialog does it. False when no
// number stands for the line, or it could not be written.
bool UseLine(const std::string& programFolder, const std::vector<platform::SerialPort>& lines,
             const std::string& device);

}  // namespace app
