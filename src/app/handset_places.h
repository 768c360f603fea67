// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Which folders of this computer files from the handset go to, and which ones they lie in.
#pragma once

#include "app/data_folders.h"
#include "platform/handset_link.h"

#include <string>

namespace app
{

// The folder that receives the categories' folders, for a fetch in the mode (see handset::FetchChoice) while
// `current` is on show: that folder, or, when it is one of the favourites, the favourite folder of what is
// fetched. Empty when there is none.
std::string FetchDestination(const CDataFolders& folders, const std::string& current,
                             platform::FileDataType mode);

// Whether the folder has received files from the handset.
bool IsFromHandset(const std::string& folder);

// The empty record file that stands in the program folder once something was fetched in the mode. A program
// folder that cannot be written is left alone.
void MakeProgramRecordFile(const std::string& programFolder, platform::FileDataType mode);

}  // namespace app
