// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Batch rename: which file gets which name.
#pragma once

#include "browser/file_job.h"

#include <string>
#include <vector>

namespace photo
{

struct PlannedRename {
    std::string from;
    std::string to;  // empty for one that keeps its name: a search result (asr) or a shortcut (lnk)
    bool hasClash =
        false;  // the name that its number gives is taken, so that it gets one with a second number
};

// The names that the files get in that order, as if the renames before had been done. Nothing is changed; the
// folders are looked at. Nothing for an empty pattern.
std::vector<PlannedRename> PlanBatchRename(const std::vector<std::string>& files, const std::string& pattern);

// The job that does what was planned: written down first, with thumbnails and texts brought along.
browser::FileJobRequest BatchRenameJob(const std::vector<PlannedRename>& plan, browser::JobStores stores);

}  // namespace photo
