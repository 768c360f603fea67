// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "handset/handset_fetch.h"

#include "browser/file_names.h"
#include "handset/record_file.h"
#include "platform/file_system.h"

#include <algorithm>
#include <utility>

namespace handset
{

namespace
{

using enum platform::FileDataType;
using platform::StringId;

std::vector<platform::FileDataType> TypesOf(const FetchChoice& choice)
{
    if (choice.mode != mainWallpaper)
        return {choice.mode};
    std::vector<platform::FileDataType> types;
    const std::pair<bool, platform::FileDataType> ticks[] = {{choice.mainWallpaper, mainWallpaper},
                                                             {choice.subWallpaper, subWallpaper},
                                                             {choice.myAlbum, photo},
                                                             {choice.frame, frame}};
    for (const auto& [isTicked, type] : ticks) {
        if (isTicked)
            types.push_back(type);
    }
    return types;
}

}  // namespace

std::string CategoryFolder(platform::FileDataType type)
{
    switch (type) {
    case mainWallpaper:
        return "Main Wallpaper";
    case subWallpaper:
        return "Sub Wallpaper";
    case photo:
        return "My Album";
    case frame:
        return "Frame";
    case ring:
        return "Ring";
    default:
        return "Animation";
    }
}

StringId CategoryTitle(platform::FileDataType type)
{
    switch (type) {
    case mainWallpaper:
        return StringId::handsetMainWallpaper;
    case subWallpaper:
        return StringId::handsetSubWallpaper;
    case photo:
        return StringId::handsetMyAlbum;
    case frame:
        return StringId::handsetFrame;
    case ring:
        return StringId::handsetRing;
    case java:
        return StringId::handsetJava;
    default:
        return StringId::handsetAnimation;
    }
}

CHandsetFetch::CHandsetFetch(const FetchChoice& choice, std::string destination, unsigned portNumber,
                             CTransferHost& shownBy)
    : CTransferRun(portNumber, shownBy), folder(std::move(destination))
{
    for (const platform::FileDataType type : TypesOf(choice))
        categories.push_back({type});
}

std::string CHandsetFetch::FolderFor(const Category& category) const
{
    return browser::JoinPath(folder, CategoryFolder(category.type));
}

bool CHandsetFetch::MakeFolders()
{
    platform::CFileSystem& disk = *platform::Os().files;
    return std::ranges::all_of(categories, [&](const Category& category) {
        const std::string path = FolderFor(category);
        if (disk.CreateDirectory(path))
            return true;
        const std::string why = disk.LastError();
        const auto facts = disk.FindFirstFile(path);
        if (facts && facts->isFolder)
            return true;
        Fail(StringId::handsetTransferFailed, path + ": " + why);
        return false;
    });
}

void CHandsetFetch::CountFiles(Category& category)
{
    const auto link = NewLink();
    const int count = link->GetFileCount(category.type);
    if (count < 0) {
        remark += (remark.empty() ? "" : "\n") + CategoryFolder(category.type) + ": " + link->LastError();
        return;
    }
    category.count = count;
    total += count;
}

bool CHandsetFetch::Start()
{
    if (!Connect() || !MakeFolders())
        return false;
    for (Category& category : categories) {
        if (!IsCancelled())
            CountFiles(category);
    }
    if (IsCancelled())
        return false;
    if (total < 1)
        host.ShowMessage(StringId::handsetNoItem, remark);
    return total >= 1;
}

std::size_t CHandsetFetch::NextCategory(int& position) const
{
    position = fetched;
    std::size_t category = 0;
    while (category + 1 < categories.size() && position >= categories[category].count)
        position -= categories[category++].count;
    return category;
}

platform::FileDataType CHandsetFetch::TypeInWork() const
{
    int position = 0;
    return categories[NextCategory(position)].type;
}

bool CHandsetFetch::Step()
{
    if (fetched >= total || failed || IsCancelled())
        return false;
    host.ShowCounter(fetched + 1, total);
    int position = 0;
    Category& category = categories[NextCategory(position)];
    if (!Fetch(category, position))
        return false;
    ++fetched;
    return fetched < total;
}

bool CHandsetFetch::Fetch(Category& category, int position)
{
    const std::string recordFile = browser::JoinPath(FolderFor(category), platform::kHandsetRecordFile);
    TransferredFile file;
    file.type = category.type;
    if (!category.isBegun && !MakeRecordFile(recordFile))
        return Take(file, recordFile + ": " + platform::Os().files->LastError());
    category.isBegun = true;
    const auto link = NewLink();
    int code = 0;
    platform::tag_DataType record;
    record.type = category.type;
    record.position = position;
    link->SetDatabaseName(recordFile);
    link->SetDataType(record);
    file.result = link->StartDownload(code);
    file.path = link->ReceivedPath();
    file.sentAs = browser::FileName(file.path);
    return Take(file, link->LastError());
}

}  // namespace handset
