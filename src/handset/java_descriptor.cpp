// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "handset/java_descriptor.h"

#include "browser/file_names.h"
#include "platform/file_system.h"
#include "platform/services.h"

#include <algorithm>

namespace handset
{

namespace
{

constexpr std::string_view kNameKey = "MIDlet-Name:";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kBlanks = " \t\r\n";

// Behind the key, which begins a line; npos when the text has none.
std::size_t FindValue(std::string_view text)
{
    std::size_t at = text.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0;
    while (!text.substr(at).starts_with(kNameKey)) {
        at = text.find_first_of("\r\n", at);
        if (at == std::string_view::npos)
            return at;
        ++at;
    }
    return at + kNameKey.size();
}

}  // namespace

std::string ArchiveOf(const std::string& descriptor)
{
    const std::string stem = descriptor.substr(0, descriptor.size() - browser::Extension(descriptor).size());
    for (const char* ending : {"jar", "JAR"}) {
        const auto facts = platform::Os().files->FindFirstFile(stem + ending);
        if (facts && facts->isRegular)
            return stem + ending;
    }
    return {};
}

std::string_view MidletName(std::string_view text)
{
    const std::size_t behindKey = FindValue(text);
    const std::size_t first =
        behindKey == std::string_view::npos ? behindKey : text.find_first_not_of(kBlanks, behindKey);
    if (first == std::string_view::npos)
        return {};
    const std::string_view value = text.substr(first, text.find('\n', first) - first);
    return value.substr(0, value.find_last_not_of(kBlanks) + 1);
}

DescriptorFault CheckDescriptor(const std::string& path)
{
    if (ArchiveOf(path).empty())
        return DescriptorFault::noArchive;
    const auto text = platform::Os().files->ReadWhole(path, kLongestDescriptor);
    if (!text)
        return DescriptorFault::unreadable;
    const std::string_view name = MidletName(*text);
    const bool isGood =
        !name.empty() && std::ranges::all_of(name, [](char letter) { return letter >= 32 && letter <= 126; });
    return isGood ? DescriptorFault::none : DescriptorFault::badName;
}

}  // namespace handset
