// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/file_job.h"

#include "browser/carry_ahead.h"
#include "browser/change_journal.h"
#include "browser/clash_names.h"
#include "browser/file_names.h"
#include "browser/job_run.h"
#include "browser/member_carry.h"
#include "platform/services.h"
#include "platform/utility.h"

#include <fmt/format.h>

#include <utility>

namespace browser
{

namespace
{

using platform::FileFailure;
using platform::FileOperation;
using platform::Os;

constexpr int kMostNumbers = 10'000;

// Why the step as a whole was not done; `other` when only parts of it were not.
FileFailure FailureOf(const platform::FileStepResult& result, const std::string& source)
{
    if (result.done)
        return FileFailure::none;
    const bool whole = result.problems.size() == 1 && result.problems.front().path == source;
    return whole ? result.problems.front().failure : FileFailure::other;
}

std::string WithoutSeparator(std::string path)
{
    while (path.size() > 1 && path.ends_with('/'))
        path.pop_back();
    return path;
}

class CFileJob
{
public:
    CFileJob(const FileJobRequest& jobRequest, CFileJobHost& jobHost)
        : request(jobRequest), run(jobHost, report)
    {
    }

    FileJobReport Run()
    {
        report.task = request.task;
        const bool makes = request.task == FileTask::makeFolder || request.task == FileTask::makePicture;
        report.items = makes ? 1 : request.sources.size();
        report.undo.task = request.task;
        report.undo.items = report.items;
        const std::string& first = request.sources.empty() ? request.target : request.sources.front();
        report.undo.name = FileName(first);
        if (request.task == FileTask::makeFolder)
            MakeFolder();
        if (request.task == FileTask::makePicture)
            MakePicture();
        if (request.task == FileTask::rename && !WriteDown())
            return std::move(report);
        for (std::size_t i = 0; i < request.sources.size() && !report.cancelled; ++i) {
            run.BeginItem(i, request.sources.size());
            DoItem(WithoutSeparator(request.sources[i]), i);
        }
        // What could not follow does so when the journal is settled.
        const JournalState state = Carry() ? JournalState::done : JournalState::begun;
        if (written && written->Write(state, report.undo) && !report.undo.steps.empty())
            report.undo.journalNumber = written->Number();
        return std::move(report);
    }

private:
    // What is about to be renamed, in the journal. Without it nothing is.
    bool WriteDown()
    {
        if (request.stores.journal.empty())
            return true;
        report.undo.when = Os().utility->ql_GetCurDate();
        UndoRecord planned = report.undo;
        for (std::size_t i = 0; i < request.sources.size(); ++i) {
            const std::string source = WithoutSeparator(request.sources[i]);
            known.push_back(Os().shell->FindEntry(source));
            if (const auto& facts = known.back())
                planned.steps.push_back({UndoAction::moveBack, TargetOf(i), source, facts->stamp});
        }
        if (planned.steps.empty())
            return true;
        written = CChangeJournal(request.stores.journal).Begin(planned);
        if (!written) {
            run.Note({request.stores.journal, FileFailure::other, Os().files->LastError()});
            return false;
        }
        std::vector<CarriedPath> toBeMoved;
        for (const UndoStep& step : planned.steps)
            toBeMoved.push_back({step.origin, step.path, false});
        ahead = std::make_unique<CCarryAhead>(request.stores.thumbnails, std::move(toBeMoved));
        return true;
    }

    const std::string& TargetOf(std::size_t number) const
    {
        return number < request.targets.size() ? request.targets[number] : request.target;
    }

    // What the thumbnail store holds of the files goes with them.
    bool Carry()
    {
        if (ahead && ahead->Finish(moved))
            return true;
        const bool done = CarryInStore(request.stores.thumbnails, moved, CarryKind::move) &&
                          CarryInStore(request.stores.thumbnails, copied, CarryKind::copy);
        if (!done)
            run.Note({request.stores.thumbnails, FileFailure::other, Os().files->LastError()});
        return done;
    }

