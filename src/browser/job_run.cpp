// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/job_run.h"

#include "browser/change_journal.h"
#include "platform/services.h"

#include <algorithm>
#include <utility>

namespace browser
{

namespace
{

using platform::FileFailure;
using platform::FileOperation;
using platform::Os;

constexpr std::size_t kMostProblems = 100;

// A move may be taken back as long as it is the same thing; what would leave its place must be as it was.
// Numbers of entries do not last on every file system, so equal sizes and times will do as well.
bool IsAsLeft(const UndoStep& step, const platform::FileStamp& now)
{
    const bool same = now.device == step.stamp.device && now.inode == step.stamp.inode;
    const bool looksSame = now.device == step.stamp.device && now.size == step.stamp.size &&
                           now.modifiedNanoseconds == step.stamp.modifiedNanoseconds;
    return looksSame || (same && step.action == UndoAction::moveBack);
}

FileOperation OperationOf(UndoAction action)
{
    switch (action) {
    case UndoAction::takeAway:
        return FileOperation::trash;
    case UndoAction::restore:
        return FileOperation::restore;
    case UndoAction::removeFolder:
        return FileOperation::removeEmpty;
    default:
        return FileOperation::rename;
    }
}

// Times that somebody else has changed since stay.
std::optional<platform::FileProblem> RestoreTimes(const UndoStep& step)
{
    const auto facts = Os().files->FindFirstFile(step.path);
    if (!facts)
        return platform::FileProblem{step.path, FileFailure::missing, {}};
    const auto isKnown = [](platform::FileTime now, platform::FileTime before, platform::FileTime after) {
        return after == 0 || now == after || now == before;
    };
    if (!isKnown(facts->creationTime, step.before.creation, step.after.creation) ||
        !isKnown(facts->lastWriteTime, step.before.lastWrite, step.after.lastWrite))
        return platform::FileProblem{step.path, FileFailure::changed, {}};
    const platform::FileTime creation = step.after.creation == 0 ? 0 : step.before.creation;
    const platform::FileTime lastWrite = step.after.lastWrite == 0 ? 0 : step.before.lastWrite;
    if (Os().files->SetFileTime(step.path, creation, lastWrite))
        return std::nullopt;
    return platform::FileProblem{step.path, FileFailure::other, Os().files->LastError()};
}

// Nothing when it was taken back.
std::optional<platform::FileProblem> TakeBack(const UndoStep& step, CJobRun& run)
{
    if (step.action == UndoAction::makeFolder) {
        if (Os().files->CreateDirectory(step.path))
            return std::nullopt;
        return platform::FileProblem{step.path, FileFailure::other, Os().files->LastError()};
    }
    if (step.action == UndoAction::restoreTimes)
        return RestoreTimes(step);
    const auto facts = Os().shell->FindEntry(step.path);
    if (!facts)
        return platform::FileProblem{step.path, FileFailure::missing, {}};
    if (step.action != UndoAction::removeFolder && !IsAsLeft(step, facts->stamp))
        return platform::FileProblem{step.path, FileFailure::changed, {}};
    const auto result = run.Do(OperationOf(step.action), step.path, step.origin);
    if (result.done || result.problems.empty())
        return std::nullopt;
    platform::FileProblem problem = result.problems.front();
    if (problem.failure == FileFailure::nameTaken)
        problem.path = step.origin;
    return problem;
}

// What could not be taken back is told of and given up; what is left after a stop stays in the record. False
// when thumbnails and texts could not follow.
bool TakeBackAll(FileJobReport& report, CJobRun& run, const JobStores& stores)
{
    std::vector<UndoStep>& left = report.undo.steps;
    std::vector<CarriedPath> moved;
    while (!left.empty() && !report.cancelled) {
        const UndoStep step = left.back();
        run.BeginItem(report.items - left.size(), report.items);
        const auto problem = TakeBack(step, run);
        if (problem)
            run.Note(*problem);
        if (report.cancelled)
            break;
        left.pop_back();
        if (problem)
            continue;
        ++report.done;
        if (!step.origin.empty())
            report.results.push_back(step.origin);
        if (step.action == UndoAction::moveBack)
            moved.push_back({step.path, step.origin});
    }
    const bool followed = CarryInStore(stores.thumbnails, moved, CarryKind::move);
    if (!followed)
        run.Note({stores.thumbnails, FileFailure::other, Os().files->LastError()});
    return followed;
}

}  // namespace

void CJobRun::BeginItem(std::size_t number, std::size_t count)
{
    item = number;
    items = std::max<std::size_t>(1, count);
}

platform::FileStepResult CJobRun::Do(FileOperation operation, const std::string& source,
                                     const std::string& target)
{
    const auto tell = [&](std::uint64_t done, std::uint64_t all) {
        const double part =
            all == 0 ? 0 : std::min(1.0, static_cast<double>(done) / static_cast<double>(all));
        return host.Progress(
            {source, item, items, (static_cast<double>(item) + part) / static_cast<double>(items)});
    };
    return Os().shell->DoFileStep({operation, source, target, tell});
}

void CJobRun::Note(const platform::FileStepResult& result)
{
    for (const platform::FileProblem& problem : result.problems)
        Note(problem);
}

void CJobRun::Note(platform::FileProblem problem)
{
    if (problem.failure == FileFailure::cancelled) {
        report.cancelled = true;
        return;
    }
    ++report.problemCount;
    if (report.problems.size() < kMostProblems)
        report.problems.push_back(std::move(problem));
}

bool CarryInStore(const std::string& storeFolder, const std::vector<CarriedPath>& paths, CarryKind kind)
{
    if (storeFolder.empty() || paths.empty())
        return true;
    CThumbDbMgr manager(storeFolder);
    manager.Load();
    return CarryMembers(manager, paths, kind);
}

FileJobReport RunUndo(const UndoRecord& record, const JobStores& stores, CFileJobHost& host)
{
    FileJobReport report;
    CJobRun run(host, report);
    report.task = FileTask::undo;
    report.items = record.steps.size();
    report.undo = record;
    const bool isWritten = record.journalNumber != 0 && !stores.journal.empty();
    const auto entry = isWritten ? CChangeJournal(stores.journal).Open(record) : nullptr;
    if (isWritten && (!entry || !entry->Write(JournalState::undone, record))) {
        run.Note({record.name, FileFailure::changed, {}});
        report.undo.steps.clear();
        return report;
    }
    const bool followed = TakeBackAll(report, run, stores);
    if (entry && followed)
        entry->Write(JournalState::done, report.undo);
    return report;
}

}  // namespace browser
