// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// INI files: any bytes are a section, a key and a value, each ended by a zero byte, and the text of a file.
#include "platform_linux/ini_text.h"

#include <algorithm>
#include <cstdlib>

namespace
{

std::string Take(std::string_view& rest)
{
    const std::string_view taken = rest.substr(0, rest.find('\0'));
    rest.remove_prefix(std::min(taken.size() + 1, rest.size()));
    return std::string(taken);
}

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using platform_linux::CIniText;
    std::string_view rest(reinterpret_cast<const char*>(data), size);
    const std::string section = Take(rest);
    const std::string key = Take(rest);
    const std::string value = Take(rest);
    if (!CIniText::IsUsable(rest))
        return 0;

    CIniText text{std::string(rest)};
    const std::optional<std::string> foreign = text.Value("other", "k");
    if (text.Set(section, key, value)) {
        Require(text.Value(section, key) == value && text.HasSection(section));
        Require(platform_linux::SameName(section, "other") || text.Value("other", "k") == foreign);
        Require(CIniText(text.Text()).Value(section, key) == value);
    } else {
        Require(text.Text() == rest);
    }
    text.Remove(section, key);
    Require(!text.Value(section, key) && text.Text().size() <= CIniText::kMostBytes);
    return 0;
}
