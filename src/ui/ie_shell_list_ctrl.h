// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CIEShellListCtrl: the files of the current place, as thumbnails or as details.
//
// It owns the list and the thumbnail store's manager. The owner calls ThumbnailStep on each tick of its
// timer while there is work, and starts ticking when WorkAppeared is heard.
#pragma once

#include "browser/media_file_list.h"
#include "browser/thumb_db_mgr.h"
#include "ui/details_view.h"
#include "ui/empty_state.h"
#include "ui/list/compact_view.h"
#include "ui/list/list_layout.h"
#include "ui/list_filler.h"
#include "ui/media_list_model.h"
#include "ui/selection_keeper.h"
#include "ui/thumbnail_view.h"
#include "ui/watch/list_follower.h"

#include <QStackedLayout>
#include <QWidget>

#include <functional>

namespace ui
{

enum class ViewStyle { thumbnails, details, smallIcons, list };

struct SelectionFacts {
    int files = 0;
    std::uint64_t bytes = 0;
    bool complete = true;  // whether every size was known
};

class CIEShellListCtrl : public QWidget
{
    Q_OBJECT

public:
    // `storeFolder`: where thumbnails are kept; `settingsFile`: where the list's layout is; empty for
    // nowhere.
    CIEShellListCtrl(const std::string& storeFolder, const std::string& settingsFile,
                     QWidget* parent = nullptr);
    ~CIEShellListCtrl() override;

    // Shows a folder; `selectName` becomes selected when it is there.
    void OpenFolder(const std::string& path, const std::string& selectName = {});
    // Reads the folder anew; selection, current item and scroll position stay. Pictures that could not be
    // shown are tried again.
    void Refresh();
    void SetViewStyle(ViewStyle wanted);
    ViewStyle Style() const { return style; }
    // The nearest size that there is.
    void SetThumbnailSide(int pixels);
    // Sorts, at once or as soon as the files have told what is sorted by. The selection stays.
    void SetOrder(browser::SortOrder order);
    void ShowDateTaken(bool on);
    // As CMediaListModel::SetHeadings.
    void SetHeadings(const QStringList& headings) { allModel.SetHeadings(headings); }
    // As CMediaFileList::SetFilter.
    void SetFilter(int mode, int includeFolders);

    void SelectAll();
    void SelectNone();
    void InvertSelection();
    // In the order of the list.
    std::vector<int> SelectedRows() const;
    std::vector<std::string> SelectedPaths() const;
    // The name of the item that takes over when the selected ones go; empty for none.
    std::string NameAfterSelection() const;
    // Reads the folder anew; then these items are selected, where they are there.
    void RefreshSelecting(const std::vector<std::string>& names);
    // Draws the items of these paths faded.
    void SetFaded(const std::set<std::string>& paths);
    SelectionFacts Selection();
    // This item alone is selected, current and in sight.
    void SelectOnly(int row);
    // Tells of a folder or picture; opens any other file with the desktop's program.
    void Activate(const QModelIndex& index);

    // One tick; false when nothing is left to do.
    bool ThumbnailStep();
    bool IsReading() const { return filler.IsReading(); }
    // Whether every picture on screen has its thumbnail or will have none.
    bool IsScreenComplete() const;

    const browser::CMediaFileList& List() const { return list; }
    QAbstractItemView* View() const;
    CThumbnailView* Thumbnails() const { return thumbnails; }
    CDetailsView* Details() const { return details; }
    const CEmptyState* EmptyState() const { return emptyState; }
    CListFollower& Follower() { return follower; }

Q_SIGNALS:
    // The folder has been read anew, whether or not other items came of it.
    void Filled();
    void WorkAppeared();
    // Items, selection or sizes have changed.
    void StatusChanged();
    void ThumbnailMade();
    // View, sizes, columns, order or filter have changed.
    void LayoutChanged();
    void FolderActivated(const std::string& path);
    // A photo, handset image or clip is to be shown large.
    void PictureActivated(int row);
    // The selected items are being dragged out of the view.
    void DragStarts();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void WatchView(QAbstractItemView* view);
    int FirstVisible() const;
    void SelectRows(const std::vector<std::pair<int, int>>& ranges, int current);
    void Reread();
    void FollowChange();
    bool IsInUse() const;
    void Rearrange(const std::function<void()>& sort);
    void OnFactsRead();
    void ShowHeaderMenu(const QPoint& place);
    void KeepState();
    void OnFilled();
    void SayWhyEmpty();
    CMediaListModel& Model();

    browser::CThumbDbMgr storeManager;
    browser::CMediaFileList list;
    CMediaListModel nameModel;
    CMediaListModel iconModel;
    CMediaListModel allModel;
    CListFiller filler;
    CSelectionKeeper keeper;
    bool stateIsKept = false;  // nothing has been selected or scrolled since the keeper took the state
    ViewStyle style = ViewStyle::thumbnails;
    CThumbnailView* thumbnails;
    CDetailsView* details;
    CCompactView* compact;
    QStackedLayout* pages;
    CEmptyState* emptyState;
    CListFollower follower;
    CListLayout layout;
};

}  // namespace ui
