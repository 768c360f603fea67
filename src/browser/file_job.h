// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// RunFileJob: one piece of work on files that the user asked for, from its start to its report.
//
// It blocks, so it belongs on a thread of its own. Nothing that exists is overwritten unless the host says
// so, and then the old one goes to the trash. What cannot be done is noted and the rest goes on; what was
// done can be undone with the record that the report carries. Thumbnails and texts follow the files that are
// copied, moved and renamed.
#pragma once

#include "browser/undo_list.h"
#include "platform/shell.h"

namespace browser
{

// The folders of what follows the files. An empty one is not kept.
struct JobStores {
    std::string thumbnails;  // of the thumbnail store
    std::string journal;     // of the journal in which renames are written down first
};

struct FileJobRequest {
    FileTask task = FileTask::copy;
    std::vector<std::string> sources;
    // copy, move, makePicture: the folder that receives; rename, makeFolder: the new path
    std::string target;
    UndoRecord record;  // undo: what to take back
    std::string bytes;  // makePicture: a bitmap file, which becomes "Image0001.bmp" or the next free number
    std::vector<std::string> targets = {};  // rename of several: the new path of each source
    JobStores stores = {};
};

enum class ClashAnswer { cancel, skip, replace, keepBoth, merge };

struct Clash {
    std::string source;
    std::string target;
    bool areFolders = false;  // both: then they can be merged
};

struct ClashReply {
    ClashAnswer answer = ClashAnswer::cancel;
    bool forAll = false;  // for all further clashes of the kind (folders, or anything else)
};

struct FileJobProgress {
    std::string path;      // in work
    std::size_t item = 0;  // counted from 0
    std::size_t items = 0;
    double fraction = 0;  // of the whole, 0 to 1
};

// Who asks for a job. Called on the job's thread.
class CFileJobHost
{
public:
    virtual ~CFileJobHost() = default;
    virtual ClashReply AskAboutClash(const Clash& clash) = 0;
    // Called often; false stops the job.
    virtual bool Progress(const FileJobProgress& progress) = 0;
};

struct FileJobReport {
    FileTask task = FileTask::copy;
    std::size_t items = 0;    // asked for
    std::size_t done = 0;     // done whole
    std::size_t skipped = 0;  // left as they were because the user said so
    bool cancelled = false;
    std::vector<platform::FileProblem> problems;  // the first hundred
    std::size_t problemCount = 0;
    std::vector<std::string> results;  // what is there now because of it
    UndoRecord undo;                   // the way back; after a cancelled undo, what is left to take back
};

FileJobReport RunFileJob(const FileJobRequest& request, CFileJobHost& host);

}  // namespace browser
