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
#include "ui/watch/paced_refresh.h"

namespace ui
{

class CIEShellTreeCtrl : public CFolderTree
{
    Q_OBJECT

public:
    CIEShellTreeCtrl(std::vector<app::Place> places, const QString& name, QWidget* parent = nullptr);
    ~CIEShellTreeCtrl() override;

    // The tree's next change to a folder is its own, and it reads anew by itself.
    void SwallowNextChange() { watch.SwallowNextChange(); }

private:
    CPacedRefresh refresh;
    CMessagePort port;
    browser::CTreeWatch watch;  // goes first
};

}  // namespace ui
