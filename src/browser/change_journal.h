// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CChangeJournal: renames and changes of time stamps, written down before they happen, so that they can be
// taken back after a restart and their thumbnails and texts brought after them when the program was killed
// half-way.
//
// One file per change, "00000001.journal" and so on (layout: docs/formats/journal.md), each replaced as a
// whole. The latest 100 changes are kept. Several processes may use one journal.
#pragma once

#include "browser/thumb_db_mgr.h"
#include "browser/undo_list.h"
#include "platform/file_system.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace browser
{

enum class JournalState {
    begun,   // under way, or left by a process that ended half-way
    done,    // its steps have been done
    undone,  // being taken back, or left so
};

struct JournalEntry {
    std::uint64_t number = 0;
    JournalState state = JournalState::begun;
    UndoRecord record;
};

class CChangeJournal
{
public:
    // `folder` is made when the first change is written.
    explicit CChangeJournal(std::string folderPath) : folder(std::move(folderPath)) {}

    // Writes down what is about to be done and gives it the next number. While the returned entry lives, no
    // other process takes it for one that was left. Null when it cannot be written: the change must not
    // begin.
    class COpenEntry;
    std::unique_ptr<COpenEntry> Begin(const UndoRecord& record);
    // Opens an entry that is there; null when there is none, or another process works on it.
    std::unique_ptr<COpenEntry> Open(std::uint64_t number);
    // The same for the entry of that change. Numbers are given again after an undo, so null as well when the
    // number is another change's by now.
    std::unique_ptr<COpenEntry> Open(const UndoRecord& record);

    // Oldest first; what cannot be read is passed over.
    std::vector<JournalEntry> List() const;
    // The latest change that was done and not taken back.
    std::optional<JournalEntry> Latest() const;

    // Settles what killed processes left: thumbnails and texts follow the files that had been renamed, and
    // the entry holds the steps that were done. Quick when nothing was left.
    void Recover(CThumbDbMgr& manager);

private:
    std::string PathOf(std::uint64_t number) const;
    std::vector<std::uint64_t> Numbers() const;
    std::optional<JournalEntry> Read(std::uint64_t number) const;
    std::unique_ptr<COpenEntry> Claim(std::uint64_t number, int patience);
    bool IsSettled(std::uint64_t number) const;
    void Settle(COpenEntry& opened, JournalEntry entry, CThumbDbMgr& manager);
    void DropOldest(std::vector<std::uint64_t> numbers);

    std::string folder;
};

// A change that this process works on.
class CChangeJournal::COpenEntry
{
public:
    COpenEntry(std::string filePath, std::uint64_t entryNumber, std::unique_ptr<platform::CLock> entryLock)
        : path(std::move(filePath)), number(entryNumber), lock(std::move(entryLock))
    {
    }
    ~COpenEntry();
    COpenEntry(const COpenEntry&) = delete;
    COpenEntry& operator=(const COpenEntry&) = delete;

    std::uint64_t Number() const { return number; }
    // An entry without steps is deleted.
    bool Write(JournalState state, const UndoRecord& record);

private:
    std::string path;
    std::uint64_t number;
    std::unique_ptr<platform::CLock> lock;
};

}  // namespace browser
