// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CRegistry and CProfiles: the two places where settings live.
//
// Both may be used by several processes at once: every write is read-change-replace under a lock, so that a
// reader sees the old file or the new one and no writer loses another's change.
#pragma once

#include "platform/types.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace platform
{

// The current user's registry: keys such as "Software/Qorvel/Mobile/1.00.0000.01" hold named strings. Keys
// and value names are compared without regard to case. "/" separates the levels of a key.
class CRegistry
{
public:
    virtual ~CRegistry() = default;
    virtual bool KeyExists(const std::string& key) = 0;
    // True when the key exists afterwards.
    virtual bool CreateKey(const std::string& key) = 0;
    virtual std::optional<std::string> QueryValue(const std::string& key, const std::string& name) = 0;
    virtual bool SetValue(const std::string& key, const std::string& name, const std::string& value) = 0;
    virtual bool DeleteValue(const std::string& key, const std::string& name) = 0;
};

using ProfileValues = std::vector<std::pair<std::string, std::string>>;  // keys and their values

// INI files: "[section]" lines and "key=value" lines, both compared without regard to case. A write keeps
// every other line, the order and the comments. A file inside a program folder that may not be written is
// written beside the user's own settings instead, and that copy is read first from then on.
class CProfiles
{
public:
    virtual ~CProfiles() = default;
    // The leading decimal number of the value (with sign), 0 when it has none, `fallback` without the key.
    virtual int GetPrivateProfileInt(const std::string& section, const std::string& key, int fallback,
                                     const std::string& file) = 0;
    // The value without surrounding blanks and one pair of surrounding quotes.
    virtual std::string GetPrivateProfileString(const std::string& section, const std::string& key,
                                                const std::string& fallback, const std::string& file) = 0;
    virtual bool HasPrivateProfileKey(const std::string& section, const std::string& key,
                                      const std::string& file) = 0;
    // Sets one value, making the file and the section when missing. False when it could not be written:
    // the file is then as it was.
    virtual bool WritePrivateProfileString(const std::string& section, const std::string& key,
                                           const std::string& value, const std::string& file) = 0;
    // Sets several values of one section in the order given. An implementation may do so in one step; in this
    // one each value is written by itself. False when any of them could not be written.
    virtual bool WritePrivateProfileValues(const std::string& section, const ProfileValues& values,
                                           const std::string& file)
    {
        bool written = true;
        for (const auto& [key, value] : values)
            written = WritePrivateProfileString(section, key, value, file) && written;
        return written;
    }
    // Where a file of the program folder other than an INI file is to be written: `file` itself, or the
    // user's copy where the program folder may not be written.
    virtual std::string WritableFile(const std::string& file) { return file; }
    // Why this thread's latest write failed, in the numbers that the suite knows: 3 no such path, 5 not
    // permitted, 21 the device is not ready, 82 cannot be made; 31 for every other reason.
    virtual int GetLastError() = 0;
};

}  // namespace platform
