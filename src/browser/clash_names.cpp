// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/clash_names.h"

#include <algorithm>

namespace browser
{

namespace
{

constexpr std::size_t kMostNameBytes = 255;
// What is longer behind a dot is a part of the name.
constexpr std::size_t kMostEndingBytes = 20;

bool IsDigit(char letter)
{
    return letter >= '0' && letter <= '9';
}

// The name without " (12)" at its end.
std::string_view WithoutNumber(std::string_view name)
{
    const std::size_t open = name.rfind(" (");
    if (open == std::string_view::npos || open == 0 || !name.ends_with(')'))
        return name;
    const std::string_view number = name.substr(open + 2, name.size() - open - 3);
    const bool isNumber = !number.empty() && number.size() <= 4 && std::ranges::all_of(number, IsDigit);
    return isNumber ? name.substr(0, open) : name;
}

std::string_view CutTo(std::string_view name, std::size_t most)
{
    if (name.size() <= most)
        return name;
    std::size_t end = most;
    while (end > 0 && most - end < 4 && (static_cast<unsigned char>(name[end]) & 0xC0) == 0x80)
        --end;
    return name.substr(0, end);
}

}  // namespace

std::string_view NameEnding(std::string_view name, NameKind kind)
{
    const std::size_t dot = name.rfind('.');
    if (kind == NameKind::folder || dot == std::string_view::npos || dot == 0 ||
        name.size() - dot > kMostEndingBytes)
        return {};
    return name.substr(dot);
}

std::string NumberedName(std::string_view name, int number, NameKind kind)
{
    const std::string_view ending = NameEnding(name, kind);
    const std::string_view stem = WithoutNumber(name.substr(0, name.size() - ending.size()));
    const std::string suffix = " (" + std::to_string(number) + ")";
    std::string result(CutTo(stem, kMostNameBytes - suffix.size() - ending.size()));
    return result.append(suffix).append(ending);
}

}  // namespace browser
