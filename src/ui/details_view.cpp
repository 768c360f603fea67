// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/details_view.h"

#include "ui/media_list_model.h"
#include "ui/theme.h"
#include "ui/words.h"

#include <QHeaderView>
#include <QStyledItemDelegate>

namespace ui
{

namespace
{

constexpr int kColumnPadding = 8 * kGrid;

class CRowDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override
    {
        // Rows are alike, so no row is asked for its text.
        return {0, option.fontMetrics.height() + 3 * kGrid};
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->textElideMode =
            index.column() == CMediaListModel::nameColumn ? Qt::ElideMiddle : Qt::ElideRight;
    }
};

}  // namespace

CDetailsView::CDetailsView(QWidget* parent) : QTreeView(parent)
{
    setObjectName(QStringLiteral("details"));
    setAccessibleName(Text(StringId::listFiles));
    setFrameShape(NoFrame);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setItemsExpandable(false);
    setAllColumnsShowFocus(true);
    setSelectionMode(ExtendedSelection);
    setSelectionBehavior(SelectRows);
    setEditTriggers(NoEditTriggers);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
    setItemDelegate(new CRowDelegate(this));
    viewport()->setMouseTracking(true);
    header()->setStretchLastSection(false);
    header()->setHighlightSections(false);
}

void CDetailsView::setModel(QAbstractItemModel* model)
{
    QTreeView::setModel(model);
    if (model)
        SizeColumns();
}

void CDetailsView::SizeColumns()
{
    const auto widthOf = [this](const QString& sample) {
        return fontMetrics().horizontalAdvance(sample) + kColumnPadding;
    };
    header()->setSectionResizeMode(QHeaderView::Interactive);
    header()->setSectionResizeMode(CMediaListModel::nameColumn, QHeaderView::Stretch);
    header()->resizeSection(CMediaListModel::sizeColumn, widthOf(QStringLiteral("1,000.0 MB")));
    header()->resizeSection(CMediaListModel::typeColumn, widthOf(QStringLiteral("JPEG picture")));
    header()->resizeSection(CMediaListModel::modifiedColumn, widthOf(QStringLiteral("30/12/2000, 12:00 PM")));
}

}  // namespace ui
