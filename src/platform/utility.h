// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CUtility: the suite's utility library.
//
// The ql_GetSetting calls take (section, key, file, out) and say whether the key was found with a value of
// the right form; otherwise `out` is left as it was, so callers preset their defaults. Text forms: a
// rectangle is "left,top,right,bottom", a size "width,height", a colour "red,green,blue" (0 to 255), all in
// decimal.
#pragma once

#include "platform/types.h"

#include <string>

namespace platform
{

struct FileVersion {
    std::uint16_t major = 0;
    std::uint16_t minor = 0;
    std::uint16_t build = 0;
    std::uint16_t revision = 0;
};

// A font as the skinned controls take it.
struct LogFont {
    std::string faceName;
    int height = 0;  // pixels at normal density
    int characterSet = 0;
    bool operator==(const LogFont&) const = default;
};

class CUtility
{
public:
    virtual ~CUtility() = default;
    // The program folder, where skin, samples, help and INI files lie; no trailing separator.
    virtual std::string ql_GetModulePath() = 0;
    // The full name of the program file as seen from the program folder.
    virtual std::string ql_GetFileName() = 0;
    // The four parts of the program file's version; false when it has none.
    virtual bool ql_GetFileVersion(FileVersion& version) = 0;
    virtual bool ql_GetSettingInt(const std::string& section, const std::string& key, const std::string& file,
                                  int& out) = 0;
    virtual bool ql_GetSettingString(const std::string& section, const std::string& key,
                                     const std::string& file, std::string& out) = 0;
    virtual bool ql_GetSettingRect(const std::string& section, const std::string& key,
                                   const std::string& file, Rect& out) = 0;
    virtual bool ql_GetSettingColor(const std::string& section, const std::string& key,
                                    const std::string& file, ColorRef& out) = 0;
    virtual bool ql_GetSettingSize(const std::string& section, const std::string& key,
                                   const std::string& file, Extent& out) = 0;
    // The interface's font, which stands in for what a font group leaves out.
    virtual void ql_SetFontInfo(const std::string& faceName, int size, int characterSet) = 0;
    // The font of a font group: face and height as read; an empty face, or a height that nobody could read,
    // is the interface's.
    virtual LogFont ql_GetLogfont(const std::string& faceName, int size) = 0;
    // When the file was made, as CFileSystem tells it; 0 when it is not there.
    virtual FileTime ql_GetFileCreateDate(const std::string& path) = 0;
    // The present, in universal time as all file times.
    virtual FileTime ql_GetCurDate() = 0;
    // Milliseconds on a clock that only goes forward.
    virtual std::uint64_t GetTickCount() = 0;
    // A line for the developer: shown on standard error when KELVO_TRACE is set, otherwise dropped.
    virtual void OutputDebugString(const std::string& text) = 0;
};

}  // namespace platform
