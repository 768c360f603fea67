// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CHandsetDelete: the question before files that came from the handset are deleted, and their removal from
// it.
//
// What is to go from the handset goes there first, since the files' records say which it is; then the files
// here are deleted in the usual way, also when the handset kept some. A removal that the user stops leaves
// them where they are.
#pragma once

#include "handset/handset_deletion.h"
#include "ui/files/file_jobs.h"

namespace ui
{

class CMainFrame;

class CHandsetDelete
{
public:
    // The frame must outlive the object.
    explicit CHandsetDelete(CMainFrame& mainFrame);

    // Asks about files of one folder, where it has received files from the handset; false where it has not.
    bool Ask(browser::FileTask task, const std::vector<std::string>& paths);

private:
    struct Order {
        browser::FileTask task;
        std::vector<std::string> paths;
        handset::FolderClass folderClass;
        unsigned port;
    };

    void Remove(const Order& order);
    void DeleteHere(const Order& order);

    CMainFrame& frame;
    CFileJobs jobs;
};

}  // namespace ui
