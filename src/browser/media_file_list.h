// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CMediaFileList: the files of one folder as the right pane shows them, and the work on their thumbnails.
//
// This is the list without its window. The owner calls FillStep until the folder is read, then ThumbnailStep
// on each tick of its timer; each call does a small piece of work (at most one thumbnail), so that a window
// stays live on one thread. Items are in the list's sort order, folders first; names are compared by
// NameBefore.
//
// A fill of the same folder takes over what is known of the files that are still there. Whether they are as
// they were is looked up when they are shown, and by FactsStep; one that has changed keeps its picture until
// it gets its new one.
//
// Item indexes hold until the next fill ends or the order changes. Bitmaps of items far from the visible ones
// are let go when there are too many and come back from the store when they are visible again.
#pragma once

#include "browser/list_order.h"
#include "browser/media_types.h"
#include "browser/thumb_db_mgr.h"
#include "browser/thumbnail_store.h"
#include "platform/file_system.h"
#include "platform/image.h"

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace browser
{

struct MediaItem {
    std::string name;
    std::uint64_t fileSize = 0;
    platform::FileTime creationTime = 0;
    platform::FileTime lastWriteTime = 0;
    platform::FileTime changeTime = 0;
    platform::FileTime thirdTime = 0;
    platform::FileTime dateTaken = 0;  // as date_taken.h has it
    std::uint32_t nameRank = 0;        // the item's place in name order
    platform::BitmapHandle thumbnail;  // empty until made, and again when let go
    std::uint8_t types = 0;
    bool isFolder = false;
    bool isLink = false;
    bool needsThumbnail = false;
    bool thumbnailDone = false;      // made once, whether or not the bitmap is still held
    bool thumbnailFailed = false;    // the latest attempt gave none
    bool thumbnailOutdated = false;  // the file has changed since its thumbnail was made
    bool factsKnown = false;         // size and times have been read
    bool factsDue = false;           // they were read before the latest fill, and are to be compared
    bool dateKnown = false;          // whether the picture tells when it was taken has been looked up
};

// A store entry whose three texts are to be set when there is nothing else to do.
struct EntryUpdate {
    std::string sourcePath;
    std::string entryName;
    std::string caption;
    std::string timeStampText;
    std::string secondText;
};

enum class ThumbnailResult { none, made, reused };

struct ThumbnailOutcome {
    ThumbnailResult result = ThumbnailResult::none;
    platform::BitmapHandle bitmap;
    platform::Extent source;  // known when it was made
    std::string dateText;
};

struct VisibleRange {
    int first = 0;
    int last = -1;  // inclusive
};

struct StepOutcome {
    int redraw = -1;        // the item that got its thumbnail, or -1
    bool moreToDo = false;  // false: ticking can stop until something changes
};

enum class FillState { idle, reading, failed };

class CMediaFileList
{
public:
    // The value of SetFilter that keeps a setting.
    static constexpr int kKeep = -1;

    explicit CMediaFileList(CThumbDbMgr* storeManager = nullptr);

    // --- Filling -----------------------------------------------------------------------------------------
    // Starts reading a folder. The items shown so far stay until the fill ends. False when the folder cannot
    // be read; the list is then empty and FillError says why.
    bool StartFill(const std::string& folderPath);
    // Does one piece of the work; true while there is more to do.
    bool FillStep();
    // StartFill and all of its steps.
    bool Fill(const std::string& folderPath);
    // Reads the same folder anew.
    bool Refresh() { return StartFill(folder); }
    // Whether the latest fill ended with the items that there were before, in the same order.
    bool ItemsStayed() const { return itemsStayed; }
    FillState State() const { return state; }
    const std::string& FillError() const { return fillError; }
    std::size_t FilledSoFar() const { return incomingCount; }

    // --- Order -------------------------------------------------------------------------------------------
    // Sorts the items, or, where the files have yet to be asked for what is sorted by, leaves them as they
    // are until FactsStep has asked all of them and SortIsDue. True when the items were sorted. A fill reads
    // what it can in a fraction of a second before it ends, so that few lists are seen unsorted.
    bool SetOrder(SortOrder wanted);
    SortOrder Order() const { return order; }
    // Whether the items stand in another order than the one asked for.
    bool IsUnsorted() const { return unsorted; }
    // Whether they do and Sort would bring them into it.
    bool SortIsDue() const { return unsorted && !MustRead(); }
    void Sort();
    // Whether FactsStep also looks up when pictures were taken; it always does for an order that needs it.
    void SetDatesWanted(bool on) { datesWanted = on; }

    // Either argument may be kKeep. True when something changed, so that the list is to be read anew.
    bool SetFilter(int mode, int includeFolders);
    int Filter() const { return filter; }
    bool IncludeFolder() const { return includeFolder; }

    // --- Items -------------------------------------------------------------------------------------------
    const std::string& Folder() const { return folder; }
    int Count() const { return static_cast<int>(items.size()); }
    const MediaItem& Item(int index) const { return items[static_cast<std::size_t>(index)]; }
    std::string PathOf(int index) const;
    // Reads size and times of the item unless they are known and not due; false when the file is gone.
    bool ReadFacts(int index);
    // Looks up when the picture was taken unless that is known.
    void ReadDate(int index);
    // Reads the facts of the next items where ReadFacts would, then, where wanted, the dates (a tenth as
    // many, as each opens a file); true while there are more.
    bool FactsStep(int most);
    // The sum of the sizes read so far, and whether it covers every item.
    std::uint64_t KnownBytes() const { return knownBytes; }
    bool AllFactsKnown() const { return factsUnknown == 0 || !FactsLeft(); }
    // Whether there is nothing left for FactsStep.
    bool AllRead() const { return !FactsLeft() && (nextDateItem >= Count() || !DatesAreWanted()); }
    // How many items FactsStep has asked for what the list is to be sorted by.
    int ReadForOrder() const { return NeedsOf(order.key) == SortNeeds::dates ? nextDateItem : nextFactsItem; }

    // --- Thumbnails --------------------------------------------------------------------------------------
    // One tick: the first visible item without a thumbnail, else the next one of the rest, else the deferred
    // entry updates. At most one thumbnail is made.
    StepOutcome ThumbnailStep(bool thumbnailView, std::optional<VisibleRange> visible);
    // Makes or takes from the store the item's thumbnail and keeps it in the item.
    ThumbnailOutcome CreateThumbnail(int index);
    // The thumbnail of that item is to be made again even if there is one.
    void InvalidateThumbnail(int index) { pendingThumbItems.insert(index); }
    // Those that failed are to be tried again though their files are as they were.
    void ForgetFailures();
    void QueueEntryUpdate(EntryUpdate update) { pendingEntryUpdates.push_back(std::move(update)); }
    void SetUseThumbStore(bool on) { useThumbStore = on; }
    // Frees the memory of every bitmap held; they come back as those of far items do.
    void LetGoAllBitmaps();
    // Items whose thumbnail was neither made nor tried in vain.
    int ThumbnailsLeft() const { return thumbnailsLeft; }

private:
    class CTick;
    void TakeOver(std::vector<MediaItem> filled);
    void CarryOver(std::vector<MediaItem>& filled);
    void ReadChunk();
    bool MergeIsDue() const;
    void MergeTopRuns();
    bool ReadIncoming();
    void EndFill();
    bool FactsLeft() const { return nextFactsItem < Count(); }
    static void TakeFacts(MediaItem& item, const platform::FileFacts& facts);
    static void TakeDate(MediaItem& item, const std::string& path);
    bool DatesAreWanted() const { return datesWanted || NeedsOf(order.key) == SortNeeds::dates; }
    bool MustRead() const;
    bool HasOrderKey(const MediaItem& item) const;
    void Arrange(const std::vector<std::uint32_t>& indexes);
    bool Wanted(const platform::FolderEntry& entry) const;
    std::optional<std::string> ThumbnailSource(int index) const;
    void SetFacts(int index, const platform::FileFacts& facts);
    static bool IsThumbnailLeft(const MediaItem& item)
    {
        return item.needsThumbnail && !item.thumbnailDone && !item.thumbnailFailed;
    }
    void DropBitmap(int index);
    bool FailedAsItIs(int index) const;
    int VisibleStep(VisibleRange visible, const CTick& tick);
    int RestStep(const CTick& tick);
    void ApplyEntryUpdates();
    void Finish(int index, const ThumbnailOutcome& outcome);
    void LetGoFarBitmaps(VisibleRange visible);

    std::string folder;
    std::vector<MediaItem> items;
    CPatternList patterns;
    int filter = kFilterMedia;
    bool includeFolder = false;

    FillState state = FillState::idle;
    std::string fillError;
    std::unique_ptr<platform::CFolderReader> reader;
    std::vector<std::vector<MediaItem>> runs;  // sorted pieces of the folder being read
    std::size_t incomingCount = 0;
    bool readerAtEnd = false;
    std::size_t incomingRead = 0;  // of the last run, items whose facts have been read
    std::uint64_t fillStart = 0;   // milliseconds
    bool carriedOver = false;      // the items being read have what was known of them
    bool itemsStayed = false;

    SortOrder order;
    bool unsorted = false;
    bool datesWanted = false;
    int nextDateItem = 0;

    std::uint64_t knownBytes = 0;
    int nextFactsItem = 0;
    int factsUnknown = 0;  // items without facts

    std::optional<CThumbnailStore> store;
    bool useThumbStore = true;
    int nextThumbItem = 0;
    int thumbnailsLeft = 0;
    std::set<int> pendingThumbItems;
    std::vector<EntryUpdate> pendingEntryUpdates;
    std::vector<int> heldBitmaps;  // items whose bitmap is in memory
};

}  // namespace browser
