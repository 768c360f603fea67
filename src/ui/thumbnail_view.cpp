// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/thumbnail_view.h"

#include "browser/list_settings.h"
#include "ui/media_list_model.h"
#include "ui/style.h"
#include "ui/theme.h"
#include "ui/words.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QScrollBar>

namespace ui
{

namespace
{

constexpr int kGap = 2 * kGrid;

}  // namespace

CThumbnailView::CThumbnailView(const browser::CMediaFileList& mediaList, QWidget* parent)
    : QListView(parent), list(mediaList)
{
    setObjectName(QStringLiteral("thumbnails"));
    setAccessibleName(Text(StringId::listFiles));
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setFrameShape(NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setVerticalScrollMode(ScrollPerPixel);
    setDragEnabled(true);
    viewport()->setMouseTracking(true);
}

void CThumbnailView::SetThumbnailSide(int pixels)
{
    const bool currentShows = visualRect(currentIndex()).intersects(viewport()->rect());
    const QModelIndex kept = currentShows ? currentIndex() : FirstVisible();
    side = pixels;
    Regrid();
    if (kept.isValid())
        scrollTo(kept, PositionAtCenter);
    Q_EMIT VisibleChanged();
}

std::optional<browser::VisibleRange> CThumbnailView::Visible() const
{
    const auto [first, last] = grid.CellsBetween(verticalOffset(), verticalOffset() + viewport()->height());
    if (last < first)
        return std::nullopt;
    return browser::VisibleRange{first, last};
}

QModelIndex CThumbnailView::FirstVisible() const
{
    const auto visible = Visible();
    return visible ? model()->index(visible->first, 0) : QModelIndex();
}

QRect CThumbnailView::visualRect(const QModelIndex& index) const
{
    return index.isValid() ? grid.CellRect(index.row()).translated(0, -verticalOffset()) : QRect();
}

QModelIndex CThumbnailView::indexAt(const QPoint& point) const
{
    const int row = grid.CellAt(point + QPoint(0, verticalOffset()));
    return row < 0 || !model() ? QModelIndex() : model()->index(row, 0);
}

void CThumbnailView::scrollTo(const QModelIndex& index, ScrollHint hint)
{
    if (!index.isValid())
        return;
    const QRect cell = grid.CellRect(index.row()).adjusted(0, -kGap, 0, kGap);
    const int page = viewport()->height();
    const int top = verticalOffset();
    int wanted = top;
    if (hint == PositionAtTop || (hint == EnsureVisible && cell.top() < top))
        wanted = cell.top();
    else if (hint == PositionAtBottom || (hint == EnsureVisible && cell.bottom() >= top + page))
        wanted = cell.bottom() + 1 - page;
    else if (hint == PositionAtCenter)
        wanted = cell.center().y() - page / 2;
    verticalScrollBar()->setValue(wanted);
}

int CThumbnailView::verticalOffset() const
{
    return verticalScrollBar()->value();
}

void CThumbnailView::doItemsLayout()
{
    Regrid();
    QAbstractItemView::doItemsLayout();
}

void CThumbnailView::reset()
{
    hovered = -1;
    QListView::reset();
    Regrid();
}

void CThumbnailView::keyboardSearch(const QString& search)
{
    if (const int row = typeAhead.Find(*model(), currentIndex().row(), search); row >= 0)
        setCurrentIndex(model()->index(row, 0));
}

void CThumbnailView::Regrid()
{
    const int count = model() ? model()->rowCount() : 0;
    grid =
        CGrid(count, CItemPainter::CellSize(side, fontMetrics()), viewport()->width(), kGap, isRightToLeft());
    updateGeometries();
    viewport()->update();
}

void CThumbnailView::updateGeometries()
{
    const int page = viewport()->height();
    verticalScrollBar()->setSingleStep(std::max(grid.RowHeight() / 3, 1));
    verticalScrollBar()->setPageStep(page);
    verticalScrollBar()->setRange(0, std::max(0, grid.ContentHeight() - page));
}

void CThumbnailView::dataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight,
                                 const QList<int>& roles)
{
    // Not QListView's, which lays out everything anew.
    QAbstractItemView::dataChanged(topLeft, bottomRight, roles);
}

void CThumbnailView::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QListView::currentChanged(current, previous);
    UpdateCell(previous.row());
    UpdateCell(current.row());
}

void CThumbnailView::scrollContentsBy(int dx, int dy)
{
    if (state() == DragSelectingState)
        viewport()->update();
    else
        viewport()->scroll(dx, dy);
    Q_EMIT VisibleChanged();
}

void CThumbnailView::resizeEvent(QResizeEvent* event)
{
    const QModelIndex top = FirstVisible();
    const int columns = grid.Columns();
    QAbstractItemView::resizeEvent(event);
    Regrid();
    if (grid.Columns() != columns && verticalOffset() > 0)
        scrollTo(top, PositionAtTop);
    Q_EMIT VisibleChanged();
}

void CThumbnailView::changeEvent(QEvent* event)
{
    QListView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::LayoutDirectionChange)
        Regrid();
}

