// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The list's items: reading a folder, filtering, facts. The thumbnails are in media_file_list_thumbnails.cpp.
#include "browser/media_file_list.h"

#include "browser/file_names.h"
#include "platform/services.h"
#include "platform/utility.h"

#include <algorithm>
#include <iterator>
#include <unordered_map>

namespace browser
{

namespace
{

// Entries read and sorted in one step: a few milliseconds' work.
constexpr std::size_t kChunk = 2000;

bool ItemBefore(const MediaItem& left, const MediaItem& right)
{
    return left.isFolder != right.isFolder ? left.isFolder : NameBefore(left.name, right.name);
}

MediaItem MakeItem(platform::FolderEntry& entry)
{
    MediaItem item;
    item.isFolder = entry.isFolder;
    item.isLink = entry.isLink;
    if (!entry.isFolder) {
        item.types = static_cast<std::uint8_t>(TypeBits(entry.name));
        item.needsThumbnail = (item.types & kTypesWithThumbnail) != 0;
    }
    item.name = std::move(entry.name);
    return item;
}

}  // namespace

CMediaFileList::CMediaFileList(CThumbDbMgr* storeManager) : patterns(FilterPatterns(kFilterMedia))
{
    if (storeManager) {
        store.emplace(*storeManager);
    }
}

bool CMediaFileList::StartFill(const std::string& folderPath)
{
    runs.clear();
    incomingCount = 0;
    readerAtEnd = false;
    incomingRead = 0;
    fillStart = platform::Os().utility->GetTickCount();
    fillError.clear();
    if (folderPath != folder) {
        items.clear();
        folder = folderPath;
    }
    reader = IsSpecialPlace(folder) ? nullptr : platform::Os().files->ReadFolder(folder);
    if (!reader) {
        fillError = IsSpecialPlace(folder) ? "This place holds no files" : platform::Os().files->LastError();
        TakeOver({});
        state = FillState::failed;
        return false;
    }
    SetRefreshing(true);
    state = FillState::reading;
    return true;
}

bool CMediaFileList::Fill(const std::string& folderPath)
{
    const bool started = StartFill(folderPath);
    while (FillStep()) {
    }
    return started;
}

bool CMediaFileList::FillStep()
{
    if (state != FillState::reading) {
        return false;
    }
    if (MergeIsDue()) {
        MergeTopRuns();
    } else if (!readerAtEnd) {
        ReadChunk();
    } else if (!ReadIncoming()) {
        EndFill();
    }
    return state == FillState::reading;
}

void CMediaFileList::ReadChunk()
{
    std::vector<platform::FolderEntry> entries;
    readerAtEnd = !reader->Read(kChunk, entries);
    std::vector<MediaItem> run;
    for (platform::FolderEntry& entry : entries) {
        if (Wanted(entry)) {
            run.push_back(MakeItem(entry));
        }
    }
    incomingCount += run.size();
    std::ranges::sort(run, ItemBefore);
    if (!run.empty()) {
        runs.push_back(std::move(run));
    }
}

// Runs are merged as soon as two neighbours are of like size, so that each item moves only a few times and
// the last merge is the longest piece of work.
bool CMediaFileList::MergeIsDue() const
{
    const std::size_t count = runs.size();
    return count >= 2 && (readerAtEnd || runs[count - 2].size() < 2 * runs[count - 1].size());
}

void CMediaFileList::MergeTopRuns()
{
    std::vector<MediaItem> right = std::move(runs.back());
    runs.pop_back();
    std::vector<MediaItem>& left = runs.back();
    std::vector<MediaItem> merged;
    merged.reserve(left.size() + right.size());
    std::merge(std::move_iterator(left.begin()), std::move_iterator(left.end()),
               std::move_iterator(right.begin()), std::move_iterator(right.end()), std::back_inserter(merged),
               ItemBefore);
    left = std::move(merged);
}

void CMediaFileList::EndFill()
{
    reader.reset();
    TakeOver(runs.empty() ? std::vector<MediaItem>{} : std::move(runs.front()));
    runs.clear();
    state = FillState::idle;
    SetRefreshing(false);
}

bool CMediaFileList::Wanted(const platform::FolderEntry& entry) const
{
    if (entry.name.starts_with('.')) {
        return false;
    }
    return entry.isFolder ? includeFolder : patterns.Matches(entry.name);
}

void CMediaFileList::TakeOver(std::vector<MediaItem> filled)
{
    CarryBitmaps(filled);
    CarryFacts(filled);
    items = std::move(filled);
    for (std::uint32_t rank = 0; MediaItem & item : items) {
        item.nameRank = rank++;
    }
    pendingThumbItems.clear();
    heldBitmaps.clear();
    nextThumbItem = 0;
    nextFactsItem = 0;
    nextDateItem = 0;
    knownBytes = 0;
    thumbnailsLeft = 0;
    for (int i = 0; i < Count(); ++i) {
        const MediaItem& item = Item(i);
        thumbnailsLeft += item.needsThumbnail && !item.thumbnailDone ? 1 : 0;
        knownBytes += item.factsKnown && !item.isFolder ? item.fileSize : 0;
        if (item.thumbnail) {
            heldBitmaps.push_back(i);
        }
    }
    unsorted = order != SortOrder{};
    if (unsorted) {
        // By what is known so far where there is more to be read.
        const bool mustRead = MustRead();
        Arrange(OrderOf(items, order));
        unsorted = mustRead;
    }
}

// Pictures on show stay on show through a refresh when their files are as they were.
void CMediaFileList::CarryBitmaps(std::vector<MediaItem>& filled) const
{
    std::unordered_map<std::string_view, const MediaItem*> held;
    for (const int index : heldBitmaps) {
        if (index < Count()) {
            held.emplace(Item(index).name, &Item(index));
        }
    }
    if (held.empty()) {
        return;
    }
    for (MediaItem& item : filled) {
        const auto found = held.find(item.name);
        if (found == held.end()) {
            continue;
        }
        const MediaItem& old = *found->second;
        const auto facts = platform::Os().files->FindFirstFile(JoinPath(folder, item.name));
        if (facts && facts->size == old.fileSize && facts->lastWriteTime == old.lastWriteTime &&
            facts->creationTime == old.creationTime) {
            item = old;
        }
    }
}

bool CMediaFileList::SetFilter(int mode, int includeFolders)
{
    bool changed = false;
    if (includeFolders != kKeep && (includeFolders != 0) != includeFolder) {
        includeFolder = includeFolders != 0;
        changed = true;
    }
    if (mode != kKeep && mode != filter) {
        filter = mode;
        if (const std::string list = FilterPatterns(mode); !list.empty()) {
            patterns = CPatternList(list);
        }
        changed = true;
    }
    return changed;
}

std::string CMediaFileList::PathOf(int index) const
{
    return JoinPath(folder, Item(index).name);
}

}  // namespace browser
