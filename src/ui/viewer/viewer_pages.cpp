// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/viewer/viewer_pages.h"

#include "ui/viewer/picture_viewer.h"
#include "ui/viewer/slide_show.h"

#include <QApplication>
#include <QScreen>

#include <utility>

namespace ui
{

CViewerPages::CViewerPages(CIEShellListView* listView, QWidget* parent)
    : QStackedWidget(parent), right(listView), list(listView->Ctrl())
{
    addWidget(right);
    setFocusProxy(right);
    // What the list does after its items have changed comes first.
    listSettled.setSingleShot(true);
    listSettled.setInterval(0);
    connect(&listSettled, &QTimer::timeout, this, &CViewerPages::TakeNames);
    connect(list, &CIEShellListCtrl::PictureActivated, this, &CViewerPages::Open);
    connect(list, &CIEShellListCtrl::Filled, &listSettled, qOverload<>(&QTimer::start));
    connect(list, &CIEShellListCtrl::StatusChanged, this, [this] {
        if (!IsViewing())
            return;
        if (list->View()->model() != watched) {
            WatchModel();
            listSettled.start();
        }
        if (!listSettled.isActive())
            SelectShown();
    });
}

void CViewerPages::MakeViewer()
{
    viewer = new CPictureViewer([this](const std::string&) -> platform::BitmapHandle {
        const int row = ShownRow();
        return row < 0 ? nullptr : list->List().Item(row).thumbnail;
    });
    addWidget(viewer);
    connect(viewer, &CPictureViewer::Moved, this, &CViewerPages::SelectShown);
    connect(viewer, &CPictureViewer::BackWanted, this, &CViewerPages::Close);
    connect(viewer, &CPictureViewer::FullScreenWanted, this, &CViewerPages::SetFullScreen);
    connect(viewer, &CPictureViewer::RemoveWanted, this, [this] {
        SelectShown();
        Q_EMIT CommandWanted(app::CommandId::remove);
    });
}

bool CViewerPages::IsViewing() const
{
    return isFullScreen || (viewer && currentWidget() == viewer);
}

bool CViewerPages::Open(int row)
{
    const browser::CMediaFileList& items = list->List();
    std::vector<std::string> names = browser::PictureNames(items);
    if (row < 0 || row >= items.Count() || std::ranges::find(names, items.Item(row).name) == names.end())
        return false;
    if (!viewer)
        MakeViewer();
    setCurrentWidget(viewer);
    setFocusProxy(viewer);
    WatchModel();
    viewer->Open(items.Folder(), std::move(names), items.Item(row).name);
    viewer->setFocus(Qt::OtherFocusReason);
    SelectShown();
    return true;
}

CSlideShow* CViewerPages::ShowSlides()
{
    const browser::CMediaFileList& items = list->List();
    const QItemSelectionModel& selection = *list->View()->selectionModel();
    const bool isOfSelection = list->SelectedPaths().size() > 1;
    std::vector<std::string> paths;
    for (int row = 0; row < items.Count(); ++row) {
        const browser::MediaItem& item = items.Item(row);
        // A clip's one frame makes no slide.
        const bool isSlide = browser::IsPicture(item) && (item.types & browser::kTypeVideo) == 0;
        if (isSlide && (!isOfSelection || selection.isSelected(selection.model()->index(row, 0))))
            paths.push_back(items.PathOf(row));
    }
    const int current = list->View()->currentIndex().row();
    const std::string first = current >= 0 && current < items.Count() ? items.PathOf(current) : std::string();
    return StartSlideShow(std::move(paths), first, window());
}

void CViewerPages::Close()
{
    if (!IsViewing())
        return;
    if (isFullScreen)
        SetFullScreen(false);
    const int row = ShownRow();
    const bool hadFocus = isAncestorOf(window()->focusWidget());
    setCurrentWidget(right);
    setFocusProxy(right);
    viewer->Close();
    if (row >= 0)
        list->SelectOnly(row);
    if (hadFocus)
        list->View()->setFocus(Qt::OtherFocusReason);
    Q_EMIT list->WorkAppeared();
}

void CViewerPages::SetFullScreen(bool on)
{
    if (on == isFullScreen)
        return;
    isFullScreen = on;
    viewer->SetFullScreen(on);
    if (on) {
        const QRect wholeScreen = screen()->geometry();
        viewer->setParent(window(), Qt::Window);
        setFocusProxy(right);
        viewer->setGeometry(wholeScreen);
        viewer->showFullScreen();
    } else {
        addWidget(viewer);
        setCurrentWidget(viewer);
        setFocusProxy(viewer);
        window()->activateWindow();
        // The window system's word for it never comes: Qt gave the keys to the window that took the viewer
        // in.
        QApplication::setActiveWindow(window());
    }
    viewer->setFocus(Qt::OtherFocusReason);
}

void CViewerPages::WatchModel()
{
    if (watched)
        watched->disconnect(&listSettled);
    watched = list->View()->model();
    const auto start = qOverload<>(&QTimer::start);
    connect(watched, &QAbstractItemModel::modelReset, &listSettled, start);
    connect(watched, &QAbstractItemModel::layoutChanged, &listSettled, start);
    connect(watched, &QAbstractItemModel::rowsInserted, &listSettled, start);
    connect(watched, &QAbstractItemModel::rowsRemoved, &listSettled, start);
}

void CViewerPages::TakeNames()
{
    if (!IsViewing())
        return;
    std::vector<std::string> names = browser::PictureNames(list->List());
    if (list->List().Folder() != viewer->Folder() || (names.empty() && !list->IsReading()))
        return Close();
    if (list->IsReading())
        return;
    viewer->SetNames(std::move(names));
    SelectShown();
}

int CViewerPages::ShownRow() const
{
    const browser::CMediaFileList& items = list->List();
    const std::string& name = viewer->Name();
    const int current = list->View()->currentIndex().row();
    if (items.Folder() != viewer->Folder())
        return -1;
    for (const int near : {current, current + 1, current - 1}) {
        if (near >= 0 && near < items.Count() && items.Item(near).name == name)
            return near;
    }
    for (int row = 0; row < items.Count(); ++row) {
        if (items.Item(row).name == name)
            return row;
    }
    return -1;
}

void CViewerPages::SelectShown()
{
    const int row = ShownRow();
    if (row < 0 || std::exchange(selecting, true))
        return;
    list->SelectOnly(row);
    selecting = false;
}

}  // namespace ui
