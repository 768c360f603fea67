// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/member_carry.h"

#include "archive/package_archive.h"
#include "browser/file_names.h"
#include "browser/thumbnail_store.h"
#include "platform/services.h"
#include "platform/shell.h"

#include <algorithm>
#include <map>
#include <set>
#include <span>
#include <utility>

namespace browser
{

namespace
{

using archive::CPackageArchive;
using archive::RawMember;
using Paths = std::vector<CarriedPath>;

// Members on their way from one archive to another, held in memory at a time: some megabytes.
constexpr std::size_t kMostAtOnce = 256;

struct Renaming {
    std::size_t position;
    std::string name;
};

// Marks the member of that name, if it is none of those that are carried: it was of a file that is gone.
bool RemoveForeign(CPackageArchive& opened, const std::string& name, const std::set<std::size_t>& carried)
{
    const auto old = opened.FindExact(name);
    return !old || carried.contains(*old) || opened.Remove(*old);
}

// Under its new name.
void Note(const archive::PackageMember& member, std::vector<CaptionedFile>& captioned)
{
    const MemberTexts texts = CThumbnailStore::TextsOf(member);
    if (!texts.caption.empty() || !texts.secondText.empty()) {
        const std::size_t suffix = CThumbnailStore::EntryName({}).size();
        captioned.push_back({member.name.substr(0, member.name.size() - suffix), member.originalSize,
                             member.lastWriteTime, texts});
    }
}

bool IsFolder(const CarriedPath& path)
{
    if (path.isFolder) {
        return *path.isFolder;
    }
    const auto entry = platform::Os().shell->FindEntry(path.to);
    return entry && entry->isFolder;
}

class CMemberCarry
{
public:
    CMemberCarry(CThumbDbMgr& storeManager, CarryKind carryKind)
        : manager(storeManager), store(storeManager), kind(carryKind)
    {
    }

    bool Files(const std::string& fromFolder, const std::string& toFolder, const Paths& paths)
    {
        if (fromFolder == toFolder && kind != CarryKind::copy) {
            return !Has(fromFolder) || Rename(fromFolder, paths);
        }
        bool done = true;
        for (std::size_t i = 0; i < paths.size(); i += kMostAtOnce) {
            const std::size_t count = std::min(kMostAtOnce, paths.size() - i);
            done = Transfer(fromFolder, toFolder, std::span(paths).subspan(i, count)) && done;
        }
        return done;
    }

    bool Folder(const CarriedPath& path)
    {
        return kind != CarryKind::copy ? manager.FolderMoved(path.from, path.to) : CopyFolder(path);
    }

private:
    bool Has(const std::string& folder) const { return manager.GetDbFileForFolder(folder) != nullptr; }

    bool Rename(const std::string& folder, const Paths& paths)
    {
        CPackageArchive opened;
        if (!store.OpenForAdding(opened, folder)) {
            return false;
        }
        std::vector<CaptionedFile> captioned;
        bool done = RenameMembers(opened, paths, kind, captioned);
        done = opened.Close(true) && done;
        store.Book().Record(captioned);
        return done;
    }

    bool Transfer(const std::string& fromFolder, const std::string& toFolder,
                  std::span<const CarriedPath> paths)
    {
        std::vector<RawMember> members;
        std::vector<std::string> bare;
        bool done = Take(fromFolder, paths, members, bare);
        if (members.empty() && (bare.empty() || !Has(toFolder))) {
            return done;
        }
        CPackageArchive target;
        if (!store.OpenForAdding(target, toFolder)) {
            return false;
        }
        for (const std::string& name : bare) {
            done = RemoveForeign(target, name, {}) && done;
        }
        std::vector<CaptionedFile> captioned;
        for (const RawMember& member : members) {
            Note(member.record, captioned);
            done = RemoveForeign(target, member.record.name, {}) && done;
            done = target.AddRaw(member) && done;
        }
        target.Close(false);
        store.Book().Record(captioned);
        return done && (kind == CarryKind::copy || members.empty() || Drop(fromFolder, paths));
    }

