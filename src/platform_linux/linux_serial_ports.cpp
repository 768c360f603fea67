// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/linux_serial_ports.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <fstream>
#include <map>
#include <tuple>

namespace platform_linux
{

namespace
{

namespace fs = std::filesystem;
using platform::SerialPort;

// The files of the kernel and of devices are short; what a device says of itself is cut here.
constexpr std::streamsize kLongestText = 200;
constexpr int kMostLevels = 16;

std::string FirstLine(const fs::path& file)
{
    std::ifstream stream(file);
    std::string text(kLongestText, '\0');
    stream.read(text.data(), kLongestText);
    text.resize(static_cast<std::size_t>(stream.gcount()));
    text.resize(std::min(text.find('\n'), text.size()));
    return text;
}

// The number behind "ttyUSB" and its like; -1 when the name is not of that form.
int NumberBehind(const std::string& name, std::string_view prefix)
{
    int number = -1;
    if (!name.starts_with(prefix))
        return -1;
    const char* const end = name.data() + name.size();
    const auto [last, error] = std::from_chars(name.data() + prefix.size(), end, number);
    return error == std::errc() && last == end && number >= 0 ? number : -1;
}

// What the device that a line belongs to says it is: its maker and product, found at or above the line.
std::string AdapterName(const fs::path& line)
{
    std::error_code error;
    fs::path folder = fs::canonical(line / "device", error);
    for (int level = 0; level < kMostLevels && !error && folder.has_relative_path(); ++level) {
        const std::string product = FirstLine(folder / "product");
        if (!product.empty()) {
            const std::string maker = FirstLine(folder / "manufacturer");
            return maker.empty() || product.starts_with(maker) ? product : maker + " " + product;
        }
        folder = folder.parent_path();
    }
    return {};
}

// The lasting names of adapters, by the names of their lines.
std::map<std::string, std::string> LastingNames(const std::string& root)
{
    std::map<std::string, std::string> names;
    std::error_code error;
    for (fs::directory_iterator entry(root + "/dev/serial/by-id", error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code unreadable;
        const fs::path target = fs::read_symlink(entry->path(), unreadable);
        if (!unreadable)
            names.emplace(target.filename().string(),
                          "/dev/serial/by-id/" + entry->path().filename().string());
    }
    return names;
}

}  // namespace

std::vector<SerialPort> CLinuxSerialPorts::Ports()
{
    const std::map<std::string, std::string> lasting = LastingNames(base);
    std::vector<std::tuple<int, int, SerialPort>> found;  // by kind and number
    std::error_code error;
    for (fs::directory_iterator entry(base + "/sys/class/tty", error), end; !error && entry != end;
         entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        if (const int number = NumberBehind(name, "ttyS"); number >= 0) {
            // Type 0 stands for a line that has been set aside but has no chip.
            const std::string type = FirstLine(entry->path() / "type");
            if (!type.empty() && type != "0")
                found.emplace_back(0, number, SerialPort{"/dev/" + name, "", number});
            continue;
        }
        int kind = 0;
        for (const std::string_view prefix : {"ttyUSB", "ttyACM", "rfcomm"}) {
            ++kind;
            const int number = NumberBehind(name, prefix);
            if (number < 0)
                continue;
            const auto link = lasting.find(name);
            found.emplace_back(kind, number,
                               SerialPort{link != lasting.end() ? link->second : "/dev/" + name,
                                          AdapterName(entry->path()), -1});
        }
    }
    std::ranges::sort(found, [](const auto& left, const auto& right) {
        return std::tie(std::get<0>(left), std::get<1>(left)) <
               std::tie(std::get<0>(right), std::get<1>(right));
    });
    std::vector<SerialPort> ports;
    for (auto& [kind, number, port] : found)
        ports.push_back(std::move(port));
    return ports;
}

}  // namespace platform_linux
