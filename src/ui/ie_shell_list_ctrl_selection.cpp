// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What is selected in the list, whichever view shows it.
#include "ui/ie_shell_list_ctrl.h"

#include <algorithm>

namespace ui
{

namespace
{

// Sizes that are read for a selection before everything else's turn comes.
constexpr int kFactsOfSelection = 50;

}  // namespace

void CIEShellListCtrl::SelectRows(const std::vector<std::pair<int, int>>& ranges, int current)
{
    QItemSelection chosen;
    for (const auto& [top, bottom] : ranges)
        chosen.select(Model().index(top, 0), Model().index(bottom, Model().columnCount() - 1));
    View()->selectionModel()->setCurrentIndex(Model().index(current, 0), QItemSelectionModel::NoUpdate);
    View()->selectionModel()->select(chosen, QItemSelectionModel::ClearAndSelect);
}

void CIEShellListCtrl::SelectAll()
{
    View()->selectAll();
}

void CIEShellListCtrl::SelectNone()
{
    View()->clearSelection();
}

void CIEShellListCtrl::InvertSelection()
{
    const QAbstractItemModel& model = *View()->model();
    if (model.rowCount() == 0)
        return;
    const QItemSelection all(model.index(0, 0), model.index(model.rowCount() - 1, model.columnCount() - 1));
    View()->selectionModel()->select(all, QItemSelectionModel::Toggle);
}

std::vector<int> CIEShellListCtrl::SelectedRows() const
{
    std::vector<int> rows;
    for (const QItemSelectionRange& range : View()->selectionModel()->selection()) {
        for (int row = range.top(); row <= std::min(range.bottom(), list.Count() - 1); ++row)
            rows.push_back(row);
    }
    std::ranges::sort(rows);
    return rows;
}

std::vector<std::string> CIEShellListCtrl::SelectedPaths() const
{
    std::vector<std::string> paths;
    for (const int row : SelectedRows())
        paths.push_back(list.PathOf(row));
    return paths;
}

std::string CIEShellListCtrl::NameAfterSelection() const
{
    const QItemSelectionModel& selection = *View()->selectionModel();
    const auto isSelected = [&](int row) { return selection.isSelected(selection.model()->index(row, 0)); };
    int last = list.Count() - 1;
    while (last >= 0 && !isSelected(last))
        --last;
    if (last + 1 < list.Count())
        return list.Item(last + 1).name;
    while (last >= 0 && isSelected(last))
        --last;
    return last < 0 ? std::string() : list.Item(last).name;
}

void CIEShellListCtrl::RefreshSelecting(const std::vector<std::string>& names)
{
    if (!names.empty()) {
        keeper.Want(names);
        stateIsKept = true;
    }
    Refresh();
}

SelectionFacts CIEShellListCtrl::Selection()
{
    SelectionFacts facts;
    int toRead = kFactsOfSelection;
    for (const QItemSelectionRange& range : View()->selectionModel()->selection()) {
        facts.files += range.height();
        for (int row = range.top(); row <= range.bottom() && row < list.Count(); ++row) {
            if (!list.Item(row).factsKnown && --toRead >= 0)
                list.ReadFacts(row);
            facts.bytes += list.Item(row).fileSize;
        }
    }
    facts.complete = toRead >= 0;
    return facts;
}

void CIEShellListCtrl::SelectOnly(int row)
{
    const SelectionFacts facts = Selection();
    const QModelIndex index = Model().index(row, 0);
    if (facts.files != 1 || View()->currentIndex() != index || !View()->selectionModel()->isSelected(index))
        SelectRows({{row, row}}, row);
    View()->scrollTo(index);
}

}  // namespace ui
