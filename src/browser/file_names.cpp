// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/file_names.h"

#include <algorithm>

namespace browser
{

namespace
{

char LowerLetter(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + ('a' - 'A')) : letter;
}

bool IsDigit(char letter)
{
    return letter >= '0' && letter <= '9';
}

// The digits at the front of `text` without leading zeros; `text` is moved behind them.
std::string_view TakeNumber(std::string_view& text)
{
    std::size_t end = 0;
    while (end < text.size() && IsDigit(text[end])) {
        ++end;
    }
    std::string_view number = text.substr(0, end);
    text.remove_prefix(end);
    number.remove_prefix(std::min(number.find_first_not_of('0'), number.size()));
    return number;
}

// Below, equal to or above zero as left comes before, with or after right; case and leading zeros apart.
int CompareNaturally(std::string_view left, std::string_view right)
{
    while (!left.empty() && !right.empty()) {
        if (IsDigit(left.front()) && IsDigit(right.front())) {
            const std::string_view leftNumber = TakeNumber(left);
            const std::string_view rightNumber = TakeNumber(right);
            if (leftNumber.size() != rightNumber.size()) {
                return leftNumber.size() < rightNumber.size() ? -1 : 1;
            }
            if (const int order = leftNumber.compare(rightNumber); order != 0) {
                return order;
            }
            continue;
        }
        const auto leftLetter = static_cast<unsigned char>(LowerLetter(left.front()));
        const auto rightLetter = static_cast<unsigned char>(LowerLetter(right.front()));
        if (leftLetter != rightLetter) {
            return leftLetter < rightLetter ? -1 : 1;
        }
        left.remove_prefix(1);
        right.remove_prefix(1);
    }
    return static_cast<int>(!left.empty()) - static_cast<int>(!right.empty());
}

}  // namespace

std::string_view FileName(std::string_view path)
{
    const std::size_t separator = path.rfind('/');
    return separator == std::string_view::npos ? path : path.substr(separator + 1);
}

std::string_view FolderOf(std::string_view path)
{
    const std::size_t separator = path.rfind('/');
    if (separator == std::string_view::npos) {
        return {};
    }
    return separator == 0 ? path.substr(0, 1) : path.substr(0, separator);
}

std::string_view Extension(std::string_view path)
{
    const std::string_view name = FileName(path);
    const std::size_t dot = name.rfind('.');
    return dot == std::string_view::npos ? std::string_view{} : name.substr(dot + 1);
}

std::string JoinPath(std::string_view folder, std::string_view name)
{
    std::string path(folder);
    if (!path.ends_with('/')) {
        path += '/';
    }
    return path.append(name);
}

std::string LowerCase(std::string_view text)
{
    std::string lower(text);
    std::ranges::transform(lower, lower.begin(), LowerLetter);
    return lower;
}

bool IsValidFileName(std::string_view name)
{
    return name.find_first_of("/\\:*?\"<>|") == std::string_view::npos;
}

bool IsSpecialPlace(std::string_view path)
{
    return path == "::{20D04FE0-3AEA-1069-A2D8-08002B30309D}\\::{21EC2020-3AEA-1069-A2DD-08002B30309D}" ||
           path == "::{645FF040-5081-101B-9F08-00AA002F954E}" ||
           (path.size() == 11 && path.substr(1) == ":\\Recycled");
}

bool NameBefore(std::string_view left, std::string_view right)
{
    const int order = CompareNaturally(left, right);
    return order != 0 ? order < 0 : left < right;
}

}  // namespace browser
