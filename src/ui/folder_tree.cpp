// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/folder_tree.h"

#include "ui/theme.h"

#include <QStyledItemDelegate>

#include <utility>

namespace ui
{

namespace
{

class CPlaceDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        QSize size = QStyledItemDelegate::sizeHint(option, index);
        size.setHeight(option.fontMetrics.height() + 3 * kGrid);
        return size;
    }
};

}  // namespace

CFolderTree::CFolderTree(std::vector<app::Place> places, const QString& name, QWidget* parent)
    : QTreeView(parent), folders(std::move(places))
{
    setAccessibleName(name);
    setFrameShape(NoFrame);
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextElideMode(Qt::ElideMiddle);
    setEditTriggers(NoEditTriggers);
    setExpandsOnDoubleClick(true);
    setDragEnabled(true);
    setItemDelegate(new CPlaceDelegate(this));
    viewport()->setMouseTracking(true);
    // The tree stands on the frame's ground, not on the list's.
    viewport()->setBackgroundRole(QPalette::Window);
    connect(this, &QTreeView::expanded, &folders, &CFolderTreeModel::Read);
    // Heard before the view does, which would select the next best folder.
    connect(&folders, &CFolderTreeModel::rowsAboutToBeRemoved, this, &CFolderTree::ForgetGone);
    setModel(&folders);
    connect(&folders, &CFolderTreeModel::ReadingEnded, this, [this] {
        // What is read above a folder just selected must not push it out of sight.
        if (std::exchange(isRevealing, false))
            scrollTo(currentIndex());
        Q_EMIT ReadingEnded();
    });
}

std::string CFolderTree::Folder() const
{
    return folders.Path(currentIndex());
}

bool CFolderTree::SelectFolder(const std::string& path)
{
    const QModelIndex index = folders.Reveal(path);
    if (!index.isValid())
        return false;
    selecting = true;
    for (QModelIndex above = index.parent(); above.isValid(); above = above.parent())
        expand(above);
    setCurrentIndex(index);
    scrollTo(index);
    selecting = false;
    isRevealing = true;
    return true;
}

void CFolderTree::RefreshLoaded()
{
    folders.ReadAgain();
    if (!folders.IsReading())
        Q_EMIT ReadingEnded();
}

void CFolderTree::ForgetGone(const QModelIndex& parent, int first, int last)
{
    for (QModelIndex index = currentIndex(); index.isValid(); index = index.parent()) {
        if (index.parent() == parent && index.row() >= first && index.row() <= last) {
            setCurrentIndex({});
            return;
        }
    }
}

void CFolderTree::RefreshFolder(const std::string& path)
{
    for (const QModelIndex& index : folders.Find(path))
        folders.Read(index);
}

void CFolderTree::ExpandPlaces()
{
    for (int row = 0; row < folders.rowCount(); ++row) {
        const QModelIndex place = folders.index(row, 0);
        if (folders.rowCount(place) > 0)
            expand(place);
    }
}

void CFolderTree::UpdateVolumes(const std::vector<app::Place>& volumes)
{
    const std::string before = Folder();
    selecting = true;
    folders.UpdateVolumes(volumes);
    // The view has gone on to a neighbour by itself.
    if (Folder() != before)
        setCurrentIndex({});
    selecting = false;
    for (int row = 0; row < folders.rowCount(); ++row) {
        if (folders.Path(folders.index(row, 0)).empty())
            expand(folders.index(row, 0));
    }
}

QItemSelectionModel::SelectionFlags CFolderTree::selectionCommand(const QModelIndex& index,
                                                                  const QEvent* event) const
{
    return index.isValid() || !event ? QTreeView::selectionCommand(index, event)
                                     : QItemSelectionModel::NoUpdate;
}

void CFolderTree::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTreeView::currentChanged(current, previous);
    const std::string path = folders.Path(current);
    if (!selecting && !path.empty())
        Q_EMIT FolderChosen(path);
}

}  // namespace ui
