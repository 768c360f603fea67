// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/photo/rename_plan_model.h"

#include "browser/file_names.h"
#include "ui/display_text.h"
#include "ui/icons.h"
#include "ui/theme.h"
#include "ui/words.h"

namespace ui
{

namespace
{

QString NameOf(const std::string& path)
{
    return Shielded(Shown(browser::FileName(path)));
}

}  // namespace

void CRenamePlanModel::Show(std::vector<photo::PlannedRename> renames)
{
    // With the same files in the rows the view stays where it was scrolled to.
    const bool isSameList = !onlyTaken && renames.size() == rows.size();
    if (!isSameList)
        beginResetModel();
    plan = std::move(renames);
    clashes = 0;
    kept = 0;
    for (const photo::PlannedRename& rename : plan) {
        clashes += rename.hasClash ? 1 : 0;
        kept += rename.to.empty() ? 1 : 0;
    }
    ChooseRows();
    if (!isSameList)
        endResetModel();
    else if (!rows.empty())
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, noteColumn));
}

void CRenamePlanModel::ShowOnlyTaken(bool on)
{
    beginResetModel();
    onlyTaken = on;
    ChooseRows();
    endResetModel();
}

void CRenamePlanModel::ChooseRows()
{
    rows.clear();
    for (std::size_t i = 0; i < plan.size(); ++i) {
        if (!onlyTaken || plan[i].hasClash)
            rows.push_back(i);
    }
}

int CRenamePlanModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(rows.size());
}

int CRenamePlanModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : noteColumn + 1;
}

QVariant CRenamePlanModel::data(const QModelIndex& index, int role) const
{
    const photo::PlannedRename& rename = plan[rows[static_cast<std::size_t>(index.row())]];
    switch (role) {
    case Qt::DisplayRole:
        return CellText(rename, index.column());
    case Qt::ToolTipRole:
        return Tip(rename, index.column());
    case Qt::DecorationRole:
        return index.column() == noteColumn && rename.hasClash ? ThemedIcon(QStringLiteral("warning"))
                                                               : QVariant();
    case Qt::ForegroundRole:
        return rename.to.empty() ? CTheme::Colours().dimText : QVariant();
    default:
        return {};
    }
}

QString CRenamePlanModel::CellText(const photo::PlannedRename& rename, int column) const
{
    if (column == oldColumn)
        return NameOf(rename.from);
    if (column == newColumn)
        return NameOf(rename.to.empty() ? rename.from : rename.to);
    if (rename.to.empty())
        return Text(StringId::renameKeeps);
    return rename.hasClash ? Text(StringId::renameTaken) : QString();
}

QString CRenamePlanModel::Tip(const photo::PlannedRename& rename, int column)
{
    if (column == oldColumn)
        return NameOf(rename.from);
    if (rename.to.empty())
        return Text(StringId::renameKeepsTip);
    if (column == newColumn)
        return NameOf(rename.to);
    return rename.hasClash ? Text(StringId::renameTakenTip) : QString();
}

QVariant CRenamePlanModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case oldColumn:
        return Text(StringId::renameOldName);
    case newColumn:
        return Text(StringId::renameNewName);
    default:
        return Text(StringId::renameNote);
    }
}

}  // namespace ui
