// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/details_view.h"

#include "ui/media_list_model.h"
#include "ui/style.h"
#include "ui/theme.h"
#include "ui/words.h"

#include <QApplication>
#include <QHeaderView>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyledItemDelegate>

#include <utility>

namespace ui
{

namespace
{

constexpr int kColumnPadding = 8 * kGrid;
constexpr int kNarrowestColumn = 8 * kGrid;
constexpr int kNarrowestName = 30 * kGrid;
constexpr int kIconSide = 16;
constexpr int kNameColumn = CMediaListModel::nameColumn;

class CRowDelegate : public QStyledItemDelegate
{
public:
    explicit CRowDelegate(CDetailsView& owner) : QStyledItemDelegate(&owner), view(owner) {}

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override
    {
        // Rows are alike, so no row is asked for its text.
        return {0, option.fontMetrics.height() + 3 * kGrid};
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->textElideMode = index.column() == kNameColumn ? Qt::ElideMiddle : Qt::ElideRight;
        if (view.RowSelection())
            return;
        option->viewItemPosition = QStyleOptionViewItem::OnlyOne;
        if (index.column() != kNameColumn)
            option->state &= ~(QStyle::State_Selected | QStyle::State_MouseOver);
    }

private:
    CDetailsView& view;
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
    setDragEnabled(true);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
    setItemDelegate(new CRowDelegate(*this));
    viewport()->setMouseTracking(true);
    SetUpHeader();
}

void CDetailsView::SetUpHeader()
{
    header()->setStretchLastSection(false);
    header()->setHighlightSections(false);
    header()->setSectionsClickable(true);
    header()->setSectionsMovable(true);
    header()->setFirstSectionMovable(true);
    header()->setSortIndicatorShown(true);
    header()->setMinimumSectionSize(kNarrowestColumn);
    header()->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(header(), &QHeaderView::customContextMenuRequested, this,
            [this](const QPoint& place) { Q_EMIT HeaderMenuWanted(header()->mapToGlobal(place)); });
    connect(header(), &QHeaderView::sortIndicatorChanged, this, [this](int column, Qt::SortOrder way) {
        Q_EMIT OrderChosen({browser::SortKey(column), way == Qt::DescendingOrder});
    });
    connect(header(), &QHeaderView::sectionResized, this, &CDetailsView::OnSectionResized);
    connect(header(), &QHeaderView::sectionMoved, this, [this] {
        if (!arranging)
            Q_EMIT ColumnsChanged();
    });
}

void CDetailsView::setModel(QAbstractItemModel* model)
{
    QTreeView::setModel(model);
    if (!model)
        return;
    header()->setSectionResizeMode(QHeaderView::Interactive);
    header()->setSectionHidden(CMediaListModel::dateTakenColumn, true);
    ArrangeColumns({}, {});
}

void CDetailsView::ShowOrder(browser::SortOrder order)
{
    const QSignalBlocker quiet(header());
    header()->setSortIndicator(static_cast<int>(order.key),
                               order.descending ? Qt::DescendingOrder : Qt::AscendingOrder);
    header()->viewport()->update();
}

void CDetailsView::SetDateTakenShown(bool on)
{
    header()->setSectionHidden(CMediaListModel::dateTakenColumn, !on);
    FitName();
}

bool CDetailsView::IsDateTakenShown() const
{
    return !header()->isSectionHidden(CMediaListModel::dateTakenColumn);
}

void CDetailsView::SetRowSelection(bool on)
{
    wholeRows = on;
    setAllColumnsShowFocus(on);
    viewport()->update();
}

void CDetailsView::SetColumnSizing(bool on)
{
    header()->setSectionResizeMode(on ? QHeaderView::Interactive : QHeaderView::Fixed);
}

bool CDetailsView::ColumnSizing() const
{
    return header()->sectionResizeMode(kNameColumn) == QHeaderView::Interactive;
}

int CDetailsView::FittingWidth(int column) const
{
    QString sample;
    switch (column) {
    case CMediaListModel::sizeColumn:
        sample = QStringLiteral("1,000.0 MB");
        break;
    case CMediaListModel::typeColumn:
        sample = QStringLiteral("JPEG picture");
        break;
    default:
        sample = QStringLiteral("30/12/2000, 12:00 PM");
        break;
    }
    const int heading = header()->sectionSizeHint(column);
    return std::max(heading, fontMetrics().horizontalAdvance(sample) + kColumnPadding);
}

void CDetailsView::ArrangeColumns(const std::vector<int>& shown,
                                  const std::vector<std::optional<int>>& widths)
{
    arranging = true;
    for (std::size_t i = 0; i < shown.size(); ++i)
        header()->moveSection(header()->visualIndex(shown[i]), static_cast<int>(i));
    const auto widthOf = [&widths](int column) {
        const auto at = static_cast<std::size_t>(column);
        return at < widths.size() ? widths[at] : std::nullopt;
    };
    for (int column = 0; column < header()->count(); ++column) {
        // A hidden section keeps the width for when it shows.
        const bool hidden = header()->isSectionHidden(column);
        header()->setSectionHidden(column, false);
        if (const auto width = widthOf(column); width || column != kNameColumn)
            header()->resizeSection(column, width ? *width : FittingWidth(column));
        header()->setSectionHidden(column, hidden);
    }
    nameFits = !widthOf(kNameColumn);
    arranging = false;
    FitName();
}

void CDetailsView::FitName()
{
    if (!nameFits || arranging || header()->count() == 0)
        return;
    arranging = true;
    const int others = header()->length() - header()->sectionSize(kNameColumn);
    header()->resizeSection(kNameColumn, std::max(kNarrowestName, viewport()->width() - others));
    arranging = false;
}

void CDetailsView::OnSectionResized(int column)
{
    if (arranging)
        return;
    if (column == kNameColumn)
        nameFits = false;
    FitName();
    Q_EMIT ColumnsChanged();
}

std::vector<int> CDetailsView::ColumnPositions() const
{
    std::vector<int> positions;
    for (int column = 0; column < header()->count(); ++column)
        positions.push_back(header()->visualIndex(column));
    return positions;
}

std::vector<int> CDetailsView::ColumnWidths() const
{
    std::vector<int> widths;
    for (int column = 0; column < header()->count(); ++column)
        widths.push_back(column == kNameColumn && nameFits ? 0 : header()->sectionSize(column));
    return widths;
}

int CDetailsView::sizeHintForColumn(int column) const
{
    // What is on screen decides, as the rest is never asked for its text.
    int width = kNarrowestColumn;
    const int bottom = viewport()->height();
    for (QModelIndex row = QTreeView::indexAt({0, 0}); row.isValid() && visualRect(row).top() < bottom;
         row = indexBelow(row)) {
        const QString text = row.siblingAtColumn(column).data().toString();
        width = std::max(width, fontMetrics().horizontalAdvance(text) + 4 * kGrid);
    }
    return width + (column == kNameColumn ? kIconSide + 2 * kGrid : 0);
}

QModelIndex CDetailsView::indexAt(const QPoint& point) const
{
    const QModelIndex found = QTreeView::indexAt(point);
    return wholeRows || found.column() == kNameColumn ? found : QModelIndex();
}

void CDetailsView::keyboardSearch(const QString& search)
{
    if (const int row = typeAhead.Find(*model(), currentIndex().row(), search); row >= 0)
        setCurrentIndex(model()->index(row, kNameColumn));
}

// Whether the point is on what a file shows of itself: its icon or name, or anything in a selected row.
bool CDetailsView::IsOnContent(const QPoint& point) const
{
    const QModelIndex index = indexAt(point);
    if (!index.isValid() || selectionModel()->isSelected(index))
        return index.isValid();
    if (index.column() != kNameColumn)
        return false;
    QRect name = visualRect(index);
    const int width = kIconSide + 3 * kGrid + fontMetrics().horizontalAdvance(index.data().toString());
    name.setWidth(std::min(width, name.width()));
    return QStyle::visualRect(layoutDirection(), visualRect(index), name).contains(point);
}

void CDetailsView::setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command)
{
    if (state() != DragSelectingState)
        return QTreeView::setSelection(rect, command);
    const int rows = model()->rowCount();
    const int height = rows > 0 ? rowHeight(model()->index(0, 0)) : 0;
    if (height <= 0)
        return;
    const QRect band = rect.normalized().translated(0, verticalOffset());
    const int first = std::max(0, band.top()) / height;
    const int last = std::min(rows - 1, band.bottom() / height);
    QItemSelection chosen;
    if (band.bottom() >= 0 && first <= last)
        chosen.select(model()->index(first, 0), model()->index(last, model()->columnCount() - 1));
    selectionModel()->select(chosen, command);
}

void CDetailsView::resizeEvent(QResizeEvent* event)
{
    QTreeView::resizeEvent(event);
    FitName();
}

void CDetailsView::mousePressEvent(QMouseEvent* event)
{
    const QPoint place = event->position().toPoint();
    mayBand = event->button() == Qt::LeftButton && !IsOnContent(place);
    bandStart = place + QPoint(horizontalOffset(), verticalOffset());
    bandEnd = place;
    QTreeView::mousePressEvent(event);
}

void CDetailsView::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint place = event->position().toPoint();
    const QPoint start = bandStart - QPoint(horizontalOffset(), verticalOffset());
    const bool far = (place - start).manhattanLength() >= QApplication::startDragDistance();
    if (mayBand && far && event->buttons().testFlag(Qt::LeftButton) && state() == NoState)
        setState(DragSelectingState);
    QTreeView::mouseMoveEvent(event);
    if (state() != DragSelectingState)
        return;
    bandEnd = place;
    if (!viewport()->rect().contains(place))
        startAutoScroll();
    viewport()->update();
}

void CDetailsView::mouseReleaseEvent(QMouseEvent* event)
{
    mayBand = false;
    QTreeView::mouseReleaseEvent(event);
    viewport()->update();
}

void CDetailsView::paintEvent(QPaintEvent* event)
{
    QTreeView::paintEvent(event);
    if (state() != DragSelectingState)
        return;
    QPainter painter(viewport());
    DrawBand(painter, QRect(bandStart - QPoint(horizontalOffset(), verticalOffset()), bandEnd).normalized());
}

}  // namespace ui
