// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/utility/utility_library.h"

#include "platform/file_system.h"
#include "platform/services.h"
#include "platform/settings_store.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string_view>

namespace suite
{

namespace
{

// The version of the program as the suite's other programs and the registry know it; releases do not move it.
constexpr platform::FileVersion kVersion{1, 0, 0, 1};

std::optional<std::string> Setting(const std::string& section, const std::string& key,
                                   const std::string& file)
{
    platform::CProfiles& profiles = *platform::Os().profiles;
    if (!profiles.HasPrivateProfileKey(section, key, file))
        return std::nullopt;
    return profiles.GetPrivateProfileString(section, key, "", file);
}

std::optional<int> WholeNumber(std::string_view text)
{
    constexpr std::string_view kBlanks = " \t";
    const std::size_t begin = std::min(text.find_first_not_of(kBlanks), text.size());
    text = text.substr(begin, text.find_last_not_of(kBlanks) + 1 - begin);
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

// Exactly N numbers divided by commas.
template <std::size_t N>
std::optional<std::array<int, N>> Numbers(const std::string& section, const std::string& key,
                                          const std::string& file)
{
    const std::optional<std::string> value = Setting(section, key, file);
    if (!value || std::count(value->begin(), value->end(), ',') != N - 1)
        return std::nullopt;
    std::array<int, N> numbers{};
    std::string_view rest = *value;
    for (int& number : numbers) {
        const std::size_t comma = std::min(rest.find(','), rest.size());
        const std::optional<int> read = WholeNumber(rest.substr(0, comma));
        if (!read)
            return std::nullopt;
        number = *read;
        rest.remove_prefix(std::min(comma + 1, rest.size()));
    }
    return numbers;
}

}  // namespace

void CUtilityLibrary::Install()
{
    platform::Os().utility = this;
}

std::string CUtilityLibrary::ql_GetModulePath()
{
    return folder;
}

std::string CUtilityLibrary::ql_GetFileName()
{
    return folder + "/kelvo";
}

bool CUtilityLibrary::ql_GetFileVersion(platform::FileVersion& version)
{
    version = kVersion;
    return true;
}

bool CUtilityLibrary::ql_GetSettingInt(const std::string& section, const std::string& key,
                                       const std::string& file, int& out)
{
    const auto numbers = Numbers<1>(section, key, file);
    if (numbers)
        out = numbers->front();
    return numbers.has_value();
}

bool CUtilityLibrary::ql_GetSettingString(const std::string& section, const std::string& key,
                                          const std::string& file, std::string& out)
{
    const std::optional<std::string> value = Setting(section, key, file);
    if (value)
        out = *value;
    return value.has_value();
}

bool CUtilityLibrary::ql_GetSettingRect(const std::string& section, const std::string& key,
                                        const std::string& file, platform::Rect& out)
{
    const auto numbers = Numbers<4>(section, key, file);
    if (numbers)
        out = {(*numbers)[0], (*numbers)[1], (*numbers)[2], (*numbers)[3]};
    return numbers.has_value();
}

bool CUtilityLibrary::ql_GetSettingColor(const std::string& section, const std::string& key,
                                         const std::string& file, platform::ColorRef& out)
{
    const auto numbers = Numbers<3>(section, key, file);
    if (!numbers || std::any_of(numbers->begin(), numbers->end(), [](int n) { return n < 0 || n > 255; }))
        return false;
    const auto [red, green, blue] = *numbers;
    out = static_cast<platform::ColorRef>(red | green << 8 | blue << 16);
    return true;
}

bool CUtilityLibrary::ql_GetSettingSize(const std::string& section, const std::string& key,
                                        const std::string& file, platform::Extent& out)
{
    const auto numbers = Numbers<2>(section, key, file);
    if (numbers)
        out = {(*numbers)[0], (*numbers)[1]};
    return numbers.has_value();
}

void CUtilityLibrary::ql_SetFontInfo(const std::string& faceName, int size, int characterSet)
{
    font = {faceName, size, characterSet};
}

platform::LogFont CUtilityLibrary::ql_GetLogfont(const std::string& faceName, int size)
{
    constexpr int kLeastHeight = 6;
    constexpr int kMostHeight = 72;
    const bool readable = size >= kLeastHeight && size <= kMostHeight;
    return {faceName.empty() ? font.faceName : faceName, readable ? size : font.height, font.characterSet};
}

platform::FileTime CUtilityLibrary::ql_GetFileCreateDate(const std::string& path)
{
    const auto facts = platform::Os().files->FindFirstFile(path);
    return facts ? facts->creationTime : 0;
}

platform::FileTime CUtilityLibrary::ql_GetCurDate()
{
    using namespace std::chrono;
    constexpr sys_days kEpoch = year{1601} / January / 1;
    constexpr int kStepsPerMicrosecond = 10;
    const auto passed = floor<microseconds>(system_clock::now()) - kEpoch;
    return static_cast<platform::FileTime>(passed.count()) * kStepsPerMicrosecond;
}

std::uint64_t CUtilityLibrary::GetTickCount()
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return static_cast<std::uint64_t>(std::chrono::duration_cast<std::chrono::milliseconds>(now).count());
}

void CUtilityLibrary::OutputDebugString(const std::string& text)
{
    static const bool isTraced = std::getenv("KELVO_TRACE") != nullptr;
    if (isTraced)
        std::fprintf(stderr, "%s\n", text.c_str());
}

}  // namespace suite
