// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CJobRun and RunUndo: the steps of a job with their progress, and the job that takes another one back.
#pragma once

#include "browser/file_job.h"
#include "browser/member_carry.h"

namespace browser
{

// Does the steps of one job and notes in its report what went wrong.
class CJobRun
{
public:
    CJobRun(CFileJobHost& jobHost, FileJobReport& jobReport) : host(jobHost), report(jobReport) {}

    void BeginItem(std::size_t number, std::size_t count);
    platform::FileStepResult Do(platform::FileOperation operation, const std::string& source,
                                const std::string& target = {});
    void Note(const platform::FileStepResult& result);
    void Note(platform::FileProblem problem);
    CFileJobHost& Host() { return host; }

private:
    CFileJobHost& host;
    FileJobReport& report;
    std::size_t item = 0;
    std::size_t items = 1;
};

// Takes a record back from its end. What is no longer as the record left it stays as it is and is told of.
FileJobReport RunUndo(const UndoRecord& record, const JobStores& stores, CFileJobHost& host);

// CarryMembers with a manager of the job's own; true when there is nothing to carry.
bool CarryInStore(const std::string& storeFolder, const std::vector<CarriedPath>& paths, CarryKind kind);

}  // namespace browser
