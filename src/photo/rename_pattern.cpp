// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/rename_pattern.h"

#include "browser/file_names.h"

#include <fmt/format.h>

#include <charconv>

namespace photo
{

namespace
{

constexpr int kUsualDigits = 4;
constexpr int kMostDigits = 16;
constexpr std::size_t kLongestPattern = 256;
constexpr std::size_t kLongestPath = 260;
constexpr std::size_t kLongestName = 255;
constexpr std::string_view kLongestExtension = ".XXX";

// The width of the number field at the beginning of `text`, which is cut off there; -1 when there is none.
int TakeField(std::string_view& text)
{
    int width = 0;
    const char* const end = text.data() + text.size();
    const char* at = text.data() + 1;
    if (at != end && *at >= '0' && *at <= '9') {
        at = std::from_chars(at, end, width).ptr;
    }
    if (at == end || *at != 'd') {
        return -1;
    }
    text.remove_prefix(static_cast<std::size_t>(at + 1 - text.data()));
    return width <= kMostDigits ? width : kMostDigits;
}

}  // namespace

std::string MakePattern(std::string_view prefix, int digits)
{
    std::string pattern;
    for (const char c : prefix) {
        pattern.append(c == '%' ? 2 : 1, c);
    }
    return pattern + fmt::format("%0{}d", digits < 1 ? kUsualDigits : digits);
}

std::string FormatPattern(std::string_view pattern, int number)
{
    std::string text;
    while (!pattern.empty()) {
        if (pattern.starts_with("%%")) {
            text.push_back('%');
            pattern.remove_prefix(2);
        } else if (const int width = pattern.front() == '%' ? TakeField(pattern) : -1; width >= 0) {
            text += fmt::format("{:0{}}", number, width);
        } else {
            text.push_back(pattern.front());
            pattern.remove_prefix(1);
        }
    }
    return text;
}

int CRenameFields::Digits() const
{
    int number = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return number;
}

RenameObjection CRenameFields::Check(std::string_view folder)
{
    if (!browser::IsValidFileName(prefix)) {
        return RenameObjection::badCharacter;
    }
    const std::string sample = Preview() + std::string(kLongestExtension);
    if (browser::JoinPath(folder, sample).size() > kLongestPath || sample.size() > kLongestName ||
        Pattern().size() > kLongestPattern) {
        return RenameObjection::tooLong;
    }
    const int number = Digits();
    if (number < 1 || number > kMostDigits || fmt::to_string(number) != digits) {
        digits = goodDigits;
        return RenameObjection::badDigits;
    }
    goodDigits = digits;
    return RenameObjection::none;
}

}  // namespace photo
