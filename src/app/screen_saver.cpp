// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/screen_saver.h"

#include "browser/file_names.h"
#include "browser/list_file.h"
#include "platform/file_system.h"
#include "platform/screen_saver.h"
#include "platform/services.h"

#include <algorithm>

namespace app
{

namespace
{

using platform::Os;
using platform::StringId;

constexpr std::size_t kEntriesAtOnce = 500;

bool IsPicture(const platform::FolderEntry& entry)
{
    return !entry.isFolder && browser::IsPictureFile(entry.name);
}

bool HoldsPictures(const std::string& folder)
{
    const auto reader = folder.empty() ? nullptr : Os().files->ReadFolder(folder);
    bool more = reader != nullptr;
    while (more) {
        std::vector<platform::FolderEntry> entries;
        more = reader->Read(kEntriesAtOnce, entries);
        if (std::ranges::any_of(entries, IsPicture))
            return true;
    }
    return false;
}

}  // namespace

ScreenSaverAnswer MakeScreenSaver(const std::string& folder, const std::vector<std::string>& selected)
{
    std::vector<std::string> pictures;
    for (const std::string& path : selected) {
        if (browser::IsPictureFile(path))
            pictures.push_back(path);
    }
    const bool isChosen = pictures.empty() && selected.size() == 1;
    const std::string place = isChosen ? selected.front() : folder;
    if (pictures.empty() && !HoldsPictures(place))
        return {StringId::screenSaverNoPictures, {}};
    if (!Os().screenSaver)
        return {StringId::screenSaverMissing, {}};
    switch (Os().screenSaver->ShowPictures(place, pictures)) {
    case platform::ScreenSaverResult::missing:
        return {StringId::screenSaverMissing, {}};
    case platform::ScreenSaverResult::noScreen:
        return {StringId::screenSaverNoScreen, {}};
    case platform::ScreenSaverResult::notWritten:
        return {StringId::screenSaverNotWritten, Os().files->LastError()};
    default:
        return {StringId::screenSaverSet, {}, true};
    }
}

}  // namespace app
