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
    // The first two are the list's.
    CIEShellListView(const std::string& storeFolder, const std::string& settingsFile, const CMainMenu& menu,
                     QWidget* parent = nullptr);

    CIEShellListCtrl* Ctrl() const { return ctrl; }
    void OpenFolder(const std::string& path, const std::string& selectName = {});
    QAction* UpAction() const { return up; }
    // Takes the widget over and has it between the bar and the list.
    void PutAbove(QWidget* widget);
    // Where the Tab key is before it comes to what is above the list.
    QWidget* LastOfBar() const { return lastOfBar; }

private:
    QWidget* MakeBar(const CMainMenu& menu);
    void ShowSize();

    QAction* up;
    CPathLabel* path;
    QSlider* sizeControl;
    QWidget* lastOfBar = nullptr;
    CIEShellListCtrl* ctrl;
};

}  // namespace ui
