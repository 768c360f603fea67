// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CLinuxProfiles: INI files, with the user's own copy of those of a program folder that may not be written.
//
// That copy lies in `userFolder` under the file's path within the program folder. Once it is there, values
// are read from it first and writes go to it.
#pragma once

#include "platform/settings_store.h"
#include "platform_linux/settings_files.h"

namespace platform_linux
{

class CLinuxProfiles final : public platform::CProfiles
{
public:
    CLinuxProfiles(std::string programFolder, std::string userFolder)
        : program(std::move(programFolder)), user(std::move(userFolder))
    {
    }

    int GetPrivateProfileInt(const std::string& section, const std::string& key, int fallback,
                             const std::string& file) override;
    std::string GetPrivateProfileString(const std::string& section, const std::string& key,
                                        const std::string& fallback, const std::string& file) override;
    bool HasPrivateProfileKey(const std::string& section, const std::string& key,
                              const std::string& file) override;
    bool WritePrivateProfileString(const std::string& section, const std::string& key,
                                   const std::string& value, const std::string& file) override;
    // All of them in one replacement of the file, or none.
    bool WritePrivateProfileValues(const std::string& section, const platform::ProfileValues& values,
                                   const std::string& file) override;
    // Makes the folder that the user's copy lies in.
    std::string WritableFile(const std::string& file) override;
    int GetLastError() override;

private:
    std::optional<std::string> Find(const std::string& section, const std::string& key,
                                    const std::string& file);
    // Where the user's copy of `file` lies or would lie; empty for files outside the program folder.
    std::string UserCopyOf(const std::string& file) const;
    bool WriteUserCopy(const std::string& copy, const std::string& original,
                       const std::function<bool(CIniText&)>& change);

    std::string program;
    std::string user;
    CSettingsFiles files;
};

}  // namespace platform_linux
