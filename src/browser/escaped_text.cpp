// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/escaped_text.h"

#include <fmt/format.h>

#include <iterator>

namespace browser
{

std::string Escaped(std::string_view text)
{
    std::string escaped;
    escaped.reserve(text.size());
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x20 || c == '%') {
            fmt::format_to(std::back_inserter(escaped), "%{:02x}", byte);
        } else {
            escaped.push_back(c);
        }
    }
    return escaped;
}

std::string Unescaped(std::string_view text)
{
    std::string plain;
    plain.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        unsigned byte = 0;
        if (text[i] == '%' && i + 2 < text.size() && ReadNumber(text.substr(i + 1, 2), byte, 16)) {
            plain.push_back(static_cast<char>(byte));
            i += 2;
        } else {
            plain.push_back(text[i]);
        }
    }
    return plain;
}

std::vector<std::string_view> Split(std::string_view text, char separator)
{
    std::vector<std::string_view> parts;
    for (;;) {
        const std::size_t end = text.find(separator);
        parts.push_back(text.substr(0, end));
        if (end == std::string_view::npos) {
            return parts;
        }
        text.remove_prefix(end + 1);
    }
}

}  // namespace browser
