// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/grid.h"

#include <algorithm>

namespace ui
{

CGrid::CGrid(int cellCount, QSize cellSize, int contentWidth, int gap, bool mirrored)
    : count(cellCount), cell(cellSize), width(std::max(contentWidth, 1)), space(gap), fromRight(mirrored),
      columns(std::max(1, (contentWidth - gap) / (cellSize.width() + gap)))
{
}

int CGrid::ContentHeight() const
{
    const int rows = (count + columns - 1) / columns;
    return rows == 0 ? 0 : rows * RowHeight() + space;
}

int CGrid::ColumnLeft(int column) const
{
    const int slot = (width - space) / columns;
    const int left = space / 2 + column * slot + (slot - cell.width()) / 2;
    return std::max(left, 0);
}

QRect CGrid::CellRect(int index) const
{
    if (index < 0 || index >= count)
        return {};
    const int left = ColumnLeft(index % columns);
    const int x = fromRight ? width - left - cell.width() : left;
    return {{x, space + index / columns * RowHeight()}, cell};
}

int CGrid::CellAt(QPoint point) const
{
    const int slot = std::max((width - space) / columns, 1);
    const int x = fromRight ? width - 1 - point.x() : point.x();
    const int column = std::clamp((x - space / 2) / slot, 0, columns - 1);
    const int row = point.y() / RowHeight();
    if (point.y() < 0 || row > count / columns)
        return -1;
    const int index = row * columns + column;
    return CellRect(index).contains(point) ? index : -1;
}

std::pair<int, int> CGrid::CellsBetween(int top, int bottom) const
{
    const int firstRow = std::max(0, (top - space) / RowHeight());
    const int lastRow = (bottom - 1 - space) / RowHeight();
    if (bottom <= space || bottom <= top || firstRow * columns >= count)
        return {0, -1};
    return {firstRow * columns, std::min(count, (lastRow + 1) * columns) - 1};
}

std::pair<int, int> CGrid::ColumnsBetween(int left, int right) const
{
    std::pair<int, int> found{0, -1};
    for (int column = 0; column < columns; ++column) {
        const int near = ColumnLeft(column);
        const int x = fromRight ? width - near - cell.width() : near;
        if (x > right || x + cell.width() <= left)
            continue;
        if (found.second < 0)
            found.first = column;
        found.second = column;
    }
    return found;
}

}  // namespace ui
