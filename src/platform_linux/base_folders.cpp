// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/base_folders.h"

#include "platform_linux/linux_file.h"
#include "platform_linux/linux_file_system.h"
#include "platform_linux/paths.h"

#include <cstdlib>
#include <pwd.h>
#include <sstream>
#include <vector>

namespace platform_linux
{

namespace
{

std::string WithoutTrailingSeparator(std::string path)
{
    while (path.size() > 1 && path.back() == '/')
        path.pop_back();
    return path;
}

// The variable's value if it is an absolute path, else nothing.
std::string PathVariable(const char* name)
{
    const char* value = std::getenv(name);
    return value && *value == '/' ? WithoutTrailingSeparator(value) : std::string();
}

std::string BelowHome(const char* variable, std::string_view otherwise)
{
    const std::string set = PathVariable(variable);
    const std::string home = set.empty() ? HomeFolder() : std::string();
    return home.empty() ? set : Join(home, otherwise);
}

std::string AccountHome()
{
    std::vector<char> buffer(16 * 1024);
    passwd entry{};
    passwd* found = nullptr;
    if (getpwuid_r(geteuid(), &entry, buffer.data(), buffer.size(), &found) != 0 || !found || !found->pw_dir)
        return {};
    return *found->pw_dir == '/' ? WithoutTrailingSeparator(found->pw_dir) : std::string();
}

// The value of a line of user-dirs.dirs: "/absolute/path" or "$HOME/path" in double quotes, where a backslash
// keeps the next character as it is. Empty for anything else.
std::string UserDirsValue(std::string_view text)
{
    if (text.size() < 2 || text.front() != '"')
        return {};
    text.remove_prefix(1);
    std::string value;
    constexpr std::string_view kHome = "$HOME";
    if (text.starts_with(kHome)) {
        value = HomeFolder();
        text.remove_prefix(kHome.size());
    }
    for (std::size_t i = 0; i < text.size() && text[i] != '"'; ++i) {
        if (text[i] == '\\' && i + 1 < text.size())
            ++i;
        value += text[i];
    }
    return value.starts_with('/') ? WithoutTrailingSeparator(value) : std::string();
}

std::string DocumentsOfUserDirs()
{
    constexpr std::uint64_t kMostBytes = 64 * 1024;
    constexpr std::string_view kKey = "XDG_DOCUMENTS_DIR=";
    const std::string config = BelowHome("XDG_CONFIG_HOME", ".config");
    const CHandle file = OpenRegular(Join(config, "user-dirs.dirs"), platform::OpenMode::read);
    std::istringstream lines(file.IsOpen() ? ReadAll(file.Get(), kMostBytes).value_or("") : "");
    std::string found;
    for (std::string line; std::getline(lines, line);)
        if (line.starts_with(kKey))
            found = UserDirsValue(std::string_view(line).substr(kKey.size()));
    return found;
}

}  // namespace

std::string HomeFolder()
{
    const std::string home = PathVariable("HOME");
    return home.empty() ? AccountHome() : home;
}

std::string ConfigFolder()
{
    const std::string config = BelowHome("XDG_CONFIG_HOME", ".config");
    return config.empty() ? config : Join(config, "kelvo");
}

std::string DataFolder()
{
    return BelowHome("XDG_DATA_HOME", ".local/share");
}

std::string CommonDataFolder()
{
    const char* value = std::getenv("XDG_DATA_DIRS");
    std::istringstream entries(value ? value : "");
    for (std::string entry; std::getline(entries, entry, ':');)
        if (entry.starts_with('/'))
            return WithoutTrailingSeparator(entry);
    return "/usr/local/share";
}

std::string DocumentsFolder()
{
    std::string folder = PathVariable("XDG_DOCUMENTS_DIR");
    if (folder.empty())
        folder = DocumentsOfUserDirs();
    const std::string home = folder.empty() ? HomeFolder() : std::string();
    return home.empty() ? folder : Join(home, "Documents");
}

}  // namespace platform_linux
