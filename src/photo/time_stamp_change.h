// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Changing the time stamps of files to one of four sources.
#pragma once

#include "browser/file_job.h"
#include "photo/exif_image_info.h"
#include "photo/time_stamp_choice.h"

#include <functional>
#include <string>
#include <vector>

namespace photo
{

// Those of the files that carry the date at which the photograph was taken. `goOn` is called before each
// file; false ends the search with what was found so far.
std::vector<std::string> FilesWithDate(const std::vector<std::string>& files,
                                       const std::function<bool()>& goOn = {});

struct TimeStampRequest {
    std::vector<std::string> files;
    std::vector<std::string> dated;  // of these, for source `exif` (FilesWithDate)
    TimeSource source = TimeSource::now;
    bool changeCreation = false;  // not for source `created`
    bool changeModified = false;
    ExifDate picked;      // local time, for source `picked`
    std::string journal;  // the journal's folder; empty for none
};

struct TimeStampReport {
    std::size_t changed = 0;
    // Without a date of the photograph, or one whose time could not be set.
    std::size_t skipped = 0;
    std::vector<platform::FileProblem> problems;  // the first hundred
    // At least one file could not be processed; the message is StringId::stampReadOnly.
    bool hasFailed = false;
    bool cancelled = false;
    browser::UndoRecord undo;
};

// Sets the last-write time, the creation time or both. What is about to be changed is written down in the
// journal first; when that fails nothing is changed. Blocks; the host is told of the progress and may stop
// it.
TimeStampReport ChangeTimeStamps(const TimeStampRequest& request, browser::CFileJobHost& host);

}  // namespace photo
