// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/time_stamp_change.h"

#include "browser/change_journal.h"
#include "browser/file_names.h"
#include "photo/exif_reader.h"
#include "photo/local_time.h"
#include "platform/services.h"
#include "platform/utility.h"

#include <algorithm>
#include <utility>

namespace photo
{

namespace
{

using browser::UndoStep;
using platform::FileFailure;
using platform::Os;

constexpr std::size_t kMostProblems = 100;

enum class Reading { unreadable, undated, dated };

Reading ReadDate(const std::string& path, ExifDate& date)
{
    const auto file = Os().files->Open(path, platform::OpenMode::read);
    if (!file) {
        return Reading::unreadable;
    }
    ExifImageInfo record;
    CExifReader(&record).ReadJpegSections(*file);
    date = SplitDate(record);
    return date.IsKnown() ? Reading::dated : Reading::undated;
}

class CTimeStampRun
{
public:
    CTimeStampRun(const TimeStampRequest& given, browser::CFileJobHost& jobHost)
        : request(given), host(jobHost), files(given.source == TimeSource::exif ? given.dated : given.files)
    {
    }

    TimeStampReport Run()
    {
        report.undo.task = browser::FileTask::changeTimes;
        report.undo.items = files.size();
        report.undo.name = files.empty() ? std::string() : std::string(browser::FileName(files.front()));
        report.undo.when = Os().utility->ql_GetCurDate();
        report.skipped = request.files.size() - std::min(request.files.size(), files.size());
        Plan();
        if (!WriteDown()) {
            return std::move(report);
        }
        for (std::size_t i = 0; i < planned.size() && GoOn(planned[i].path, i + planned.size()); ++i) {
            Apply(std::move(planned[i]));
        }
        if (entry && entry->Write(browser::JournalState::done, report.undo) && !report.undo.steps.empty()) {
            report.undo.journalNumber = entry->Number();
        }
        return std::move(report);
    }

private:
    bool GoOn(const std::string& path, std::size_t step)
    {
        const std::size_t steps = 2 * files.size();
        const double fraction = static_cast<double>(step) / static_cast<double>(steps);
        report.cancelled =
            report.cancelled || !host.Progress({path, step % files.size(), files.size(), fraction});
        return !report.cancelled;
    }

    // The time that each file is to get.
    void Plan()
    {
        const auto picked = LocalToFileTime(request.picked);
        const platform::FileTime now = Os().utility->ql_GetCurDate();
        for (std::size_t i = 0; i < files.size() && GoOn(files[i], i); ++i) {
            switch (request.source) {
            case TimeSource::created:
                PlanFor(files[i], Os().utility->ql_GetFileCreateDate(files[i]));
                break;
            case TimeSource::now:
                PlanFor(files[i], now);
                break;
            case TimeSource::exif:
                PlanFromPhotograph(files[i]);
                break;
            case TimeSource::picked:
                PlanFor(files[i], picked.value_or(0));
                break;
            }
        }
    }

    void PlanFromPhotograph(const std::string& path)
    {
        ExifDate date;
        const Reading reading = ReadDate(path, date);
        const auto time = LocalToFileTime(date);
        if (reading == Reading::unreadable) {
            Fail(path, Os().files->LastError());
        } else if (!time) {
            ++report.skipped;
        } else {
            PlanFor(path, *time);
        }
    }

    void PlanFor(const std::string& path, platform::FileTime time)
    {
        const auto facts = Os().files->FindFirstFile(path);
        if (!facts || time == 0) {
            return Fail(path, Os().files->LastError());
        }
        UndoStep step{browser::UndoAction::restoreTimes, path, {}, {}};
        step.before = {facts->creationTime, facts->lastWriteTime};
        step.after = {request.changeCreation ? time : 0, request.changeModified ? time : 0};
        planned.push_back(std::move(step));
    }

    bool WriteDown()
    {
        if (report.cancelled || planned.empty()) {
            return false;
        }
        if (request.journal.empty()) {
            return true;
        }
        browser::UndoRecord whole = report.undo;
        whole.steps = planned;
        entry = browser::CChangeJournal(request.journal).Begin(whole);
        if (!entry) {
            Fail(request.journal, Os().files->LastError());
        }
        return entry != nullptr;
    }

    // A photograph whose times cannot be set is passed over without a word when its own date is the source.
    void Apply(UndoStep step)
    {
        const auto file = Os().files->Open(step.path, platform::OpenMode::readWrite);
        bool done = file != nullptr;
        bool changed = false;
        if (done && request.changeModified) {
            done = Os().files->SetFileTime(step.path, 0, step.after.lastWrite);
            changed = done;
        }
        if (done && request.changeCreation) {
            done = Os().files->SetFileTime(step.path, step.after.creation, 0);
            changed = changed || done;
        }
        const std::string reason = done ? std::string() : Os().files->LastError();
        if (changed) {
            report.undo.steps.push_back(step);
        }
        if (done) {
            ++report.changed;
        } else if (request.source == TimeSource::exif) {
            ++report.skipped;
        } else {
            Fail(step.path, reason);
        }
    }

    void Fail(const std::string& path, const std::string& reason)
    {
        report.hasFailed = true;
        if (report.problems.size() < kMostProblems) {
            report.problems.push_back({path, FileFailure::other, reason});
        }
    }

    const TimeStampRequest& request;
    browser::CFileJobHost& host;
    const std::vector<std::string>& files;
    std::vector<UndoStep> planned;
    std::unique_ptr<browser::CChangeJournal::COpenEntry> entry;
    TimeStampReport report;
};

}  // namespace

std::vector<std::string> FilesWithDate(const std::vector<std::string>& files,
                                       const std::function<bool()>& goOn)
{
    std::vector<std::string> dated;
    for (const std::string& path : files) {
        if (goOn && !goOn()) {
            break;
        }
        ExifDate date;
        if (ReadDate(path, date) == Reading::dated) {
            dated.push_back(path);
        }
    }
    return dated;
}

TimeStampReport ChangeTimeStamps(const TimeStampRequest& request, browser::CFileJobHost& host)
{
    return CTimeStampRun(request, host).Run();
}

}  // namespace photo
