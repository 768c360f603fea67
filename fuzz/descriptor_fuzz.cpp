// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a Java descriptor: the name lies in the text, behind its key, on one line and without blanks
// at its ends.
#include "handset/java_descriptor.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr std::string_view kKey = "MIDlet-Name:";
    constexpr std::string_view kBlanks = " \t\r\n";
    const std::string text(reinterpret_cast<const char*>(data), size);
    const std::string_view name = handset::MidletName(text);
    if (name.empty())
        return 0;
    const auto at = static_cast<std::size_t>(name.data() - text.data());
    const std::size_t key = at < kKey.size() ? std::string::npos : text.rfind(kKey, at - kKey.size());
    const bool isBehindKey = key != std::string::npos && at + name.size() <= text.size() &&
                             text.find_first_not_of(kBlanks, key + kKey.size()) == at;
    const bool isOneLine = name.find('\n') == std::string_view::npos;
    const bool isTrimmed = kBlanks.find(name.front()) == std::string_view::npos &&
                           kBlanks.find(name.back()) == std::string_view::npos;
    if (!isBehindKey || !isOneLine || !isTrimmed)
        std::abort();
    return 0;
}
