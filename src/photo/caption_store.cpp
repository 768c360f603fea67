// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/caption_store.h"

#include "archive/package_archive.h"
#include "browser/file_names.h"
#include "browser/thumbnail_maker.h"
#include "platform/services.h"

#include <algorithm>
#include <map>

namespace photo
{

namespace
{

using archive::CPackageArchive;
using browser::CThumbnailStore;
using platform::FileFailure;
using platform::Os;

const std::string kNoStore = "the thumbnail store cannot be used";

PhotoTexts TextsOf(const CPackageArchive& opened, const std::string& path)
{
    const auto found = CThumbnailStore::FindMember(opened, path);
    if (!found) {
        return {};
    }
    return CThumbnailStore::TextsOf(opened.Member(*found));
}

bool IsTooLong(const std::optional<std::string>& text)
{
    return text && text->size() > archive::kLongestText;
}

}  // namespace

PhotoTexts CCaptionStore::Get(const std::string& path) const
{
    return Get(std::vector{path}).front();
}

std::vector<PhotoTexts> CCaptionStore::Get(const std::vector<std::string>& paths) const
{
    std::vector<PhotoTexts> texts;
    texts.reserve(paths.size());
    CPackageArchive opened;
    opened.SetPatience(manager.Patience());
    std::string openedPath;
    for (const std::string& path : paths) {
        std::string archivePath;
        manager.GetDbPathForFile(path, &archivePath);
        if (archivePath != openedPath) {
            opened.Close(false);
            openedPath = archivePath;
            if (!archivePath.empty()) {
                opened.Open(archivePath, CPackageArchive::Mode::read);
            }
        }
        texts.push_back(opened.IsOpen() ? TextsOf(opened, path) : PhotoTexts{});
    }
    return texts;
}

CaptionReport CCaptionStore::Set(const std::vector<std::string>& paths, const TextChange& change,
                                 browser::CFileJobHost& host)
{
    CaptionReport report;
    if (IsTooLong(change.caption) || IsTooLong(change.timeStamp) || IsTooLong(change.secondText)) {
        report.problems.push_back({{}, FileFailure::other, "the text is longer than 65535 bytes"});
        return report;
    }
    std::map<std::string, Group> groups;
    for (const std::string& path : paths) {
        groups[std::string(browser::FolderOf(path))].push_back(path);
    }
    std::size_t item = 0;
    for (const auto& [folder, group] : groups) {
        const double fraction = static_cast<double>(item) / static_cast<double>(paths.size());
        if (!host.Progress({group.front(), item, paths.size(), fraction})) {
            report.cancelled = true;
            break;
        }
        SetInFolder(folder, group, change, report);
        item += group.size();
    }
    return report;
}

void CCaptionStore::SetInFolder(const std::string& folder, const Group& paths, const TextChange& change,
                                CaptionReport& report)
{
    const std::vector<bool> held = FindHeld(folder, paths);
    Group ready;
    for (std::size_t i = 0; i < paths.size(); ++i) {
        const std::string reason = held[i] ? std::string() : MakeMember(paths[i]);
        if (reason.empty()) {
            ready.push_back(paths[i]);
        } else {
            report.problems.push_back({paths[i], FileFailure::other, reason});
        }
    }
    const std::string reason = WriteTexts(folder, ready, change);
    if (reason.empty()) {
        report.stored += ready.size();
        return;
    }
    for (const std::string& path : ready) {
        report.problems.push_back({path, FileFailure::other, reason});
    }
}

std::vector<bool> CCaptionStore::FindHeld(const std::string& folder, const Group& paths) const
{
    std::vector<bool> held(paths.size(), false);
    CPackageArchive opened;
    if (!store.OpenForAdding(opened, folder)) {
        return held;
    }
    std::transform(paths.begin(), paths.end(), held.begin(), [&](const std::string& path) {
        return CThumbnailStore::FindMember(opened, path).has_value();
    });
    return held;
}

// All of them or none; why not, or an empty text.
std::string CCaptionStore::WriteTexts(const std::string& folder, const Group& paths, const TextChange& change)
{
    CPackageArchive opened;
    if (paths.empty()) {
        return {};
    }
    if (!store.OpenForAdding(opened, folder)) {
        return opened.Error().empty() ? kNoStore : opened.Error();
    }
    std::vector<browser::CaptionedFile> captioned;
    for (const std::string& path : paths) {
        const auto found = CThumbnailStore::FindMember(opened, path);
        if (!found) {
            return kNoStore;
        }
        const archive::PackageMember& member = opened.Member(*found);
        opened.SetTexts(*found, change.caption.value_or(member.caption),
                        change.timeStamp.value_or(member.timeStampText),
                        change.secondText.value_or(member.secondText));
        if (const auto facts = Os().files->FindFirstFile(path)) {
            captioned.push_back({std::string(browser::FileName(path)), facts->size, facts->lastWriteTime,
                                 CThumbnailStore::TextsOf(member)});
        }
    }
    if (!opened.Close(true)) {
        return opened.Error();
    }
    store.Book().Record(captioned);
    return {};
}

// Why not, or an empty text. A picture that nothing can be made of gets a member without data, which holds
// its texts.
std::string CCaptionStore::MakeMember(const std::string& path) const
{
    const auto facts = Os().files->FindFirstFile(path);
    if (!facts) {
        return Os().files->LastError();
    }
    if (!facts->isRegular) {
        return "not a file";
    }
    browser::PictureFacts picture;
    const auto bitmap =
        browser::MakeThumbnail(path, browser::kThumbnailSide, browser::kThumbnailSide, picture);
    browser::CThumbnailStore keeper(manager);
    if (bitmap && keeper.Keep(path, *bitmap, *facts, 0, picture.dateText)) {
        return {};
    }
    archive::RawMember texts;
    texts.record.name = CThumbnailStore::EntryName(path);
    CPackageArchive opened;
    const bool made =
        store.OpenForAdding(opened, std::string(browser::FolderOf(path))) && opened.AddRaw(texts);
    return made ? std::string() : opened.Error().empty() ? kNoStore : opened.Error();
}

}  // namespace photo
