// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/linux_profiles.h"

#include "platform_linux/failure.h"
#include "platform_linux/paths.h"

#include <algorithm>
#include <climits>
#include <unistd.h>

namespace platform_linux
{

namespace
{

bool IsQuoted(std::string_view value)
{
    return value.size() >= 2 && (value.front() == '"' || value.front() == '\'') &&
           value.front() == value.back();
}

// In quotes where the value would otherwise be read back without its blanks or quotes.
std::string Quoted(const std::string& value)
{
    constexpr std::string_view kBlanks = " \t";
    const bool needsQuotes =
        IsQuoted(value) || (!value.empty() && (kBlanks.find(value.front()) != kBlanks.npos ||
                                               kBlanks.find(value.back()) != kBlanks.npos));
    return needsQuotes ? '"' + value + '"' : value;
}

// The leading decimal number, held within the range of int; 0 when there is none.
int LeadingNumber(std::string_view text)
{
    bool negative = false;
    if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
        negative = text.front() == '-';
        text.remove_prefix(1);
    }
    std::int64_t number = 0;
    for (const char c : text) {
        if (c < '0' || c > '9')
            break;
        number = std::min<std::int64_t>(number * 10 + (c - '0'), std::int64_t{INT_MAX} + 1);
    }
    return static_cast<int>(std::clamp<std::int64_t>(negative ? -number : number, INT_MIN, INT_MAX));
}

bool ClimbsOut(std::string_view path)
{
    return path.starts_with("../") || path.find("/../") != std::string_view::npos || path.ends_with("/..");
}

}  // namespace

std::string CLinuxProfiles::UserCopyOf(const std::string& file) const
{
    if (user.empty() || !IsBelow(file, program))
        return {};
    const std::string within = file.substr(program.size() + 1);
    // The registry of the same folder is no copy of anything.
    return ClimbsOut(within) || SameName(within, "registry.ini") ? "" : Join(user, within);
}

std::optional<std::string> CLinuxProfiles::Find(const std::string& section, const std::string& key,
                                                const std::string& file)
{
    for (const std::string& path : {UserCopyOf(file), file}) {
        const std::shared_ptr<const CIniText> text = path.empty() ? nullptr : files.Read(path);
        std::optional<std::string> value = text ? text->Value(section, key) : std::nullopt;
        if (value)
            return IsQuoted(*value) ? value->substr(1, value->size() - 2) : value;
    }
    return std::nullopt;
}

int CLinuxProfiles::GetPrivateProfileInt(const std::string& section, const std::string& key, int fallback,
                                         const std::string& file)
{
    const std::optional<std::string> value = Find(section, key, file);
    return value ? LeadingNumber(*value) : fallback;
}

std::string CLinuxProfiles::GetPrivateProfileString(const std::string& section, const std::string& key,
                                                    const std::string& fallback, const std::string& file)
{
    return Find(section, key, file).value_or(fallback);
}

bool CLinuxProfiles::HasPrivateProfileKey(const std::string& section, const std::string& key,
                                          const std::string& file)
{
    return Find(section, key, file).has_value();
}

bool CLinuxProfiles::WriteUserCopy(const std::string& copy, const std::string& original,
                                   const std::function<bool(CIniText&)>& change)
{
    const std::shared_ptr<const CIniText> start = files.Read(original);
    return MakeFolders(ParentOf(copy)) && files.Change(copy, [&](CIniText& text) {
        if (text.Text().empty() && start)
            text = *start;
        return change(text);
    });
}

bool CLinuxProfiles::WritePrivateProfileString(const std::string& section, const std::string& key,
                                               const std::string& value, const std::string& file)
{
    return WritePrivateProfileValues(section, {{key, value}}, file);
}

bool CLinuxProfiles::WritePrivateProfileValues(const std::string& section,
                                               const platform::ProfileValues& values, const std::string& file)
{
    const auto change = [&](CIniText& text) {
        return std::ranges::all_of(
            values, [&](const auto& entry) { return text.Set(section, entry.first, Quoted(entry.second)); });
    };
    const std::string copy = UserCopyOf(file);
    if (!copy.empty() && access(Native(copy), F_OK) == 0)
        return files.Change(copy, change);
    if (files.Change(file, change))
        return true;
    const bool mayNot = LastFailure() == EACCES || LastFailure() == EPERM || LastFailure() == EROFS;
    return mayNot && !copy.empty() && WriteUserCopy(copy, file, change);
}

std::string CLinuxProfiles::WritableFile(const std::string& file)
{
    const std::string copy = UserCopyOf(file);
    const bool mayNot = access(Native(ParentOf(file)), W_OK) != 0 && (errno == EACCES || errno == EROFS);
    return mayNot && !copy.empty() && MakeFolders(ParentOf(copy)) ? copy : file;
}

int CLinuxProfiles::GetLastError()
{
    switch (LastFailure()) {
    case ENOENT:
    case ENOTDIR:
    case ENAMETOOLONG:
        return 3;
    case EACCES:
    case EPERM:
    case EROFS:
        return 5;
    case ENXIO:
    case ENODEV:
    case ENOMEDIUM:
        return 21;
    case EEXIST:
    case EISDIR:
    case ENOSPC:
    case EDQUOT:
        return 82;
    default:
        return 31;
    }
}

}  // namespace platform_linux
