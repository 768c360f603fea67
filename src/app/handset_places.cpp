// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/handset_places.h"

#include "browser/file_names.h"
#include "handset/record_file.h"
#include "platform/file_system.h"

namespace app
{

namespace
{

using platform::FileDataType;

// `root` ends with a separator.
bool IsBelow(const std::string& folder, const std::string& root)
{
    return !root.empty() && (folder + '/').starts_with(root);
}

DataFolderKind FavouriteOf(FileDataType mode)
{
    switch (mode) {
    case FileDataType::mainWallpaper:
        return DataFolderKind::photo;
    case FileDataType::ring:
        return DataFolderKind::ring;
    default:
        return DataFolderKind::animation;
    }
}

}  // namespace

std::string FetchDestination(const CDataFolders& folders, const std::string& current, FileDataType mode)
{
    if (!IsBelow(current, folders.FavouriteRoot()))
        return current;
    std::string path = folders.FolderPath(FavouriteOf(mode));
    if (!path.empty())
        path.pop_back();
    return path;
}

bool IsFromHandset(const std::string& folder)
{
    return platform::Os()
        .files->FindFirstFile(browser::JoinPath(folder, platform::kHandsetRecordFile))
        .has_value();
}

void MakeProgramRecordFile(const std::string& programFolder, FileDataType mode)
{
    const char* const name = mode == FileDataType::ring ? "mobilering.dbs" : "mobilephoto.dbs";
    if (mode == FileDataType::ring || mode == FileDataType::mainWallpaper)
        handset::MakeRecordFile(browser::JoinPath(programFolder, name));
}

}  // namespace app
