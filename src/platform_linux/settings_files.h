// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CSettingsFiles: INI files that several processes read and change.
//
// A read takes no lock and sees one whole state, parsed once per state of the file. A change reads the file
// under a lock on the file itself, changes it and replaces it in one step; whoever waited for the lock then
// sees that the file was replaced and starts over with the new one, so no change is lost. A file that cannot
// be used as an INI text is never overwritten. Any thread.
#pragma once

#include "platform_linux/ini_text.h"

#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <sys/stat.h>

namespace platform_linux
{

class CSettingsFiles
{
public:
    // Null when the file is not there or cannot be used.
    std::shared_ptr<const CIniText> Read(const std::string& path);
    // Makes the file when missing (not its folder). False, with the reason kept and the file as it was, when
    // `change` says false or the file cannot be written.
    bool Change(const std::string& path, const std::function<bool(CIniText&)>& change);

private:
    struct Stamp {
        std::uint64_t device = 0;
        std::uint64_t inode = 0;
        std::int64_t size = 0;
        std::int64_t modified = 0;
        std::int64_t changed = 0;
        bool operator==(const Stamp&) const = default;
    };
    struct Parsed {
        Stamp stamp;
        std::shared_ptr<const CIniText> text;
    };
    static Stamp StampOf(const struct stat& facts);

    std::mutex mutex;
    std::map<std::string, Parsed> cache;
};

}  // namespace platform_linux
