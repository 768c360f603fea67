// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CBatchCommands: names and time stamps of several files at once. The dialogs say what is about to happen;
// the work itself is a job like any other and can be undone.
#pragma once

#include "photo/rename_pattern.h"
#include "ui/commands/command_router.h"

#include <string>
#include <vector>

namespace ui
{

class CMainFrame;

class CBatchCommands
{
public:
    CBatchCommands(CCommandRouter& router, CMainFrame& mainFrame);

private:
    void RenameSeveral(const std::vector<std::string>& paths);
    void ChangeTimeStamps();
    // Without the folders.
    std::vector<std::string> SelectedFiles() const;

    CMainFrame& frame;
    photo::CRenameFields fields;  // as used last in this run
};

}  // namespace ui
