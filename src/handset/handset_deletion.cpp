// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "handset/handset_deletion.h"

#include "handset/record_file.h"

#include <utility>

namespace handset
{

namespace
{

using platform::CUpDownLoad;

std::unique_ptr<CUpDownLoad> NewLink(unsigned port)
{
    std::unique_ptr<CUpDownLoad> link =
        platform::Os().handset ? platform::Os().handset->NewUpDownLoad() : nullptr;
    if (link)
        link->SetConnectPort(port);
    return link;
}

}  // namespace

FolderClass ClassOfFolder(const std::string& path)
{
    const std::string folder = path.substr(0, path.rfind('/') + 1);
    return folder.ends_with("/Ring/") ? FolderClass::ring : FolderClass::other;
}

platform::FileDataType DeletionCategory(FolderClass folderClass)
{
    return folderClass == FolderClass::ring ? platform::FileDataType::ring
                                            : platform::FileDataType::mainWallpaper;
}

CHandsetDeletion::CHandsetDeletion(std::vector<std::string> paths, FolderClass folderClass,
                                   unsigned portNumber)
    : files(std::move(paths)), type(DeletionCategory(folderClass)), port(portNumber)
{
}

bool CHandsetDeletion::Step()
{
    if (next >= files.size())
        return false;
    if (!held)
        held = NewLink(port);
    const std::string& path = files[next++];
    const int index = FindHandsetIndex(RecordFileOf(path), path.substr(path.rfind('/') + 1));
    const std::unique_ptr<CUpDownLoad> link = NewLink(port);
    if (!link || link->DeleteFileMobile(type, index) != platform::kHandsetDone) {
        failedPaths.push_back(path);
        reason = !link        ? ""
                 : index == 0 ? "no record says which file of the handset it is"
                              : link->LastError();
    }
    if (next >= files.size())
        held.reset();
    return true;
}

void CHandsetDeletion::Stop()
{
    next = files.size();
    held.reset();
}

platform::StringId CHandsetDeletion::Message() const
{
    return failedPaths.empty() ? platform::StringId::none : platform::StringId::handsetDeleteFailed;
}

}  // namespace handset
