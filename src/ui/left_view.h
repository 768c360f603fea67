// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CLeftView: the left pane. It chooses the folder that the right pane lists.
#pragma once

#include "app/left_pane.h"
#include "ui/tab_window.h"
#include "ui/watch/ie_shell_tree_ctrl.h"

#include <QStackedWidget>

namespace ui
{

class CLeftView : public QWidget
{
    Q_OBJECT

public:
    explicit CLeftView(app::CDataFolders& dataFolders, QWidget* parent = nullptr);

    // Carries out a tab's command.
    void ShowTab(int id);
    // Selects a folder in the tree that is shown, or in the folder tree where the other one does not lead
    // there, and tells of it.
    void SelectFolder(const std::string& path);
    // The folder selected in the tree that is shown, or was before the search.
    std::string Folder() const;
    // The state that the search panel reports to.
    app::CLeftPane& State() { return state; }
    app::TabMode Mode() const { return state.tabs.Mode(); }
    TabWindow* Tabs() const { return tabBar; }
    CFolderTree* Tree() const;
    // Takes in which volumes are mounted now.
    void UpdateVolumes(const std::vector<platform::Volume>& volumes);
    // The trees made so far.
    std::vector<CIEShellTreeCtrl*> Trees() const;

Q_SIGNALS:
    void FolderChosen(const std::string& path);
    void TreeMade(CFolderTree* tree);

private:
    void ShowTree(app::PanelMode mode);
    void ShowSearch();
    bool AskToLeaveSearch();
    CFolderTree* FolderTree();
    QWidget* MakeSearchPanel();

    app::CLeftPane state;
    TabWindow* tabBar;
    QStackedWidget* panels;
    CIEShellTreeCtrl* deviceTree;
    CIEShellTreeCtrl* folderTree = nullptr;  // made when first shown
    QWidget* searchPanel = nullptr;          // made when first shown
    std::string chosen;                      // the folder told of last
};

}  // namespace ui
