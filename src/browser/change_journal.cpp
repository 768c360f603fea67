// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/change_journal.h"

#include "browser/file_names.h"
#include "browser/journal_file.h"
#include "browser/member_carry.h"
#include "platform/services.h"
#include "platform/shell.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <span>
#include <string_view>

namespace browser
{

namespace
{

constexpr std::string_view kSuffix = ".journal";
constexpr std::string_view kLockFile = "journal.lock";
constexpr std::size_t kMostEntries = 100;
constexpr int kPatience = 10'000;  // milliseconds
constexpr std::uint64_t kLongestFile = 256ULL << 20;

platform::CFileSystem& Files()
{
    return *platform::Os().files;
}

std::string LockOf(const std::string& path)
{
    return path + ".lock";
}

// What of a step has come about, after the process that was to do it has gone.
enum class Outcome { untouched, done, gone };

Outcome OutcomeOf(const UndoStep& step)
{
    if (step.action == UndoAction::restoreTimes) {
        const auto facts = Files().FindFirstFile(step.path);
        if (!facts) {
            return Outcome::gone;
        }
        const bool isAsBefore = (step.after.creation == 0 || facts->creationTime == step.before.creation) &&
                                (step.after.lastWrite == 0 || facts->lastWriteTime == step.before.lastWrite);
        return isAsBefore ? Outcome::untouched : Outcome::done;
    }
    const auto isIt = [&step](const std::string& path) {
        const auto entry = platform::Os().shell->FindEntry(path);
        return entry && entry->stamp.device == step.stamp.device && entry->stamp.inode == step.stamp.inode;
    };
    return isIt(step.path) ? Outcome::done : isIt(step.origin) ? Outcome::untouched : Outcome::gone;
}

}  // namespace

CChangeJournal::COpenEntry::~COpenEntry()
{
    Files().DeleteFile(LockOf(path));
}

bool CChangeJournal::COpenEntry::Write(JournalState state, const UndoRecord& record)
{
    if (record.steps.empty()) {
        return Files().DeleteFile(path);
    }
    const std::string text = EncodeJournal(state, record);
    return Files().ReplaceFile(path, std::as_bytes(std::span(text)));
}

std::string CChangeJournal::PathOf(std::uint64_t number) const
{
    return fmt::format("{}/{:08}{}", folder, number, kSuffix);
}

std::vector<std::uint64_t> CChangeJournal::Numbers() const
{
    std::vector<std::uint64_t> numbers;
    const auto reader = Files().ReadFolder(folder);
    std::vector<platform::FolderEntry> entries;
    while (reader && reader->Read(1000, entries)) {
    }
    for (const platform::FolderEntry& entry : entries) {
        std::uint64_t number = 0;
        const char* const end = entry.name.data() + entry.name.size();
        const auto [rest, error] = std::from_chars(entry.name.data(), end, number);
        if (error == std::errc() && std::string_view(rest, static_cast<std::size_t>(end - rest)) == kSuffix) {
            numbers.push_back(number);
        }
    }
    std::ranges::sort(numbers);
    return numbers;
}

std::optional<JournalEntry> CChangeJournal::Read(std::uint64_t number) const
{
    const auto text = Files().ReadWhole(PathOf(number), kLongestFile);
    auto entry = text ? DecodeJournal(*text) : std::nullopt;
    if (entry) {
        entry->number = number;
        entry->record.journalNumber = number;
    }
    return entry;
}

std::unique_ptr<CChangeJournal::COpenEntry> CChangeJournal::Claim(std::uint64_t number, int patience)
{
    auto lock = Files().LockFile(LockOf(PathOf(number)), patience);
    return lock ? std::make_unique<COpenEntry>(PathOf(number), number, std::move(lock)) : nullptr;
}

std::unique_ptr<CChangeJournal::COpenEntry> CChangeJournal::Begin(const UndoRecord& record)
{
    Files().CreateDirectory(folder);
    const auto lock = Files().LockFile(fmt::format("{}/{}", folder, kLockFile), kPatience);
    if (!lock) {
        return nullptr;
    }
    const std::vector<std::uint64_t> numbers = Numbers();
    auto opened = Claim(numbers.empty() ? 1 : numbers.back() + 1, kPatience);
    if (!opened || !opened->Write(JournalState::begun, record)) {
        return nullptr;
    }
    DropOldest(numbers);
    return opened;
}

std::unique_ptr<CChangeJournal::COpenEntry> CChangeJournal::Open(std::uint64_t number)
{
    return Files().FindFirstFile(PathOf(number)) ? Claim(number, 0) : nullptr;
}

std::unique_ptr<CChangeJournal::COpenEntry> CChangeJournal::Open(const UndoRecord& record)
{
    auto opened = Open(record.journalNumber);
    const auto entry = opened ? Read(record.journalNumber) : std::nullopt;
    const bool isIt = entry && entry->record.task == record.task && entry->record.when == record.when &&
                      entry->record.name == record.name;
    return isIt ? std::move(opened) : nullptr;
}

void CChangeJournal::DropOldest(std::vector<std::uint64_t> numbers)
{
    for (std::size_t i = 0; i + kMostEntries <= numbers.size(); ++i) {
        if (const auto opened = Claim(numbers[i], 0)) {
            opened->Write(JournalState::done, {});
        }
    }
}

std::vector<JournalEntry> CChangeJournal::List() const
{
    std::vector<JournalEntry> entries;
    for (const std::uint64_t number : Numbers()) {
        if (auto entry = Read(number)) {
            entries.push_back(std::move(*entry));
        }
    }
    return entries;
}

std::optional<JournalEntry> CChangeJournal::Latest() const
{
    const std::vector<std::uint64_t> numbers = Numbers();
    for (auto number = numbers.rbegin(); number != numbers.rend(); ++number) {
        if (auto entry = Read(*number)) {
            return entry;
        }
    }
    return std::nullopt;
}

// Settled entries are told by their beginning.
bool CChangeJournal::IsSettled(std::uint64_t number) const
{
    std::string head(64, '\0');
    const auto file = Files().Open(PathOf(number), platform::OpenMode::read);
    head.resize(file ? file->ReadAt(0, std::as_writable_bytes(std::span(head))) : 0);
    return StateOf(head) == JournalState::done;
}

void CChangeJournal::Recover(CThumbDbMgr& manager)
{
    for (const std::uint64_t number : Numbers()) {
        const auto opened = IsSettled(number) ? nullptr : Claim(number, 0);
        auto entry = opened ? Read(number) : std::nullopt;
        // Its process may have ended it in between.
        if (entry && entry->state != JournalState::done) {
            Settle(*opened, std::move(*entry), manager);
        }
    }
}

// The files tell which steps were done: of those the thumbnails follow, the way they went last.
void CChangeJournal::Settle(COpenEntry& opened, JournalEntry entry, CThumbDbMgr& manager)
{
    std::vector<CarriedPath> carried;
    std::vector<UndoStep> done;
    for (const UndoStep& step : entry.record.steps) {
        const Outcome outcome = OutcomeOf(step);
        if (outcome == Outcome::done) {
            done.push_back(step);
        }
        if (step.action != UndoAction::moveBack) {
            continue;
        }
        if (entry.state == JournalState::begun && outcome == Outcome::done) {
            carried.push_back({step.origin, step.path});
        } else if (entry.state == JournalState::undone && outcome == Outcome::untouched) {
            carried.push_back({step.path, step.origin});
        }
    }
    if (CarryMembers(manager, carried, CarryKind::moveAgain)) {
        entry.record.steps = std::move(done);
        opened.Write(JournalState::done, entry.record);
    }
}

}  // namespace browser
