// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CIEShellListView: the right pane. It holds the list and, above it, a bar with the way up, the folder's
// name, the thumbnail size control and the two views.
#pragma once

#include "ui/ie_shell_list_ctrl.h"
#include "ui/path_label.h"

class QAction;
class QSlider;
class QToolButton;

namespace ui
{

class CMainMenu;

class CIEShellListView : public QWidget
{
    Q_OBJECT

public:
    CIEShellListView(const std::string& storeFolder, const CMainMenu& menu, QWidget* parent = nullptr);

    CIEShellListCtrl* Ctrl() const { return ctrl; }
    void OpenFolder(const std::string& path, const std::string& selectName = {});
    void SetViewStyle(ViewStyle style);
    // Large, medium and small are 2, 1 and 0.
    void SetThumbnailStep(int step);
    QAction* UpAction() const { return up; }

Q_SIGNALS:
    void ThumbnailStepChosen(int step);

private:
    QWidget* MakeBar(const CMainMenu& menu);

    QAction* up;
    CPathLabel* path;
    QSlider* sizeControl;
    CIEShellListCtrl* ctrl;
};

}  // namespace ui
