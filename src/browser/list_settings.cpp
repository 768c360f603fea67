// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/list_settings.h"

#include "browser/media_types.h"
#include "platform/services.h"
#include "platform/settings_store.h"

#include <fmt/format.h>

#include <algorithm>
#include <numeric>

namespace browser
{

namespace
{

// Far more than any list has; a file that tells of more is not believed.
constexpr int kMostColumns = 64;
constexpr int kNarrowest = 24;
constexpr int kWidest = 4000;

std::string Numbered(const char* key, std::size_t number)
{
    return fmt::format("{}{}", key, number);
}

}  // namespace

CListSettings::CListSettings(std::string file, std::string_view owner) : fileName(std::move(file))
{
    if (!owner.empty() && !fileName.empty()) {
        section = fmt::format("{}\\ListView", owner);
    }
}

void CListSettings::LoadSettings()
{
    platform::CProfiles* profiles = platform::Os().profiles;
    if (section.empty() || !profiles) {
        return;
    }
    const auto number = [&](const char* key, int fallback) {
        return profiles->GetPrivateProfileInt(section, key, fallback, fileName);
    };
    headings = profiles->GetPrivateProfileString(section, "Headings", "", fileName);
    style = number("Style", style);
    rowSelection = number("RowSelection", rowSelection);
    viewType = number("ViewType", viewType);
    columnSizing = number("ColumnSizing", columnSizing);
    sortColumn = number("SortColumn", sortColumn);
    thumbSize = number("ThumbSize", kThumbMedium);
    LoadColumns();
    includeFolder = number("IncludeFolder", 0);
    filter = number("Filter", kFilterMedia);
}

void CListSettings::LoadColumns()
{
    platform::CProfiles& profiles = *platform::Os().profiles;
    const int count = profiles.GetPrivateProfileInt(section, "Columns", 0, fileName);
    if (count <= 0) {
        return;
    }
    const auto columns = static_cast<std::size_t>(std::min(count, kMostColumns));
    columnOrder.assign(columns, 0);
    columnWidths.assign(columns, 0);
    for (std::size_t i = 0; i < columns; ++i) {
        columnOrder[i] = profiles.GetPrivateProfileInt(section, Numbered("ColumnOrder", i + 1), 0, fileName);
        columnWidths[i] =
            profiles.GetPrivateProfileInt(section, Numbered("ColumnWidths", i + 1), 0, fileName);
    }
}

bool CListSettings::SaveSettings() const
{
    platform::CProfiles* profiles = platform::Os().profiles;
    if (section.empty() || !profiles) {
        return false;
    }
    platform::ProfileValues values = {{"Headings", headings},
                                      {"Style", std::to_string(style)},
                                      {"RowSelection", std::to_string(rowSelection)},
                                      {"ViewType", std::to_string(viewType)},
                                      {"ColumnSizing", std::to_string(columnSizing)},
                                      {"Columns", std::to_string(columnOrder.size())},
                                      {"SortColumn", std::to_string(sortColumn)},
                                      {"ThumbSize", std::to_string(thumbSize)}};
    const auto add = [&values](const char* key, const std::vector<int>& numbers) {
        for (std::size_t i = 0; i < numbers.size(); ++i) {
            values.emplace_back(Numbered(key, i + 1), std::to_string(numbers[i]));
        }
    };
    add("ColumnOrder", columnOrder);
    add("ColumnWidths", columnWidths);
    values.emplace_back("IncludeFolder", std::to_string(includeFolder));
    values.emplace_back("Filter", std::to_string(filter));
    return profiles->WritePrivateProfileValues(section, values, fileName);
}

std::optional<int> CListSettings::UsableViewType() const
{
    const bool known = viewType >= kViewThumbnails && viewType <= kViewList;
    return known ? std::optional(viewType) : std::nullopt;
}

std::optional<SortOrder> CListSettings::UsableSortOrder() const
{
    if (sortColumn < 0 || sortColumn >= kSortKeys) {
        return std::nullopt;
    }
    return SortOrder{SortKey(sortColumn), (style & kStyleSortDescending) != 0};
}

void CListSettings::TakeSortOrder(SortOrder order)
{
    sortColumn = static_cast<int>(order.key);
    style = (style & ~(kStyleSortAscending | kStyleSortDescending)) |
            (order.descending ? kStyleSortDescending : kStyleSortAscending);
}

int CListSettings::UsableThumbSize() const
{
    return NearestThumbSize(thumbSize);
}

std::vector<int> CListSettings::DisplayOrder(int count) const
{
    std::vector<int> columns(static_cast<std::size_t>(count));
    std::iota(columns.begin(), columns.end(), 0);
    const auto position = [this, count](int column) {
        const auto at = static_cast<std::size_t>(column);
        return at < columnOrder.size() ? std::clamp(columnOrder[at], 0, count - 1) : column;
    };
    std::ranges::stable_sort(columns, {}, position);
    return columns;
}

std::optional<int> CListSettings::UsableWidth(int column) const
{
    const auto at = static_cast<std::size_t>(column);
    if (at >= columnWidths.size() || columnWidths[at] < kNarrowest || columnWidths[at] > kWidest) {
        return std::nullopt;
    }
    return columnWidths[at];
}

std::string CListSettings::Heading(int column) const
{
    std::size_t start = 0;
    for (; column > 0 && start != std::string::npos; --column) {
        start = headings.find('|', start);
        start += start == std::string::npos ? 0 : 1;
    }
    return start == std::string::npos ? std::string()
                                      : headings.substr(start, headings.find('|', start) - start);
}

int NearestThumbSize(int pixels)
{
    const int within = std::clamp(pixels, kThumbSmallest, kThumbLarge);
    return kThumbSmallest + (within - kThumbSmallest + kThumbStep / 2) / kThumbStep * kThumbStep;
}

}  // namespace browser
