// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CRenamePlanModel: what a batch rename is about to do, one file a row: old name, new name, and a note where
// the file keeps its name or gets another number because a name is taken.
#pragma once

#include "photo/batch_rename.h"

#include <QAbstractTableModel>

namespace ui
{

class CRenamePlanModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { oldColumn, newColumn, noteColumn };

    using QAbstractTableModel::QAbstractTableModel;

    void Show(std::vector<photo::PlannedRename> renames);
    void ShowOnlyTaken(bool on);
    const std::vector<photo::PlannedRename>& Plan() const { return plan; }
    // Of the whole plan.
    int Clashes() const { return clashes; }
    int Kept() const { return kept; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void ChooseRows();
    QString CellText(const photo::PlannedRename& rename, int column) const;
    static QString Tip(const photo::PlannedRename& rename, int column);

    std::vector<photo::PlannedRename> plan;
    std::vector<std::size_t> rows;  // of the plan
    int clashes = 0;
    int kept = 0;
    bool onlyTaken = false;
};

}  // namespace ui
