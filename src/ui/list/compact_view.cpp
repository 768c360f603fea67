// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/list/compact_view.h"

#include "ui/theme.h"
#include "ui/words.h"

#include <QStyledItemDelegate>

namespace ui
{

namespace
{

constexpr int kCellWidth = 60 * kGrid;
constexpr int kIconSide = 16;

class CCellDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override
    {
        // Cells are alike, so no file is asked for its name.
        return {kCellWidth, option.fontMetrics.height() + 3 * kGrid};
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->textElideMode = Qt::ElideMiddle;
    }
};

}  // namespace

CCompactView::CCompactView(QWidget* parent) : QListView(parent)
{
    setObjectName(QStringLiteral("compact"));
    setAccessibleName(Text(StringId::listFiles));
    setFrameShape(NoFrame);
    setUniformItemSizes(true);
    setIconSize({kIconSide, kIconSide});
    setWrapping(true);
    setResizeMode(Adjust);
    setMovement(Static);
    setSelectionMode(ExtendedSelection);
    setSelectionRectVisible(true);
    setEditTriggers(NoEditTriggers);
    setDragEnabled(true);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
    setItemDelegate(new CCellDelegate(this));
    SetFlow(LeftToRight);
}

void CCompactView::SetFlow(Flow wanted)
{
    setFlow(wanted);
    // Only the direction in which the cells go on is scrolled.
    setHorizontalScrollBarPolicy(wanted == LeftToRight ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(wanted == LeftToRight ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
}

void CCompactView::keyboardSearch(const QString& search)
{
    if (const int row = typeAhead.Find(*model(), currentIndex().row(), search); row >= 0)
        setCurrentIndex(model()->index(row, 0));
}

}  // namespace ui
