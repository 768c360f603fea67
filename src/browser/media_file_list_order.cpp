// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The list's order, and reading from the files what it is made by.
#include "browser/media_file_list.h"

#include "browser/date_taken.h"
#include "browser/file_names.h"
#include "platform/services.h"
#include "platform/utility.h"

#include <algorithm>

namespace browser
{

namespace
{

// How long the end of a fill is put off for what the list is sorted by.
constexpr std::uint64_t kFillPatience = 300;
// Files asked in one step of a fill: some milliseconds' work.
constexpr std::size_t kFactsAtOnce = 256;
constexpr std::size_t kDatesAtOnce = 32;
// A date costs as much as this many sizes and times.
constexpr int kFactsPerDate = 8;

bool MayTellDate(const MediaItem& item)
{
    return (item.types & kTypePicture) != 0;
}

}  // namespace

bool CMediaFileList::SetOrder(SortOrder wanted)
{
    if (wanted == order && !unsorted) {
        return false;
    }
    order = wanted;
    unsorted = true;
    if (MustRead()) {
        return false;
    }
    Sort();
    return true;
}

void CMediaFileList::Sort()
{
    Arrange(OrderOf(items, order));
    unsorted = false;
}

bool CMediaFileList::HasOrderKey(const MediaItem& item) const
{
    switch (NeedsOf(order.key)) {
    case SortNeeds::facts:
        return item.factsKnown && !item.factsDue;
    case SortNeeds::dates:
        return item.dateKnown || !MayTellDate(item);
    default:
        return true;
    }
}

// Files that could not be read when it was their turn count as read.
bool CMediaFileList::MustRead() const
{
    if (NeedsOf(order.key) == SortNeeds::nothing || ReadForOrder() >= Count()) {
        return false;
    }
    return !std::ranges::all_of(items, [this](const MediaItem& item) { return HasOrderKey(item); });
}

void CMediaFileList::Arrange(const std::vector<std::uint32_t>& indexes)
{
    std::vector<MediaItem> arranged;
    arranged.reserve(items.size());
    std::vector<int> places(items.size());
    for (const std::uint32_t index : indexes) {
        places[index] = static_cast<int>(arranged.size());
        arranged.push_back(std::move(items[index]));
    }
    items = std::move(arranged);
    const auto placeOf = [&places](int index) { return places[static_cast<std::size_t>(index)]; };
    std::ranges::transform(heldBitmaps, heldBitmaps.begin(), placeOf);
    std::set<int> pending;
    for (const int index : pendingThumbItems) {
        if (index >= 0 && index < Count()) {
            pending.insert(placeOf(index));
        }
    }
    pendingThumbItems = std::move(pending);
    nextThumbItem = 0;
    nextFactsItem = nextFactsItem < Count() ? 0 : Count();
    nextDateItem = nextDateItem < Count() ? 0 : Count();
}

// One piece of reading what the list will be sorted by, while the items are not yet on show. False when there
// is no more to read or no more time.
bool CMediaFileList::ReadIncoming()
{
    const SortNeeds needs = NeedsOf(order.key);
    const std::uint64_t spent = platform::Os().utility->GetTickCount() - fillStart;
    if (needs == SortNeeds::nothing || runs.empty() || spent >= kFillPatience) {
        return false;
    }
    std::vector<MediaItem>& incoming = runs.front();
    const std::size_t step = needs == SortNeeds::dates ? kDatesAtOnce : kFactsAtOnce;
    const std::size_t end = std::min(incoming.size(), incomingRead + step);
    if (incomingRead == 0) {
        CarryOver(incoming);
    }
    for (; incomingRead < end; ++incomingRead) {
        MediaItem& item = incoming[incomingRead];
        const std::string path = JoinPath(folder, item.name);
        if (const auto facts = platform::Os().files->FindFirstFile(path)) {
            TakeFacts(item, *facts);
        }
        if (needs == SortNeeds::dates) {
            TakeDate(item, path);
        }
    }
    return incomingRead < incoming.size();
}

void CMediaFileList::TakeFacts(MediaItem& item, const platform::FileFacts& facts)
{
    const bool changed = item.lastWriteTime != facts.lastWriteTime ||
                         item.creationTime != facts.creationTime ||
                         (!item.isFolder && item.fileSize != facts.size);
    item.dateKnown = item.dateKnown && !changed;
    if (item.factsDue && changed) {
        item.thumbnailOutdated = item.thumbnailDone;
        item.thumbnailDone = false;
        item.thumbnailFailed = false;
    }
    item.fileSize = item.isFolder ? 0 : facts.size;
    item.creationTime = facts.creationTime;
    item.lastWriteTime = facts.lastWriteTime;
    item.changeTime = facts.changeTime;
    item.factsKnown = true;
    item.factsDue = false;
}

void CMediaFileList::TakeDate(MediaItem& item, const std::string& path)
{
    if (!item.dateKnown && MayTellDate(item)) {
        item.dateTaken = ReadDateTaken(path);
    }
    item.dateKnown = true;
}

void CMediaFileList::SetFacts(int index, const platform::FileFacts& facts)
{
    MediaItem& item = items[static_cast<std::size_t>(index)];
    const std::uint64_t counted = item.factsKnown ? item.fileSize : 0;
    const bool wasLeft = IsThumbnailLeft(item);
    factsUnknown -= item.factsKnown ? 0 : 1;
    TakeFacts(item, facts);
    knownBytes += item.fileSize - counted;
    if (IsThumbnailLeft(item) && !wasLeft) {
        ++thumbnailsLeft;
        nextThumbItem = std::min(nextThumbItem, index);
    }
}

bool CMediaFileList::ReadFacts(int index)
{
    const MediaItem& item = Item(index);
    if (item.factsKnown && !item.factsDue) {
        return true;
    }
    const platform::FileFacts known{.creationTime = item.creationTime,
                                    .lastWriteTime = item.lastWriteTime,
                                    .changeTime = item.factsKnown ? item.changeTime : 0};
    const auto facts = platform::Os().files->FindFirstFileAgain(PathOf(index), known);
    if (facts) {
        SetFacts(index, *facts);
    }
    return facts.has_value();
}

void CMediaFileList::ReadDate(int index)
{
    ReadFacts(index);
    TakeDate(items[static_cast<std::size_t>(index)], PathOf(index));
}

bool CMediaFileList::FactsStep(int most)
{
    if (FactsLeft()) {
        const int end = std::min(Count(), nextFactsItem + most);
        for (; nextFactsItem < end; ++nextFactsItem) {
            ReadFacts(nextFactsItem);
        }
    } else if (DatesAreWanted()) {
        const int end = std::min(Count(), nextDateItem + std::max(1, most / kFactsPerDate));
        for (; nextDateItem < end; ++nextDateItem) {
            ReadDate(nextDateItem);
        }
    }
    return !AllRead();
}

}  // namespace browser
