// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/media_list_model.h"

#include "app/tone_facts.h"
#include "browser/file_names.h"
#include "browser/media_types.h"
#include "ui/display_text.h"
#include "ui/icons.h"
#include "ui/item_painter.h"
#include "ui/theme.h"
#include "ui/words.h"

namespace ui
{

QString TypeText(const browser::MediaItem& item)
{
    if (item.isFolder)
        return Text(StringId::kindFolder);
    const QString extension = Shown(browser::Extension(item.name)).toUpper();
    if (extension.isEmpty())
        return Text(StringId::kindPlainFile);
    if (item.types & (browser::kTypePicture | browser::kTypeHandsetImage))
        return Text(StringId::kindPicture, extension);
    if (item.types & browser::kTypeVideo)
        return Text(StringId::kindVideo, extension);
    if ((item.types & browser::kTypeSound) || app::ToneKindOf(item.name) != app::ToneKind::none)
        return Text(StringId::kindSound, extension);
    if (extension == QStringLiteral("ASR"))
        return Text(StringId::kindSearchResult);
    return Text(StringId::kindFile, extension);
}

CMediaListModel::CMediaListModel(browser::CMediaFileList& mediaList, Columns shown, QObject* parent)
    : QAbstractTableModel(parent), list(mediaList), columns(shown)
{
}

void CMediaListModel::SetHeadings(const QStringList& shown)
{
    headings = shown;
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

void CMediaListModel::Reset(bool withItems)
{
    beginResetModel();
    rows = withItems ? list.Count() : 0;
    endResetModel();
}

void CMediaListModel::ItemChanged(int row)
{
    if (row >= 0 && row < rows)
        Q_EMIT dataChanged(index(row, nameColumn), index(row, columnCount() - 1));
}

void CMediaListModel::FactsChanged()
{
    if (rows > 0 && columns == Columns::all)
        Q_EMIT dataChanged(index(0, sizeColumn), index(rows - 1, dateTakenColumn), {Qt::DisplayRole});
}

int CMediaListModel::columnCount(const QModelIndex& parent) const
{
    if (parent.isValid())
        return 0;
    return columns == Columns::all ? dateTakenColumn + 1 : 1;
}

QVariant CMediaListModel::data(const QModelIndex& index, int role) const
{
    const int row = index.row();
    if (!index.isValid() || row >= rows || row >= list.Count())
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return CellText(row, index.column());
    case Qt::ToolTipRole:
        return Tip(row);
    case Qt::TextAlignmentRole:
        if (index.column() == sizeColumn)
            return int(Qt::AlignRight | Qt::AlignVCenter);
        return {};
    case Qt::DecorationRole:
        if (columns != Columns::name && index.column() == nameColumn)
            return ThemedIcon(CItemPainter::IconName(list.Item(row), IconUse::kind));
        return {};
    case Qt::ForegroundRole:
        return faded.contains(list.PathOf(row)) ? QVariant(CTheme::Colours().dimText) : QVariant();
    case kFadedRole:
        return faded.contains(list.PathOf(row));
    default:
        return {};
    }
}

void CMediaListModel::SetFaded(const std::set<std::string>& paths)
{
    faded = paths;
    if (rows > 0)
        Q_EMIT dataChanged(index(0, nameColumn), index(rows - 1, columnCount() - 1), {kFadedRole});
}

QString CMediaListModel::CellText(int row, int column) const
{
    const browser::MediaItem& item = list.Item(row);
    switch (column) {
    case nameColumn:
        return Shown(item.name);
    case typeColumn:
        return TypeText(item);
    case sizeColumn:
        return item.isFolder || !list.ReadFacts(row) ? QString() : SizeText(item.fileSize);
    case modifiedColumn:
        return list.ReadFacts(row) ? TimeText(item.lastWriteTime) : QString();
    case dateTakenColumn:
        // Not read here: it opens the file.
        return ClockText(item.dateTaken);
    default:
        return {};
    }
}

QString CMediaListModel::Tip(int row) const
{
    // Plain text: a name must not be taken for markup.
    QString tip = Shown(list.Item(row).name).toHtmlEscaped() + QStringLiteral("<br>") +
                  TypeText(list.Item(row)).toHtmlEscaped();
    for (const int column : {int(sizeColumn), int(modifiedColumn), int(dateTakenColumn)}) {
        if (const QString text = CellText(row, column); !text.isEmpty())
            tip += QStringLiteral("<br>") + text.toHtmlEscaped();
    }
    return QStringLiteral("<p style='white-space:pre'>%1</p>").arg(tip);
}

QVariant CMediaListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0)
        return {};
    if (role == Qt::TextAlignmentRole)
        return int((section == sizeColumn ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    if (!headings.value(section).isEmpty())
        return headings.at(section);
    return section == dateTakenColumn
               ? Text(StringId::listDateTaken)
               : Text(StringId::listColumnHeadings).section(QLatin1Char('|'), section, section);
}

Qt::ItemFlags CMediaListModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren;
}

}  // namespace ui
