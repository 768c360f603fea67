// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/media_file_list.h"

#include "browser/file_names.h"
#include "browser/thumbnail_maker.h"
#include "platform/services.h"
#include "platform/utility.h"

#include <fmt/format.h>

#include <algorithm>

namespace browser
{

namespace
{

// Failures take time without giving a picture; a tick that has spent this long on them leaves the rest to the
// next one.
constexpr std::uint64_t kTickMilliseconds = 12;
// Bitmaps held at least, whatever is visible; at most 130 kB each.
constexpr std::size_t kHeldAtLeast = 96;

void Trace(const char* format, int index)
{
    platform::Os().utility->OutputDebugString(fmt::format(fmt::runtime(format), index));
}

}  // namespace

// How long the present tick has been at work.
class CMediaFileList::CTick
{
public:
    bool IsOver() const { return platform::Os().utility->GetTickCount() - start >= kTickMilliseconds; }

private:
    std::uint64_t start = platform::Os().utility->GetTickCount();
};

StepOutcome CMediaFileList::ThumbnailStep(bool thumbnailView, std::optional<VisibleRange> visible)
{
    if (!thumbnailView || !visible || visible->last < visible->first) {
        return {};
    }
    const CTick tick;
    int redraw = VisibleStep(*visible, tick);
    if (redraw < 0 && !tick.IsOver()) {
        redraw = RestStep(tick);
    }
    LetGoFarBitmaps(*visible);
    if (redraw >= 0 || tick.IsOver()) {
        return {redraw, true};
    }
    ApplyEntryUpdates();
    return {};
}

// The first visible item that got its thumbnail, or -1.
int CMediaFileList::VisibleStep(VisibleRange visible, const CTick& tick)
{
    for (int i = std::max(0, visible.first); i <= visible.last && i < Count() && !tick.IsOver(); ++i) {
        if (Item(i).factsDue) {
            ReadFacts(i);
        }
        const bool forced = pendingThumbItems.erase(i) > 0 || Item(i).thumbnailOutdated;
        const bool wanted = Item(i).needsThumbnail && !Item(i).thumbnail && !FailedAsItIs(i);
        if ((forced || wanted) && CreateThumbnail(i).bitmap) {
            return i;
        }
    }
    return -1;
}

// The counter moves past an item that is done or needs nothing. One that failed holds it back until a later
// item succeeds.
int CMediaFileList::RestStep(const CTick& tick)
{
    for (int i = nextThumbItem; i < Count() && !tick.IsOver(); ++i) {
        if (!Item(i).needsThumbnail || Item(i).thumbnailDone) {
            ++nextThumbItem;
        } else if (!Item(i).thumbnailFailed && CreateThumbnail(i).bitmap) {
            ++nextThumbItem;
            return i;
        }
    }
    return -1;
}

// Whether an earlier attempt failed and the file has not changed since, so that another would fail alike.
bool CMediaFileList::FailedAsItIs(int index) const
{
    const MediaItem& item = Item(index);
    if (!item.thumbnailFailed) {
        return false;
    }
    const auto facts = platform::Os().files->FindFirstFile(PathOf(index));
    return !facts ||
           (item.factsKnown && facts->size == item.fileSize && facts->lastWriteTime == item.lastWriteTime);
}

// The file that the thumbnail is made from: the item, or what it links to. Nothing when it gets none.
std::optional<std::string> CMediaFileList::ThumbnailSource(int index) const
{
    const MediaItem& item = Item(index);
    if (item.isFolder) {
        return std::nullopt;
    }
    auto path = item.isLink ? platform::Os().files->ResolveLink(PathOf(index)) : PathOf(index);
    if (!path || (TypeBits(*path) & kTypesWithThumbnail) == 0) {
        return std::nullopt;
    }
    return path;
}

ThumbnailOutcome CMediaFileList::CreateThumbnail(int index)
{
    ThumbnailOutcome outcome;
    if (index < 0 || index >= Count()) {
        return outcome;
    }
    MediaItem& item = items[static_cast<std::size_t>(index)];
    const auto path = ThumbnailSource(index);
    const auto facts = path ? platform::Os().files->FindFirstFile(*path) : std::nullopt;
    if (facts) {
        SetFacts(index, *facts);
    }
    if (!facts || !facts->isRegular) {
        Finish(index, outcome);
        return outcome;
    }
    const bool storeInUse = useThumbStore && store;
    if (auto stored = storeInUse ? store->Fetch(*path, *facts) : std::nullopt) {
        item.thirdTime = stored->thirdTime;
        outcome = {ThumbnailResult::reused, std::move(stored->bitmap), {}, std::move(stored->dateText)};
        Trace("LoadThumbnail({}) OK\n", index);
    } else {
        PictureFacts picture;
        outcome.bitmap = MakeThumbnail(*path, kThumbnailSide, kThumbnailSide, picture);
        if (outcome.bitmap) {
            Trace("-- CreateThumbnail({}) OK\n", index);
            outcome.result = ThumbnailResult::made;
            outcome.source = picture.size;
            outcome.dateText = std::move(picture.dateText);
            if (storeInUse) {
                store->Keep(*path, *outcome.bitmap, *facts, item.thirdTime, outcome.dateText);
            }
        }
    }
    Finish(index, outcome);
    return outcome;
}

void CMediaFileList::ForgetFailures()
{
    for (MediaItem& item : items) {
        const bool wasLeft = IsThumbnailLeft(item);
        item.thumbnailFailed = false;
        thumbnailsLeft += IsThumbnailLeft(item) && !wasLeft ? 1 : 0;
    }
    nextThumbItem = 0;
}

void CMediaFileList::DropBitmap(int index)
{
    items[static_cast<std::size_t>(index)].thumbnail.reset();
    std::erase(heldBitmaps, index);
}

void CMediaFileList::Finish(int index, const ThumbnailOutcome& outcome)
{
    MediaItem& item = items[static_cast<std::size_t>(index)];
    pendingThumbItems.erase(index);
    thumbnailsLeft -= IsThumbnailLeft(item) ? 1 : 0;
    item.thumbnailOutdated = false;
    item.thumbnailFailed = !outcome.bitmap;
    if (outcome.bitmap) {
        if (!item.thumbnail) {
            heldBitmaps.push_back(index);
        }
        item.thumbnailDone = true;
        item.thumbnail = outcome.bitmap;
    } else if (item.thumbnail) {
        DropBitmap(index);
    }
}

void CMediaFileList::LetGoFarBitmaps(VisibleRange visible)
{
    const auto shown = static_cast<std::size_t>(visible.last - visible.first + 1);
    const std::size_t limit = std::max(kHeldAtLeast, 3 * shown);
    if (heldBitmaps.size() <= limit) {
        return;
    }
    const int middle = visible.first + (visible.last - visible.first) / 2;
    const auto distance = [middle](int index) { return std::abs(index - middle); };
    const auto kept = heldBitmaps.begin() + static_cast<std::ptrdiff_t>(limit * 3 / 4);
    std::ranges::nth_element(heldBitmaps, kept, {}, distance);
    std::for_each(kept, heldBitmaps.end(),
                  [this](int index) { items[static_cast<std::size_t>(index)].thumbnail.reset(); });
    heldBitmaps.erase(kept, heldBitmaps.end());
}

void CMediaFileList::LetGoAllBitmaps()
{
    for (const int index : heldBitmaps) {
        items[static_cast<std::size_t>(index)].thumbnail.reset();
    }
    heldBitmaps.clear();
}

void CMediaFileList::ApplyEntryUpdates()
{
    if (!store) {
        return;
    }
    std::erase_if(pendingEntryUpdates, [this](const EntryUpdate& update) {
        return store->SetTexts(update.sourcePath, update.entryName, update.caption, update.timeStampText,
                               update.secondText);
    });
}

}  // namespace browser
