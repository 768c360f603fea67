// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/grid.h"

#include <gtest/gtest.h>

namespace
{

struct Shape {
    int count;
    int width;
    bool mirrored;
};

constexpr QSize kCell(136, 160);
constexpr int kGap = 8;
const Shape kShapes[] = {{0, 800, false},  {1, 800, false},  {5, 800, false}, {17, 800, true},
                         {60, 801, false}, {60, 100, false}, {7, 1, true},    {100'000, 1920, false}};

}  // namespace

TEST(Grid, EveryCellIsFoundAtItsPlaceAndCellsDoNotOverlap)
{
    for (const Shape& shape : kShapes) {
        const ui::CGrid grid(shape.count, kCell, shape.width, kGap, shape.mirrored);
        const int checked = std::min(shape.count, 500);
        for (int i = shape.count - checked; i < shape.count; ++i) {
            const QRect cell = grid.CellRect(i);
            EXPECT_EQ(cell.size(), kCell);
            EXPECT_EQ(grid.CellAt(cell.topLeft()), i) << shape.width;
            EXPECT_EQ(grid.CellAt(cell.bottomRight()), i) << shape.width;
            EXPECT_EQ(grid.CellAt(cell.topLeft() - QPoint(0, 1)), -1);
            EXPECT_LT(cell.bottom(), grid.ContentHeight());
            EXPECT_FALSE(grid.CellRect(i - 1).intersects(cell)) << i;
        }
        EXPECT_EQ(grid.CellAt({5, grid.ContentHeight() + 5}), -1);
        EXPECT_TRUE(grid.CellRect(shape.count).isNull());
    }
}

TEST(Grid, TheCellsBetweenTwoHeightsAreThoseOfTheRowsThatTouchThem)
{
    for (const Shape& shape : kShapes) {
        const ui::CGrid grid(std::min(shape.count, 80), kCell, shape.width, kGap, shape.mirrored);
        for (int top = -300; top < grid.ContentHeight() + 300; top += 37) {
            const int bottom = top + 190;

            const auto [first, last] = grid.CellsBetween(top, bottom);

            for (int i = 0; i < grid.Count(); ++i) {
                const QRect cell = grid.CellRect(i);
                const bool found = i >= first && i <= last;
                // The gap below a row may count as part of it.
                const bool touches = cell.bottom() + (found ? kGap : 0) >= top && cell.top() < bottom;
                EXPECT_EQ(found, touches) << i << " at " << top;
            }
        }
    }
}
