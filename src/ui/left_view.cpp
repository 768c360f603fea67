// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/left_view.h"

#include "ui/controls/message_box.h"
#include "ui/empty_state.h"
#include "ui/watch/ie_shell_tree_ctrl.h"
#include "ui/words.h"

#include <QVBoxLayout>

namespace ui
{

CLeftView::CLeftView(app::CDataFolders& dataFolders, QWidget* parent)
    : QWidget(parent), tabBar(new TabWindow(state.tabs, this)), panels(new QStackedWidget(this)),
      deviceTree(
          new CIEShellTreeCtrl(app::DevicePlaces(dataFolders), Text(StringId::placeFavouritesAndDevices)))
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(tabBar);
    column->addWidget(panels, 1);
    panels->addWidget(deviceTree);
    deviceTree->ExpandPlaces();
    setFocusProxy(deviceTree);
    connect(tabBar, &TabWindow::Clicked, this, &CLeftView::ShowTab);
    connect(deviceTree, &CFolderTree::FolderChosen, this, &CLeftView::SelectFolder);
}

CFolderTree* CLeftView::FolderTree()
{
    if (!folderTree) {
        folderTree = new CIEShellTreeCtrl(app::FolderPlaces(), Text(StringId::placeFolders));
        panels->addWidget(folderTree);
        connect(folderTree, &CFolderTree::FolderChosen, this, &CLeftView::SelectFolder);
        Q_EMIT TreeMade(folderTree);
    }
    return folderTree;
}

CFolderTree* CLeftView::Tree() const
{
    const bool second =
        state.Mode() == app::PanelMode::folder ||
        (state.Mode() == app::PanelMode::search && state.PreviousMode() == app::PanelMode::folder);
    return second ? folderTree : deviceTree;
}

std::vector<CIEShellTreeCtrl*> CLeftView::Trees() const
{
    return folderTree ? std::vector{deviceTree, folderTree} : std::vector{deviceTree};
}

std::string CLeftView::Folder() const
{
    return Tree()->Folder();
}

void CLeftView::ShowTab(int id)
{
    if (id == app::kSearchTab)
        return ShowSearch();
    if (!state.LeaveSearch([this] { return AskToLeaveSearch(); }))
        return;
    ShowTree(id == app::kFolderTab ? app::PanelMode::folder : app::PanelMode::device);
    CFolderTree* tree = Tree();
    // A tree that has nothing selected takes over the folder on show where it leads there.
    if (tree->Folder().empty())
        tree->SelectFolder(chosen);
    if (const std::string path = tree->Folder(); !path.empty() && path != chosen) {
        chosen = path;
        Q_EMIT FolderChosen(path);
    }
}

bool CLeftView::AskToLeaveSearch()
{
    CMessageBox box(CMessageBox::Question, window()->windowTitle(), Text(StringId::skinLeaveSearch), this);
    const CButtonEx* leave = box.Add(CMessageBox::Ok);
    box.Add(CMessageBox::Cancel);
    box.exec();
    return box.clickedButton() == leave;
}

void CLeftView::ShowTree(app::PanelMode mode)
{
    CFolderTree* tree = mode == app::PanelMode::folder ? FolderTree() : deviceTree;
    state.ShowTree(mode);
    tabBar->Update();
    panels->setCurrentWidget(tree);
    setFocusProxy(tree);
}

void CLeftView::ShowSearch()
{
    if (!searchPanel) {
        searchPanel = MakeSearchPanel();
        panels->addWidget(searchPanel);
    }
    state.OpenSearch(deviceTree->Folder(), folderTree ? folderTree->Folder() : std::string{});
    tabBar->Update();
    panels->setCurrentWidget(searchPanel);
    setFocusProxy(searchPanel);
    searchPanel->setFocus();
}

QWidget* CLeftView::MakeSearchPanel()
{
    auto* panel = new CEmptyState(this);
    panel->setFocusPolicy(Qt::StrongFocus);
    panel->setContextMenuPolicy(Qt::PreventContextMenu);  // the pane's menu is about the trees
    panel->Show(QStringLiteral("search"), Text(StringId::searchNoneYet), Text(StringId::searchComesLater));
    return panel;
}

void CLeftView::SelectFolder(const std::string& path)
{
    if (!state.LeaveSearch([this] { return AskToLeaveSearch(); }))
        return;
    const bool searching = state.Mode() == app::PanelMode::search;
    if (searching || (Tree()->Folder() != path && !Tree()->SelectFolder(path))) {
        if (searching)
            ShowTree(state.PreviousMode());
        if (!Tree()->SelectFolder(path)) {
            ShowTree(app::PanelMode::folder);
            FolderTree()->SelectFolder(path);
        }
    }
    chosen = path;
    Q_EMIT FolderChosen(path);
}

void CLeftView::UpdateVolumes(const std::vector<platform::Volume>& volumes)
{
    deviceTree->UpdateVolumes(app::VolumePlaces(volumes, app::VolumeChoice::removable));
    if (folderTree)
        folderTree->UpdateVolumes(app::VolumePlaces(volumes, app::VolumeChoice::all));
}

}  // namespace ui
