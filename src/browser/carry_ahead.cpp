// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/carry_ahead.h"

#include "browser/file_names.h"
#include "browser/thumbnail_store.h"

#include <algorithm>
#include <utility>

namespace browser
{

namespace
{

constexpr std::size_t kFewestFiles = 500;

bool StaysInOneFolder(const std::vector<CarriedPath>& paths)
{
    const std::string folder(FolderOf(paths.front().from));
    return std::ranges::all_of(paths, [&folder](const CarriedPath& path) {
        return FolderOf(path.from) == folder && FolderOf(path.to) == folder;
    });
}

bool IsSameMove(const CarriedPath& left, const CarriedPath& right)
{
    return left.from == right.from && left.to == right.to && left.isFolder == right.isFolder;
}

}  // namespace

CCarryAhead::CCarryAhead(const std::string& storeFolder, std::vector<CarriedPath> toBeMoved)
    : manager(storeFolder), planned(std::move(toBeMoved))
{
    if (!storeFolder.empty() && planned.size() >= kFewestFiles && StaysInOneFolder(planned)) {
        prepared = std::async(std::launch::async, [this] { return Prepare(); });
    }
}

bool CCarryAhead::Prepare()
{
    manager.Load();
    std::string archivePath;
    opened.SetPatience(0);
    if (manager.GetDbPathForFile(planned.front().from, &archivePath) == 0 ||
        !opened.Open(archivePath, archive::CPackageArchive::Mode::read) || opened.Count() == 0) {
        return false;
    }
    // Whose a member is that differs in case alone is asked of the folder, which is changing now.
    const bool isPlain = std::ranges::all_of(planned, [this](const CarriedPath& path) {
        const std::string name = CThumbnailStore::EntryName(path.from);
        return opened.FindExact(name) || !opened.Find(name);
    });
    return isPlain && RenameMembers(opened, planned, CarryKind::move, captioned) &&
           opened.PrepareCompaction();
}

bool CCarryAhead::Finish(const std::vector<CarriedPath>& moved)
{
    const bool isReady = prepared.valid() && prepared.get() && std::ranges::equal(planned, moved, IsSameMove);
    if (!isReady || !opened.CommitCompaction()) {
        opened.Close(false);
        return false;
    }
    CThumbnailStore(manager).Book().Record(captioned);
    return true;
}

}  // namespace browser
