// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/watch/ie_shell_tree_ctrl.h"

namespace ui
{

CIEShellTreeCtrl::CIEShellTreeCtrl(std::vector<app::Place> places, const QString& name, QWidget* parent)
    : CFolderTree(std::move(places), name, parent), port([this](std::uint32_t message, std::string&) {
          if (message == browser::kTreeRefreshMessage && !ownChange.HoldsBack())
              refresh.Request();
          return 0;
      }),
      watch(port)
{
    connect(&refresh, &CPacedRefresh::Due, this, [this] {
        refresh.Begin();
        RefreshLoaded();
    });
    connect(this, &CFolderTree::ReadingEnded, &refresh, &CPacedRefresh::End);
    watch.CreateFileChangeThreads();
}

CIEShellTreeCtrl::~CIEShellTreeCtrl()
{
    port.Close();
    watch.StopWatchers();
}

void CIEShellTreeCtrl::RefreshFolders(const std::set<std::string>& changed)
{
    // Others may have changed other folders meanwhile.
    if (ownChange.End())
        return refresh.Request();
    for (const std::string& folder : changed)
        RefreshFolder(folder);
}

}  // namespace ui
