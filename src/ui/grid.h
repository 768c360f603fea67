// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CGrid: where the cells of equal size of a thumbnail view lie. Every question is answered in constant time.
//
// Coordinates are those of the whole content, before scrolling.
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

#include <utility>

namespace ui
{

class CGrid
{
public:
    CGrid() = default;
    // Cells fill rows from the left, or from the right when `mirrored`; the width left over is shared out.
    CGrid(int cellCount, QSize cellSize, int contentWidth, int gap, bool mirrored);

    int Columns() const { return columns; }
    int Count() const { return count; }
    int RowHeight() const { return cell.height() + space; }
    int ContentHeight() const;
    QRect CellRect(int index) const;
    // The cell at a point, -1 for none.
    int CellAt(QPoint point) const;
    // First and last cell of the grid rows that touch [top, bottom); {0, -1} for none.
    std::pair<int, int> CellsBetween(int top, int bottom) const;
    // First and last column that touch [left, right]; {0, -1} for none.
    std::pair<int, int> ColumnsBetween(int left, int right) const;

private:
    int ColumnLeft(int column) const;

    int count = 0;
    QSize cell{1, 1};
    int width = 1;
    int space = 0;
    bool fromRight = false;
    int columns = 1;
};

}  // namespace ui
