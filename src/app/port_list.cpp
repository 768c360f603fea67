// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/port_list.h"

#include "app/settings.h"
#include "browser/file_names.h"
#include "platform/file_system.h"
#include "platform/services.h"
#include "platform/settings_store.h"
#include "platform/utility.h"

#include <algorithm>
#include <cstdlib>

namespace app
{

namespace
{

using platform::Os;
using platform::SerialPort;

std::string PortFile(const std::string& programFolder)
{
    return browser::JoinPath(programFolder, "Port.ini");
}

// Whether both names lead to one device.
bool IsSame(const std::string& mapped, const std::string& device)
{
    return mapped == device || Os().files->ResolveLink(mapped).value_or(mapped) ==
                                   Os().files->ResolveLink(device).value_or(device);
}

void TakeMapped(PortEntry& entry, const std::vector<SerialPort>& lines)
{
    const auto line = std::ranges::find_if(
        lines, [&entry](const SerialPort& candidate) { return IsSame(entry.device, candidate.device); });
    entry.present = line != lines.end() || Os().files->FindFirstFile(entry.device).has_value();
    if (line != lines.end())
        entry.name = line->name;
}

}  // namespace

std::vector<PortEntry> ListPorts(const std::string& programFolder, const std::vector<SerialPort>& lines)
{
    std::vector<PortEntry> ports;
    for (const std::string& text : PortNames()) {
        const auto number = static_cast<int>(ports.size()) + 1;
        PortEntry entry{text,
                        Os().profiles->GetPrivateProfileString("Map", std::to_string(number), "",
                                                               PortFile(programFolder)),
                        "", false, false};
        if (!entry.device.empty())
            TakeMapped(entry, lines);
        ports.push_back(std::move(entry));
    }
    for (const SerialPort& line : lines) {
        if (line.builtInNumber < 0 || line.builtInNumber >= kMostPorts)
            continue;
        PortEntry& entry = ports[static_cast<std::size_t>(line.builtInNumber)];
        if (entry.device.empty())
            entry = {entry.text, line.device, line.name, true, false};
    }
    for (const SerialPort& line : lines) {
        const auto isShown = [&line](const PortEntry& entry) {
            return !entry.device.empty() && IsSame(entry.device, line.device);
        };
        const auto free = std::ranges::find_if(ports, &std::string::empty, &PortEntry::device);
        if (line.builtInNumber < 0 && free != ports.end() && std::ranges::none_of(ports, isShown))
            *free = {free->text, line.device, line.name, true, true};
    }
    return ports;
}

bool KeepPort(const std::string& programFolder, const std::vector<PortEntry>& ports, int position)
{
    if (position < 0 || position >= static_cast<int>(ports.size()))
        return true;
    const PortEntry& entry = ports[static_cast<std::size_t>(position)];
    return !entry.proposed || Os().profiles->WritePrivateProfileString("Map", std::to_string(position + 1),
                                                                       entry.device, PortFile(programFolder));
}

std::string DeviceOfPort(unsigned port)
{
    if (const char* named = std::getenv(("KELVO_PORT_" + std::to_string(port)).c_str()); named && *named)
        return named;
    if (port < 1 || port > kMostPorts)
        return {};
    const auto lines = Os().serialPorts ? Os().serialPorts->Ports() : std::vector<SerialPort>();
    return ListPorts(Os().utility->ql_GetModulePath(), lines)[port - 1].device;
}

bool UseLine(const std::string& programFolder, const std::vector<SerialPort>& lines,
             const std::string& device)
{
    const std::vector<PortEntry> ports = ListPorts(programFolder, lines);
    const auto entry = std::ranges::find_if(ports, [&device](const PortEntry& candidate) {
        return !candidate.device.empty() && IsSame(candidate.device, device);
    });
    if (entry == ports.end())
        return false;
    const auto position = static_cast<int>(entry - ports.begin());
    OptionValues options = LoadOptions(programFolder);
    if (options.portPosition == position)
        return true;
    options.portPosition = position;
    return KeepPort(programFolder, ports, position) && SaveOptions(programFolder, options);
}

}  // namespace app
