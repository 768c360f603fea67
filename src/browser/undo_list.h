// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CUndoList: what the user has done to files, the latest on top, each with the way back.
//
// A record is a plain value: where every item is now, where it was, and what it looked like, so that what has
// changed since can be told.
#pragma once

#include "platform/file_system.h"

#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace browser
{

enum class FileTask {
    copy,
    move,
    trash,
    remove,
    rename,
    makeFolder,
    makePicture,
    undo,
    changeTimes,
    setTexts,
    makeTones,
    removeFromHandset,  // files that came from it, on the handset only
};

enum class UndoAction {
    moveBack,      // from `path` to `origin`
    takeAway,      // `path` was made: to the trash with it
    restore,       // from the trash, `path`, to `origin`
    makeFolder,    // the folder `path` was removed
    removeFolder,  // the folder `path` was made; it must be empty
    restoreTimes,  // the times of `path` were changed
};

// 0 for one that is not changed.
struct FileTimes {
    platform::FileTime creation = 0;
    platform::FileTime lastWrite = 0;
    bool operator==(const FileTimes&) const = default;
};

struct UndoStep {
    UndoAction action = UndoAction::moveBack;
    std::string path;
    std::string origin;
    platform::FileStamp stamp;  // of `path`
    FileTimes before = {};      // restoreTimes
    FileTimes after = {};
    bool operator==(const UndoStep&) const = default;
};

struct UndoRecord {
    FileTask task = FileTask::copy;
    std::size_t items = 0;        // what the user chose
    std::string name;             // of the first of them
    std::vector<UndoStep> steps;  // in the order of doing; undone from the end
    platform::FileTime when = 0;
    std::uint64_t journalNumber = 0;  // of its entry in the journal; 0 for none
    bool operator==(const UndoRecord&) const = default;
};

class CUndoList
{
public:
    // A record without steps is left out; the oldest ones are dropped when there are too many.
    void Push(UndoRecord record);
    // Puts records below all others, the latest of them last in the list.
    void PushBelow(std::vector<UndoRecord> older);
    // The record that would be taken; null when there is none.
    const UndoRecord* Latest() const { return records.empty() ? nullptr : &records.back(); }
    std::optional<UndoRecord> Take();

private:
    std::deque<UndoRecord> records;
    std::size_t stepCount = 0;
};

}  // namespace browser
