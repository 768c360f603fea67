// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/selection_keeper.h"

#include <QAbstractItemView>
#include <QScrollBar>

namespace ui
{

void CSelectionKeeper::Capture(const QAbstractItemView& view, const browser::CMediaFileList& list,
                               int firstVisible)
{
    Forget();
    const int count = list.Count();
    for (const QItemSelectionRange& range : view.selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom() && row < count; ++row)
            selected.insert(list.Item(row).name);
    }
    if (const int row = view.currentIndex().row(); row >= 0 && row < count)
        current = list.Item(row).name;
    if (firstVisible >= 0 && firstVisible < count) {
        top = list.Item(firstVisible).name;
        topOffset = view.visualRect(view.model()->index(firstVisible, 0)).top();
    }
}

void CSelectionKeeper::Want(const std::string& fileName)
{
    Forget();
    selected.insert(fileName);
    current = fileName;
    showCurrent = true;
}

void CSelectionKeeper::Want(const std::vector<std::string>& fileNames)
{
    Forget();
    selected.insert(fileNames.begin(), fileNames.end());
    current = fileNames.empty() ? std::string() : fileNames.front();
    showCurrent = true;
}

void CSelectionKeeper::Restore(QAbstractItemView& view, const browser::CMediaFileList& list) const
{
    if (selected.empty() && current.empty() && top.empty())
        return;
    QItemSelection chosen;
    QModelIndex currentIndex;
    QModelIndex topIndex;
    const QAbstractItemModel& model = *view.model();
    int runStart = -1;
    const int count = std::min(list.Count(), model.rowCount());
    for (int row = 0; row <= count; ++row) {
        const bool in = row < count && selected.contains(list.Item(row).name);
        if (in && runStart < 0)
            runStart = row;
        if (!in && runStart >= 0) {
            chosen.select(model.index(runStart, 0), model.index(row - 1, model.columnCount() - 1));
            runStart = -1;
        }
        if (row < count && list.Item(row).name == current)
            currentIndex = model.index(row, 0);
        if (row < count && list.Item(row).name == top)
            topIndex = model.index(row, 0);
    }
    view.selectionModel()->setCurrentIndex(currentIndex, QItemSelectionModel::NoUpdate);
    view.selectionModel()->select(chosen, QItemSelectionModel::ClearAndSelect);
    if (topIndex.isValid()) {
        view.scrollTo(topIndex, QAbstractItemView::PositionAtTop);
        QScrollBar& bar = *view.verticalScrollBar();
        bar.setValue(bar.value() + view.visualRect(topIndex).top() - topOffset);
    }
    if (showCurrent && currentIndex.isValid())
        view.scrollTo(currentIndex, QAbstractItemView::PositionAtCenter);
}

}  // namespace ui
