// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Lines of fields divided by tabs, in the text files that the program keeps for itself.
//
// In a field, bytes below 0x20 and "%" stand as "%" and two hexadecimal digits; every other byte stands as it
// is.
#pragma once

#include <charconv>
#include <string>
#include <string_view>
#include <vector>

namespace browser
{

std::string Escaped(std::string_view text);
std::string Unescaped(std::string_view text);
std::vector<std::string_view> Split(std::string_view text, char separator);

// False when the text is anything else than one number of the type.
template <typename Number> bool ReadNumber(std::string_view text, Number& number, int base = 10)
{
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, base);
    return error == std::errc() && end == text.data() + text.size();
}

}  // namespace browser
