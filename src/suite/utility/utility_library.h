// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CUtilityLibrary: the suite's utility library.
//
// Settings are read through platform::Os().profiles. Numbers of a rectangle, a size or a colour may have
// blanks around them; a text with too few or too many numbers, or with anything else in it, counts as not
// found.
#pragma once

#include "platform/utility.h"

namespace suite
{

class CUtilityLibrary final : public platform::CUtility
{
public:
    explicit CUtilityLibrary(std::string programFolder) : folder(std::move(programFolder)) {}
    // Puts itself into platform::Os(), which it must outlive.
    void Install();

    std::string ql_GetModulePath() override;
    std::string ql_GetFileName() override;
    bool ql_GetFileVersion(platform::FileVersion& version) override;
    bool ql_GetSettingInt(const std::string& section, const std::string& key, const std::string& file,
                          int& out) override;
    bool ql_GetSettingString(const std::string& section, const std::string& key, const std::string& file,
                             std::string& out) override;
    bool ql_GetSettingRect(const std::string& section, const std::string& key, const std::string& file,
                           platform::Rect& out) override;
    bool ql_GetSettingColor(const std::string& section, const std::string& key, const std::string& file,
                            platform::ColorRef& out) override;
    bool ql_GetSettingSize(const std::string& section, const std::string& key, const std::string& file,
                           platform::Extent& out) override;
    void ql_SetFontInfo(const std::string& faceName, int size, int characterSet) override;
    platform::LogFont ql_GetLogfont(const std::string& faceName, int size) override;
    platform::FileTime ql_GetFileCreateDate(const std::string& path) override;
    platform::FileTime ql_GetCurDate() override;
    std::uint64_t GetTickCount() override;
    void OutputDebugString(const std::string& text) override;

private:
    std::string folder;
    platform::LogFont font;  // what ql_SetFontInfo was given last
};

}  // namespace suite
