// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CListSettings: how a file list is laid out, kept between runs as one section of an INI file.
//
// The fields hold what the file says, however odd; the questions below them answer with what a list can use.
// Column numbers count from 0 in the order of the headings; in the file they count from 1.
#pragma once

#include "browser/list_order.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace browser
{

// Bits of `style`; others are kept as they are.
inline constexpr int kStyleSortAscending = 0x10;
inline constexpr int kStyleSortDescending = 0x20;

inline constexpr int kViewThumbnails = 0;
inline constexpr int kViewDetails = 1;
inline constexpr int kViewSmallIcons = 2;
inline constexpr int kViewList = 3;

inline constexpr int kThumbSmall = 80;
inline constexpr int kThumbMedium = 120;
inline constexpr int kThumbLarge = 180;
inline constexpr int kThumbSmallest = 60;
inline constexpr int kThumbStep = 20;

class CListSettings
{
public:
    // Kept nowhere: neither loads nor saves.
    CListSettings() = default;
    // The section is the owner's name and "\ListView"; an empty owner has none.
    CListSettings(std::string file, std::string_view owner);

    void LoadSettings();
    // Writes every value. False when they could not be written, or there is no place for them.
    bool SaveSettings() const;

    std::string headings;  // divided by "|"; empty for the built-in ones
    int style = kStyleSortAscending;
    int rowSelection = 1;
    int viewType = kViewThumbnails;
    int columnSizing = 1;
    int sortColumn = 0;
    int thumbSize = kThumbMedium;
    std::vector<int> columnOrder;   // the display position of each column
    std::vector<int> columnWidths;  // pixels; 0 where the list sizes the column itself
    int includeFolder = 0;
    int filter = 23;

    std::optional<int> UsableViewType() const;
    std::optional<SortOrder> UsableSortOrder() const;
    void TakeSortOrder(SortOrder order);
    // Within what thumbnails are made for, on a step of the size control.
    int UsableThumbSize() const;
    // Column numbers from the first shown to the last: each of `count` columns once, whatever was stored.
    std::vector<int> DisplayOrder(int count) const;
    // The stored width, or nothing where it is none that a column can have.
    std::optional<int> UsableWidth(int column) const;
    // The stored heading of a column, empty when there is none.
    std::string Heading(int column) const;

private:
    void LoadColumns();

    std::string fileName;
    std::string section;
};

// The size nearest to `pixels` that the size control has.
int NearestThumbSize(int pixels);

}  // namespace browser
