// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/thumbnail_store.h"

#include "archive/package_archive.h"
#include "browser/file_names.h"
#include "platform/services.h"

#include <span>

namespace browser
{

namespace
{

using archive::CPackageArchive;
using archive::PackageMember;

constexpr std::string_view kEntrySuffix = ".jpg";
// The longest name that a folder can hold; an entry name of more goes by another name while it is a file.
constexpr std::size_t kLongestFileName = 255;

platform::CFileSystem& Files()
{
    return *platform::Os().files;
}

// The path of the temporary file that stands for an entry; empty without a temporary folder.
std::string TemporaryPath(const std::string& entryName)
{
    const std::string folder = Files().GetTempPath();
    if (folder.empty()) {
        return {};
    }
    return JoinPath(folder, entryName.size() > kLongestFileName ? "~long~name~.jpg" : entryName);
}

bool HasTexts(const PackageMember& member)
{
    return !member.caption.empty() || !member.secondText.empty() || !member.timeStampText.empty();
}

bool IsCurrent(const PackageMember& member, const archive::SourceFacts& facts)
{
    return facts.size == 0 ||
           (facts.creationTime == member.creationTime && facts.lastWriteTime == member.lastWriteTime &&
            facts.size == member.originalSize);
}

struct LoadedEntry {
    platform::BitmapHandle bitmap;
    bool isDamaged = false;  // what is stored is no picture, whoever reads it
};

LoadedEntry LoadEntry(CPackageArchive& opened, std::size_t index)
{
    std::string data;
    if (!opened.ExtractToMemory(index, data)) {
        return {nullptr, opened.IsDamaged()};
    }
    const std::string path = TemporaryPath(opened.Member(index).name);
    auto file = path.empty() ? nullptr : Files().Open(path, platform::OpenMode::create);
    LoadedEntry loaded;
    if (file && file->WriteAt(0, std::as_bytes(std::span(data)))) {
        const platform::CImage image(path);
        loaded.bitmap = image.GetThumbnail(image.Width(), image.Height(), 7, 0x21808);
        loaded.isDamaged = !loaded.bitmap;
    }
    if (file) {
        Files().DeleteFile(path);
    }
    return loaded;
}

}  // namespace

std::string CThumbnailStore::EntryName(const std::string& path)
{
    return std::string(FileName(path)).append(kEntrySuffix);
}

MemberTexts CThumbnailStore::TextsOf(const PackageMember& member)
{
    return {member.caption, member.timeStampText, member.secondText};
}

std::optional<std::size_t> CThumbnailStore::FindMember(const CPackageArchive& opened, const std::string& path)
{
    const std::string entryName = EntryName(path);
    if (const auto exact = opened.FindExact(entryName)) {
        return exact;
    }
    const auto similar = opened.Find(entryName);
    if (!similar) {
        return std::nullopt;
    }
    std::string owner = opened.Member(*similar).name;
    owner.resize(owner.size() - kEntrySuffix.size());
    const bool hasItsOwnFile = Files().FindFirstFile(JoinPath(FolderOf(path), owner)).has_value();
    return hasItsOwnFile ? std::nullopt : similar;
}

std::optional<StoredThumbnail> CThumbnailStore::Fetch(const std::string& path,
                                                      const platform::FileFacts& facts)
{
    std::string archivePath;
    CPackageArchive opened;
    opened.SetPatience(manager.Patience());
    if (!manager.AddFolder(std::string(FolderOf(path))) ||
        manager.GetDbPathForFile(path, &archivePath) == 0 ||
        !opened.Open(archivePath, CPackageArchive::Mode::readWrite)) {
        return std::nullopt;
    }
    std::optional<StoredThumbnail> stored;
    if (const auto index = FindMember(opened, path)) {
        const PackageMember& member = opened.Member(*index);
        const bool isCurrent = IsCurrent(member, {facts.creationTime, facts.lastWriteTime, facts.size});
        LoadedEntry loaded = isCurrent ? LoadEntry(opened, *index) : LoadedEntry{};
        if (!isCurrent || loaded.isDamaged) {
            Retire(opened, *index, loaded.isDamaged);
        } else if (loaded.bitmap) {
            stored = StoredThumbnail{std::move(loaded.bitmap), member.thirdTime, member.timeStampText};
        }
    }
    opened.Close(false);
    return stored;
}

// The member is of no use as a thumbnail any more. Its texts stay until a new one takes them over; damaged
// data would be taken for a thumbnail of the file again, so the texts get a member without data.
void CThumbnailStore::Retire(CPackageArchive& opened, std::size_t index, bool isDamaged)
{
    const PackageMember& member = opened.Member(index);
    if (!HasTexts(member)) {
        opened.Remove(index);
    } else if (isDamaged && member.storedSize > 0) {
        archive::RawMember texts{member, {}};
        texts.record.lastWriteTime = 0;
        if (opened.AddRaw(texts)) {
            opened.Remove(index);
        }
    }
}

bool CThumbnailStore::Keep(const std::string& path, const platform::Bitmap& bitmap,
                           const platform::FileFacts& facts, platform::FileTime thirdTime,
                           const std::string& dateText)
{
    const std::string entryName = EntryName(path);
    const std::string temporary = TemporaryPath(entryName);
    CPackageArchive opened;
    if (temporary.empty() ||
        !platform::Os().images->SaveJpeg(bitmap, temporary, platform::kDefaultJpegQuality)) {
        return false;
    }
    archive::AddOptions options;
    options.facts = archive::SourceFacts{facts.creationTime, facts.lastWriteTime, facts.size};
    options.thirdTime = thirdTime;
    options.timeStampText = dateText;
    options.memberName = entryName;
    const bool kept = OpenForAdding(opened, std::string(FolderOf(path))) &&
                      PutInPlace(opened, temporary, path, std::move(options));
    opened.Close(false);
    Files().DeleteFile(temporary);
    return kept;
}

// Adds the thumbnail in the temporary file in the place of the member that the photo has, if it has one.
bool CThumbnailStore::PutInPlace(CPackageArchive& opened, const std::string& temporary,
                                 const std::string& path, archive::AddOptions options)
{
    const archive::SourceFacts facts = options.facts.value_or(archive::SourceFacts());
    const auto old = opened.FindExact(options.memberName);
    // A member that still is good was only unreadable at the moment.
    if (old && IsCurrent(opened.Member(*old), facts) && opened.Member(*old).storedSize > 0) {
        return false;
    }
    const std::string name(FileName(path));
    CaptionedFile captioned{name, facts.size, facts.lastWriteTime,
                            old ? TextsOf(opened.Member(*old))
                                : book.Find(name, facts.size, facts.lastWriteTime)};
    MemberTexts& texts = captioned.texts;
    const bool isUsers = !texts.caption.empty() || !texts.secondText.empty();
    if (!isUsers && !options.timeStampText.empty()) {
        texts.timeStamp = options.timeStampText;
    }
    options.caption = texts.caption;
    options.secondText = texts.secondText;
    options.timeStampText = texts.timeStamp;
    if (!opened.AddFile(temporary, options) || (old && !opened.Remove(*old))) {
        return false;
    }
    if (isUsers && old) {
        book.Record(std::span(&captioned, 1));
    }
    return true;
}

bool CThumbnailStore::OpenForAdding(CPackageArchive& opened, const std::string& folder) const
{
    const std::string* name = manager.AddFolder(folder);
    opened.SetPatience(manager.Patience());
    return name && OpenOrMake(opened, JoinPath(manager.DbFolder(), *name));
}

// Making the archive and finding it already made must not cross: two processes would empty each other's. A
// file that is no archive has nothing to keep.
bool CThumbnailStore::OpenOrMake(CPackageArchive& opened, const std::string& archivePath) const
{
    const auto openExisting = [&] { return opened.Open(archivePath, CPackageArchive::Mode::readWrite); };
    if (openExisting() && !opened.IsForeign()) {
        return true;
    }
    const bool isForeign = opened.IsForeign();
    opened.Close(false);
    const auto lock = manager.LockStore();
    if (!lock) {
        return false;
    }
    const bool othersMadeIt = !isForeign && Files().FindFirstFile(archivePath);
    return othersMadeIt ? openExisting() : opened.Open(archivePath, CPackageArchive::Mode::create);
}

bool CThumbnailStore::SetTexts(const std::string& path, const std::string& entryName,
                               const std::string& caption, const std::string& timeStampText,
                               const std::string& secondText)
{
    std::string archivePath;
    CPackageArchive opened;
    opened.SetPatience(manager.Patience());
    if (manager.GetDbPathForFile(path, &archivePath) == 0 ||
        !opened.Open(archivePath, CPackageArchive::Mode::readWrite)) {
        return false;
    }
    const auto index = opened.Find(entryName);
    const bool set = index && opened.SetTexts(*index, caption, timeStampText, secondText);
    return opened.Close(true) && set;
}

}  // namespace browser