    void DoItem(const std::string& source, std::size_t number)
    {
        const std::size_t before = report.problemCount;
        const std::size_t skippedBefore = report.skipped;
        isTop = true;
        item = number;
        switch (request.task) {
        case FileTask::copy:
        case FileTask::move:
            Transfer(source, JoinPath(request.target, FileName(source)));
            break;
        case FileTask::rename:
            Settle(source, run.Do(FileOperation::rename, source, TargetOf(number)));
            break;
        case FileTask::trash:
            Trash(source);
            break;
        case FileTask::remove:
            run.Note(run.Do(FileOperation::remove, source));
            break;
        default:
            break;
        }
        if (report.problemCount == before && report.skipped == skippedBefore && !report.cancelled)
            ++report.done;
    }

    void MakeFolder()
    {
        if (Os().files->CreateDirectory(request.target)) {
            report.done = 1;
            report.results.push_back(request.target);
            report.undo.steps.push_back({UndoAction::removeFolder, request.target, {}, {}});
            return;
        }
        const std::string reason = Os().files->LastError();
        const bool taken = Os().shell->FindEntry(request.target).has_value();
        run.Note({request.target, taken ? FileFailure::nameTaken : FileFailure::other, reason});
    }

    void MakePicture()
    {
        for (int number = 1; number < kMostNumbers; ++number) {
            const std::string path = JoinPath(request.target, fmt::format("Image{:04}.bmp", number));
            const auto file = Os().files->Open(path, platform::OpenMode::createNew);
            if (!file && Os().shell->FindEntry(path))
                continue;
            if (!file || !file->WriteAt(0, std::as_bytes(std::span(request.bytes)))) {
                run.Note({path, FileFailure::other, Os().files->LastError()});
                if (file)
                    Os().files->DeleteFile(path);
                return;
            }
            report.done = 1;
            report.results.push_back(path);
            report.undo.name = FileName(path);
            Record(UndoAction::takeAway, path, {});
            return;
        }
    }

    void Trash(const std::string& source)
    {
        const auto result = run.Do(FileOperation::trash, source);
        if (result.done)
            Record(UndoAction::restore, result.target, source);
        run.Note(result);
    }

    FileOperation Operation() const
    {
        return request.task == FileTask::copy ? FileOperation::copy : FileOperation::rename;
    }

    // Copies or moves to the new path, asking when its name is taken.
    void Transfer(const std::string& source, const std::string& target)
    {
        const auto result = run.Do(Operation(), source, target);
        switch (FailureOf(result, source)) {
        case FileFailure::nameTaken:
            return AnswerClash(source, target);
        case FileFailure::itself:
            // A copy beside itself is wanted under another name; a move to where it is, is done.
            if (request.task == FileTask::copy)
                return PutBeside(source, target);
            if (std::exchange(isTop, false))
                report.results.push_back(source);
            return;
        default:
            return Settle(source, result);
        }
    }

    // Records what the step has put in place, and notes what it has not.
    void Settle(const std::string& source, const platform::FileStepResult& result)
    {
        if (!result.target.empty()) {
            const bool isCopy = request.task == FileTask::copy;
            const bool isFolder = Record(isCopy ? UndoAction::takeAway : UndoAction::moveBack, result.target,
                                         isCopy ? std::string() : source);
            (isCopy ? copied : moved).push_back({source, result.target, isFolder});
            if (std::exchange(isTop, false))
                report.results.push_back(result.target);
        }
        run.Note(result);
    }

    // Whether there is a folder now.
    bool Record(UndoAction action, const std::string& path, const std::string& origin)
    {
        // A new name changes nothing of what is known.
        const auto facts = item < known.size() && known[item] ? known[item] : Os().shell->FindEntry(path);
        report.undo.steps.push_back({action, path, origin, facts ? facts->stamp : platform::FileStamp{}});
        return facts && facts->isFolder;
    }

