// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CThumbnailView: a list of pictures on a grid.
//
// A QListView in name, so that assistive programs see a list; where its items lie is computed, never laid
// out, so that a folder of 100,000 files costs no more than one of ten.
#pragma once

#include "browser/media_file_list.h"
#include "ui/grid.h"
#include "ui/item_painter.h"
#include "ui/list/type_ahead.h"

#include <QListView>

#include <optional>

namespace ui
{

class CThumbnailView : public QListView
{
    Q_OBJECT

public:
    explicit CThumbnailView(const browser::CMediaFileList& mediaList, QWidget* parent = nullptr);

    void SetThumbnailSide(int pixels);
    int ThumbnailSide() const { return side; }
    std::optional<browser::VisibleRange> Visible() const;

    QRect visualRect(const QModelIndex& index) const override;
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;
    QModelIndex indexAt(const QPoint& point) const override;
    void doItemsLayout() override;
    void reset() override;
    void keyboardSearch(const QString& search) override;

Q_SIGNALS:
    // Other items are to be seen than before.
    void VisibleChanged();
    // The wheel was turned for another size.
    void SideWanted(int pixels);
    // The selected items are being dragged.
    void DragStarts();

protected:
    int horizontalOffset() const override { return 0; }
    int verticalOffset() const override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command) override;
    QRegion visualRegionForSelection(const QItemSelection& selection) const override;
    void updateGeometries() override;
    void startDrag(Qt::DropActions) override { Q_EMIT DragStarts(); }
    void dataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight,
                     const QList<int>& roles) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void scrollContentsBy(int dx, int dy) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QModelIndex FirstVisible() const;
    void Regrid();
    QItemSelection BandSelection(const QRect& band) const;
    QItemSelection RangeSelection(QPoint from, QPoint to) const;
    void Hover(int row);
    void UpdateCell(int row);

    const browser::CMediaFileList& list;
    CItemPainter itemPainter;
    CGrid grid;
    CTypeAhead typeAhead;
    int side = 120;
    int hovered = -1;
    int wheelTurn = 0;  // eighths of a degree that made no notch yet
    QPoint bandStart;   // in content coordinates
    QPoint bandEnd;     // in viewport coordinates
};

}  // namespace ui
