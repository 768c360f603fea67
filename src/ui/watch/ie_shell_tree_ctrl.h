// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CIEShellTreeCtrl: a folder tree that keeps itself current.
//
// Folders that are made, removed or renamed below a folder that the tree has read appear and vanish; what is
// selected, open and scrolled to stays.
#pragma once

#include "browser/tree_watch.h"
#include "ui/folder_tree.h"
#include "ui/watch/message_port.h"
#include "ui/watch/own_change.h"
#include "ui/watch/paced_refresh.h"

#include <set>

namespace ui
{

class CIEShellTreeCtrl : public CFolderTree
{
    Q_OBJECT

public:
    CIEShellTreeCtrl(std::vector<app::Place> places, const QString& name, QWidget* parent = nullptr);
    ~CIEShellTreeCtrl() override;

    // The next changes to folders are the program's own doing; RefreshFolders follows (see COwnChange).
    void SwallowNextChange() { ownChange.Begin(); }
    // Reads these folders anew where the tree shows them, after the program's own work on them.
    void RefreshFolders(const std::set<std::string>& changed);

private:
    CPacedRefresh refresh;
    CMessagePort port;
    COwnChange<browser::CTreeWatch> ownChange{watch, refresh};
    browser::CTreeWatch watch;  // goes first
};

}  // namespace ui