    void AnswerClash(const std::string& source, const std::string& target)
    {
        const auto from = Os().shell->FindEntry(source);
        const auto to = Os().shell->FindEntry(target);
        const Clash clash{source, target, from && to && from->isFolder && to->isFolder};
        std::optional<ClashAnswer>& remembered = clash.areFolders ? answerForFolders : answerForOthers;
        ClashReply reply{remembered.value_or(ClashAnswer::cancel), false};
        if (!remembered)
            reply = run.Host().AskAboutClash(clash);
        if (reply.forAll)
            remembered = reply.answer;
        switch (reply.answer) {
        case ClashAnswer::cancel:
            report.cancelled = true;
            break;
        case ClashAnswer::skip:
            ++report.skipped;
            break;
        case ClashAnswer::keepBoth:
            PutBeside(source, target);
            break;
        case ClashAnswer::replace:
            Replace(source, target);
            break;
        case ClashAnswer::merge:
            Merge(source, target);
            break;
        }
    }

    // Under the first free name with a number.
    void PutBeside(const std::string& source, const std::string& target)
    {
        const auto facts = Os().shell->FindEntry(source);
        const NameKind kind = facts && facts->isFolder ? NameKind::folder : NameKind::file;
        platform::FileStepResult result;
        for (int number = 2; number < kMostNumbers; ++number) {
            const std::string name = NumberedName(FileName(target), number, kind);
            result = run.Do(Operation(), source, JoinPath(FolderOf(target), name));
            const FileFailure failure = FailureOf(result, source);
            if (failure != FileFailure::nameTaken && failure != FileFailure::itself)
                break;
        }
        Settle(source, result);
    }

    // Whether `path` lies in the folder `folder`, all links resolved.
    static bool LiesIn(const std::string& path, const std::string& folder)
    {
        const auto place = Os().files->ResolveLink(std::string(FolderOf(path)));
        const auto top = Os().files->ResolveLink(folder);
        return place && top && (*place == *top || place->starts_with(JoinPath(*top, "")));
    }

    void Replace(const std::string& source, const std::string& target)
    {
        if (LiesIn(source, target))
            return run.Note({source, FileFailure::intoItself, {}});
        const auto old = run.Do(FileOperation::trash, target);
        if (!old.done)
            return run.Note(old);
        Record(UndoAction::restore, old.target, target);
        const auto result = run.Do(Operation(), source, target);
        if (!result.done && result.target.empty() &&
            Os().shell->DoFileStep({FileOperation::restore, old.target, target, {}}).done)
            report.undo.steps.pop_back();
        Settle(source, result);
    }

    void Merge(const std::string& source, const std::string& target)
    {
        const auto reader = Os().files->ReadFolder(source);
        if (!reader)
            return run.Note({source, FileFailure::other, Os().files->LastError()});
        if (std::exchange(isTop, false))
            report.results.push_back(target);
        std::vector<platform::FolderEntry> entries;
        while (reader->Read(1000, entries)) {
        }
        for (const platform::FolderEntry& entry : entries) {
            if (report.cancelled)
                return;
            Transfer(JoinPath(source, entry.name), JoinPath(target, entry.name));
        }
        // What was skipped keeps its folder.
        if (request.task == FileTask::move && run.Do(FileOperation::removeEmpty, source).done)
            report.undo.steps.push_back({UndoAction::makeFolder, source, {}, {}});
    }

    const FileJobRequest& request;
    FileJobReport report;
    CJobRun run;
    std::unique_ptr<CChangeJournal::COpenEntry> written;
    std::unique_ptr<CCarryAhead> ahead;
    std::vector<std::optional<platform::EntryFacts>> known;  // of what is to be renamed
    std::size_t item = 0;                                    // in work
    std::vector<CarriedPath> copied;
    std::vector<CarriedPath> moved;
    bool isTop = false;  // the item in work is one that the user chose, and nothing is there of it yet
    std::optional<ClashAnswer> answerForFolders;
    std::optional<ClashAnswer> answerForOthers;
};

}  // namespace

FileJobReport RunFileJob(const FileJobRequest& request, CFileJobHost& host)
{
    return request.task == FileTask::undo ? RunUndo(request.record, request.stores, host)
                                          : CFileJob(request, host).Run();
}

}  // namespace browser