QModelIndex CThumbnailView::moveCursor(CursorAction action, Qt::KeyboardModifiers)
{
    const int count = grid.Count();
    if (count == 0)
        return {};
    const int row = currentIndex().row();
    if (row < 0)
        return model()->index(action == MoveEnd ? count - 1 : 0, 0);
    const int columns = grid.Columns();
    const int pageRows = std::max(1, viewport()->height() / grid.RowHeight());
    const int aside = isRightToLeft() ? -1 : 1;
    int step = 0;
    switch (action) {
    case MoveLeft:
        step = -aside;
        break;
    case MoveRight:
        step = aside;
        break;
    case MovePrevious:
        step = -1;
        break;
    case MoveNext:
        step = 1;
        break;
    case MoveUp:
        step = -columns;
        break;
    case MoveDown:
        step = columns;
        break;
    case MovePageUp:
        step = -columns * std::min(pageRows, row / columns);
        break;
    case MovePageDown:
        step = columns * std::min(pageRows, (count - 1 - row) / columns);
        break;
    case MoveHome:
        return model()->index(0, 0);
    case MoveEnd:
        return model()->index(count - 1, 0);
    }
    int wanted = row + step;
    // Down from above a short last row goes to its end.
    if (action == MoveDown && wanted >= count && row / columns < (count - 1) / columns)
        wanted = count - 1;
    return model()->index(wanted < 0 || wanted >= count ? row : wanted, 0);
}

void CThumbnailView::setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command)
{
    if (!selectionModel() || !model())
        return;
    const QPoint shift(0, verticalOffset());
    const QItemSelection chosen = state() == DragSelectingState
                                      ? BandSelection(rect.normalized().translated(shift))
                                      : RangeSelection(rect.topLeft() + shift, rect.bottomRight() + shift);
    selectionModel()->select(chosen, command);
}

QItemSelection CThumbnailView::BandSelection(const QRect& band) const
{
    QItemSelection chosen;
    const auto [first, last] = grid.CellsBetween(band.top(), band.bottom() + 1);
    const auto [left, right] = grid.ColumnsBetween(band.left(), band.right());
    if (right < left)
        return chosen;
    for (int row = first; row <= last; row += grid.Columns()) {
        const int from = row + left;
        const int to = std::min(row + right, last);
        // The gap between two rows of cells belongs to none.
        if (from <= to && grid.CellRect(from).intersects(
                              QRect(0, band.top(), grid.CellRect(from).right() + 1, band.height())))
            chosen.append(QItemSelectionRange(model()->index(from, 0), model()->index(to, 0)));
    }
    return chosen;
}

QItemSelection CThumbnailView::RangeSelection(QPoint from, QPoint to) const
{
    const int start = grid.CellAt(from);
    const int end = grid.CellAt(to);
    if (start < 0 && end < 0)
        return {};
    const int low = start < 0 ? end : end < 0 ? start : std::min(start, end);
    const int high = std::max(start, end);
    return {model()->index(low, 0), model()->index(high, 0)};
}

QRegion CThumbnailView::visualRegionForSelection(const QItemSelection& selection) const
{
    QRegion region;
    const auto visible = Visible();
    if (!visible)
        return region;
    for (const QItemSelectionRange& range : selection) {
        const int last = std::min(range.bottom(), visible->last);
        for (int row = std::max(range.top(), visible->first); row <= last; ++row)
            region += grid.CellRect(row).translated(0, -verticalOffset());
    }
    return region;
}

void CThumbnailView::paintEvent(QPaintEvent* event)
{
    QPainter painter(viewport());
    painter.setFont(font());
    const int top = verticalOffset();
    const QRect dirty = event->rect();
    const auto [first, last] = grid.CellsBetween(dirty.top() + top, dirty.bottom() + 1 + top);
    for (int row = first; row <= last && row < list.Count(); ++row) {
        const QModelIndex index = model()->index(row, 0);
        const CellLook look{visualRect(index), selectionModel()->isSelected(index),
                            hasFocus() && index == currentIndex(), row == hovered,
                            index.data(CMediaListModel::kFadedRole).toBool()};
        if (look.box.intersects(dirty))
            itemPainter.Draw(painter, list.Item(row), look);
    }
    if (state() == DragSelectingState)
        DrawBand(painter, QRect(bandStart - QPoint(0, verticalOffset()), bandEnd).normalized());
}

void CThumbnailView::wheelEvent(QWheelEvent* event)
{
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        QListView::wheelEvent(event);
        return;
    }
    // Touch pads tell of a notch in small parts.
    wheelTurn += event->angleDelta().y();
    const int notches = wheelTurn / QWheelEvent::DefaultDeltasPerStep;
    wheelTurn -= notches * QWheelEvent::DefaultDeltasPerStep;
    if (notches != 0)
        Q_EMIT SideWanted(side + notches * browser::kThumbStep);
    event->accept();
}

void CThumbnailView::mousePressEvent(QMouseEvent* event)
{
    bandStart = event->position().toPoint() + QPoint(0, verticalOffset());
    bandEnd = event->position().toPoint();
    QListView::mousePressEvent(event);
}

void CThumbnailView::mouseMoveEvent(QMouseEvent* event)
{
    QListView::mouseMoveEvent(event);
    if (state() == DragSelectingState) {
        bandEnd = event->position().toPoint();
        if (!viewport()->rect().contains(bandEnd))
            startAutoScroll();
        viewport()->update();
    }
    Hover(event->buttons() ? -1 : indexAt(event->position().toPoint()).row());
}

void CThumbnailView::mouseReleaseEvent(QMouseEvent* event)
{
    const bool banded = state() == DragSelectingState;
    QListView::mouseReleaseEvent(event);
    if (banded)
        viewport()->update();
}

bool CThumbnailView::viewportEvent(QEvent* event)
{
    if (event->type() == QEvent::Leave)
        Hover(-1);
    return QListView::viewportEvent(event);
}

void CThumbnailView::Hover(int row)
{
    if (row == hovered)
        return;
    const int former = hovered;
    hovered = row;
    UpdateCell(former);
    UpdateCell(row);
}

void CThumbnailView::UpdateCell(int row)
{
    if (row >= 0)
        viewport()->update(grid.CellRect(row).translated(0, -verticalOffset()));
}

}  // namespace ui
