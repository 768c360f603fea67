// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CMediaListModel: a CMediaFileList as Qt's views see it.
//
// The model shows what the list held at the latest Reset; it is the owner's task to call it whenever the
// list's items have been replaced, before any event is handled. Sizes and times are read when first shown.
#pragma once

#include "browser/media_file_list.h"

#include <QAbstractTableModel>

#include <set>

namespace ui
{

enum class Columns { name, nameAndIcon, all };

class CMediaListModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { nameColumn, sizeColumn, typeColumn, modifiedColumn, dateTakenColumn };

    CMediaListModel(browser::CMediaFileList& mediaList, Columns shown, QObject* parent = nullptr);

    // Headings other than the built-in ones; an empty one leaves the column its own.
    void SetHeadings(const QStringList& shown);
    // Takes the list's items anew, or none of them.
    void Reset(bool withItems);
    // The item's thumbnail or facts have changed.
    void ItemChanged(int row);
    // The facts of any item may have changed.
    void FactsChanged();
    // Items whose paths are in the set are drawn faded: they have been cut.
    static constexpr int kFadedRole = Qt::UserRole + 1;
    void SetFaded(const std::set<std::string>& paths);

    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows; }
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    QString CellText(int row, int column) const;
    QString Tip(int row) const;

    browser::CMediaFileList& list;
    Columns columns;
    QStringList headings;
    int rows = 0;
    std::set<std::string> faded;
};

// "Picture", "Video clip", "Folder" ...
QString TypeText(const browser::MediaItem& item);

}  // namespace ui