    // The members under their new names, and the new names of files that have none.
    bool Take(const std::string& folder, std::span<const CarriedPath> paths, std::vector<RawMember>& members,
              std::vector<std::string>& bare)
    {
        CPackageArchive opened;
        if (Has(folder) && !store.OpenForAdding(opened, folder)) {
            return false;
        }
        for (const CarriedPath& path : paths) {
            const auto found =
                opened.IsOpen() ? CThumbnailStore::FindMember(opened, path.from) : std::nullopt;
            if (!found && kind != CarryKind::moveAgain) {
                bare.push_back(CThumbnailStore::EntryName(path.to));
            }
            const auto facts = found ? platform::Os().files->FindFirstFile(path.to) : std::nullopt;
            auto member = facts ? opened.TakeRaw(*found) : std::nullopt;
            if (!member) {
                continue;
            }
            member->record.name = CThumbnailStore::EntryName(path.to);
            // A member that was out of date before stays so.
            if (member->record.lastWriteTime == facts->lastWriteTime &&
                member->record.originalSize == facts->size) {
                member->record.creationTime = facts->creationTime;
            }
            members.push_back(std::move(*member));
        }
        return true;
    }

    // What was moved away from the folder is not there any more.
    bool Drop(const std::string& folder, std::span<const CarriedPath> paths)
    {
        CPackageArchive opened;
        bool done = store.OpenForAdding(opened, folder);
        for (const CarriedPath& path : paths) {
            const auto old = done ? opened.FindExact(CThumbnailStore::EntryName(path.from)) : std::nullopt;
            done = done && (!old || opened.Remove(*old));
        }
        opened.Close(false);
        return done;
    }

    bool CopyFolder(const CarriedPath& path)
    {
        std::vector<std::string> folders;
        for (const ThumbDbRecord& record : manager.Records()) {
            if (record.folderPath == path.from || record.folderPath.starts_with(JoinPath(path.from, ""))) {
                folders.push_back(record.folderPath);
            }
        }
        bool done = true;
        for (const std::string& folder : folders) {
            const std::string target = path.to + folder.substr(path.from.size());
            done = Files(folder, target, MembersOf(folder, target)) && done;
        }
        return done;
    }

    Paths MembersOf(const std::string& folder, const std::string& target)
    {
        Paths paths;
        CPackageArchive opened;
        const std::size_t count = store.OpenForAdding(opened, folder) ? opened.Count() : 0;
        const std::size_t suffix = CThumbnailStore::EntryName({}).size();
        for (std::size_t i = 0; i < count; ++i) {
            const archive::PackageMember& member = opened.Member(i);
            if (!member.deleted && member.name.size() > suffix) {
                const std::string name = member.name.substr(0, member.name.size() - suffix);
                paths.push_back({JoinPath(folder, name), JoinPath(target, name)});
            }
        }
        return paths;
    }

    CThumbDbMgr& manager;
    CThumbnailStore store;
    CarryKind kind;
};

}  // namespace

// All members are found before the first gets its new name, which may be the old one of another.
bool RenameMembers(CPackageArchive& opened, const Paths& paths, CarryKind kind,
                   std::vector<CaptionedFile>& captioned)
{
    std::vector<Renaming> renamings;
    std::vector<std::string> inTheWay;
    std::set<std::size_t> carried;
    for (const CarriedPath& path : paths) {
        std::string name = CThumbnailStore::EntryName(path.to);
        const auto found = CThumbnailStore::FindMember(opened, path.from);
        if (found || kind != CarryKind::moveAgain) {
            inTheWay.push_back(name);
        }
        if (found) {
            renamings.push_back({*found, std::move(name)});
            carried.insert(*found);
        }
    }
    bool done = true;
    for (const std::string& name : inTheWay) {
        done = RemoveForeign(opened, name, carried) && done;
    }
    for (const auto& [position, name] : renamings) {
        done = opened.SetName(position, name) && done;
        Note(opened.Member(position), captioned);
    }
    return done;
}

bool CarryMembers(CThumbDbMgr& manager, const std::vector<CarriedPath>& paths, CarryKind kind)
{
    CMemberCarry carry(manager, kind);
    std::map<std::pair<std::string, std::string>, Paths> byFolders;
    bool done = true;
    for (const CarriedPath& path : paths) {
        if (IsFolder(path)) {
            done = carry.Folder(path) && done;
        } else {
            byFolders[{std::string(FolderOf(path.from)), std::string(FolderOf(path.to))}].push_back(path);
        }
    }
    for (const auto& [folders, files] : byFolders) {
        done = carry.Files(folders.first, folders.second, files) && done;
    }
    return done;
}

}  // namespace browser
