// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CViewerPages: the right pane with its list, and the large view that takes its place.
//
// While the view is open its picture is the list's selected item, so that every command of the window means
// it; going back lands on that item.
#pragma once

#include "app/commands.h"
#include "ui/ie_shell_list_view.h"

#include <QStackedWidget>
#include <QTimer>

namespace ui
{

class CPictureViewer;
class CSlideShow;

class CViewerPages : public QStackedWidget
{
    Q_OBJECT

public:
    // Takes over `listView`.
    explicit CViewerPages(CIEShellListView* listView, QWidget* parent = nullptr);

    // Shows an item of the list large; false when it is no picture.
    bool Open(int row);
    // Back to the list, at the item that was shown.
    void Close();
    bool IsViewing() const;
    // Starts a slide show of the selected pictures or, when fewer than two files are selected, of the whole
    // folder from the current one on. Null when there is no picture.
    CSlideShow* ShowSlides();
    // Null until a picture is first shown.
    CPictureViewer* Viewer() const { return viewer; }

Q_SIGNALS:
    // The command is to be carried out on the item shown.
    void CommandWanted(app::CommandId id);

private:
    void MakeViewer();
    void SetFullScreen(bool on);
    void WatchModel();
    void TakeNames();
    void SelectShown();
    int ShownRow() const;

    CIEShellListView* right;
    CIEShellListCtrl* list;
    CPictureViewer* viewer = nullptr;
    QAbstractItemModel* watched = nullptr;
    QTimer listSettled;
    bool isFullScreen = false;
    bool selecting = false;
};

}  // namespace ui
