// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/caption_history.h"

#include "browser/file_names.h"
#include "platform/file_system.h"
#include "platform/services.h"
#include "platform/settings_store.h"

#include <fmt/format.h>

#include <algorithm>
#include <span>

namespace photo
{

namespace
{

constexpr const char* kSection = "caption";
constexpr std::size_t kLongestRead = 259;
// More than anybody enters; a file that claims more is read up to here.
constexpr int kMostEntries = 5'000;

std::string AsRead(const std::string& caption)
{
    return caption.substr(0, kLongestRead);
}

}  // namespace

CCaptionHistory::CCaptionHistory(const std::string& thumbDbFolder)
{
    if (!thumbDbFolder.empty()) {
        path = browser::JoinPath(browser::FolderOf(thumbDbFolder), "cap_db.ini");
    }
}

std::vector<std::string> CCaptionHistory::Entries() const
{
    platform::CProfiles& profiles = *platform::Os().profiles;
    std::vector<std::string> entries;
    const int count =
        path.empty() ? 0
                     : std::clamp(profiles.GetPrivateProfileInt(kSection, "Count", 0, path), 0, kMostEntries);
    for (int i = 1; i <= count; ++i) {
        entries.push_back(AsRead(profiles.GetPrivateProfileString(kSection, fmt::to_string(i), "", path)));
    }
    return entries;
}

std::vector<std::string> CCaptionHistory::Captions() const
{
    std::vector<std::string> captions;
    for (std::string& entry : Entries()) {
        if (!entry.empty() && std::ranges::find(captions, entry) == captions.end()) {
            captions.push_back(std::move(entry));
        }
    }
    return captions;
}

bool CCaptionHistory::Remember(const std::string& caption, bool wasGivenToPhoto) const
{
    if (path.empty() || caption.empty() || caption.find_first_of("\r\n") != std::string::npos) {
        return true;
    }
    platform::CFileSystem& files = *platform::Os().files;
    const auto lock = files.LockFile(path + ".lock", 10'000);
    if (!files.FindFirstFile(path)) {
        const std::string text = fmt::format("[{}]\nCount={}\n1={}\n", kSection, 1, caption);
        return files.ReplaceFile(path, std::as_bytes(std::span(text)));
    }
    std::vector<std::string> entries = Entries();
    // A count beyond belief is put right.
    const bool isFull = entries.size() == kMostEntries;
    while (isFull && !entries.empty() && entries.back().empty()) {
        entries.pop_back();
    }
    const bool isKnown = std::ranges::find(entries, AsRead(caption)) != entries.end();
    if (!wasGivenToPhoto || isKnown || entries.size() == kMostEntries) {
        return true;
    }
    const std::string count = fmt::to_string(entries.size() + 1);
    return platform::Os().profiles->WritePrivateProfileValues(kSection, {{"count", count}, {count, caption}},
                                                              path);
}

}  // namespace photo
