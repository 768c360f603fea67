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
#include <utility>

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
    carriedOver = false;
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
    CarryOver(filled);
    const std::vector<MediaItem> former = std::exchange(items, std::move(filled));
    for (std::uint32_t rank = 0; MediaItem & item : items) {
        item.nameRank = rank++;
    }
    pendingThumbItems.clear();
    heldBitmaps.clear();
    nextThumbItem = 0;
    nextFactsItem = 0;
    nextDateItem = 0;
    knownBytes = 0;
    factsUnknown = 0;
    thumbnailsLeft = 0;
    for (int i = 0; i < Count(); ++i) {
        const MediaItem& item = Item(i);
        thumbnailsLeft += IsThumbnailLeft(item) ? 1 : 0;
        knownBytes += item.factsKnown && !item.isFolder ? item.fileSize : 0;
        factsUnknown += item.factsKnown ? 0 : 1;
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
    itemsStayed = std::ranges::equal(former, items, [](const MediaItem& left, const MediaItem& right) {
        return left.isFolder == right.isFolder && left.name == right.name;
    });
}

// What is known of a file that is still there stays known until it turns out to have changed.
void CMediaFileList::CarryOver(std::vector<MediaItem>& filled)
{
    if (std::exchange(carriedOver, true) || items.empty()) {
        return;
    }
    std::unordered_map<std::string_view, const MediaItem*> known;
    known.reserve(items.size());
    for (const MediaItem& item : items) {
        if (item.factsKnown) {
            known.emplace(item.name, &item);
        }
    }
    for (MediaItem& item : filled) {
        const auto found = known.find(item.name);
        if (found == known.end() || found->second->isFolder != item.isFolder ||
            found->second->isLink != item.isLink) {
            continue;
        }
        std::string name = std::move(item.name);
        item = *found->second;
        item.name = std::move(name);
        item.factsDue = true;
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
