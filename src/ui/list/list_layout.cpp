// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/list/list_layout.h"

#include "browser/media_types.h"
#include "ui/display_text.h"
#include "ui/ie_shell_list_ctrl.h"

#include <algorithm>
#include <array>

namespace ui
{

namespace
{

// The owner's name in the section's.
constexpr std::string_view kOwner = "Files";
// Milliseconds after the latest change.
constexpr int kSaveDelay = 3000;

// By the numbers that the settings have for them.
constexpr std::array kStyles = {ViewStyle::thumbnails, ViewStyle::details, ViewStyle::smallIcons,
                                ViewStyle::list};
static_assert(kStyles[browser::kViewDetails] == ViewStyle::details &&
              kStyles[browser::kViewList] == ViewStyle::list);

std::string BuiltInHeading(int column)
{
    if (column == CMediaListModel::dateTakenColumn)
        return std::string(browser::kDateTakenHeading);
    std::string_view rest = browser::kColumnHeadings;
    for (; column > 0; --column)
        rest.remove_prefix(rest.find('|') + 1);
    return std::string(rest.substr(0, rest.find('|')));
}

}  // namespace

CListLayout::CListLayout(CIEShellListCtrl& list, const std::string& settingsFile)
    : ctrl(list), settings(settingsFile, kOwner)
{
    saveTimer.setSingleShot(true);
    saveTimer.setInterval(kSaveDelay);
    connect(&saveTimer, &QTimer::timeout, this, &CListLayout::Save);
}

void CListLayout::Load()
{
    Collect();
    settings.LoadSettings();
    CDetailsView& details = *ctrl.Details();
    TakeHeadings();
    std::vector<std::optional<int>> widths;
    for (int column = 0; column < browser::kSortKeys; ++column)
        widths.push_back(settings.UsableWidth(column));
    details.ArrangeColumns(settings.DisplayOrder(browser::kSortKeys), widths);
    details.SetRowSelection(settings.rowSelection != 0);
    details.SetColumnSizing(settings.columnSizing != 0);
    if (const auto order = settings.UsableSortOrder())
        ctrl.SetOrder(*order);
    ctrl.SetThumbnailSide(settings.UsableThumbSize());
    ctrl.SetFilter(settings.filter, settings.includeFolder);
    if (const auto view = settings.UsableViewType())
        ctrl.SetViewStyle(kStyles[static_cast<std::size_t>(*view)]);
    connect(&ctrl, &CIEShellListCtrl::LayoutChanged, &saveTimer, qOverload<>(&QTimer::start));
}

// Built-in headings are shown in the user's language, others as they stand in the file.
void CListLayout::TakeHeadings()
{
    ctrl.ShowDateTaken(!settings.Heading(CMediaListModel::dateTakenColumn).empty());
    QStringList shown;
    for (int column = 0; column < browser::kSortKeys; ++column) {
        std::string& heading = headings.emplace_back(settings.Heading(column));
        if (heading == BuiltInHeading(column))
            heading.clear();
        shown.append(Shown(heading));
    }
    ctrl.SetHeadings(shown);
}

std::string CListLayout::PresentHeadings() const
{
    std::string present;
    const int shown = ctrl.Details()->IsDateTakenShown() ? browser::kSortKeys : browser::kSortKeys - 1;
    for (int column = 0; column < shown; ++column) {
        const auto at = static_cast<std::size_t>(column);
        const bool own = at < headings.size() && !headings[at].empty();
        present += (column == 0 ? "" : "|") + (own ? headings[at] : BuiltInHeading(column));
    }
    return present;
}

void CListLayout::Save()
{
    saveTimer.stop();
    Collect();
    settings.SaveSettings();
}

void CListLayout::Collect()
{
    const CDetailsView& details = *ctrl.Details();
    settings.headings = PresentHeadings();
    settings.TakeSortOrder(ctrl.List().Order());
    settings.rowSelection = details.RowSelection() ? 1 : 0;
    settings.columnSizing = details.ColumnSizing() ? 1 : 0;
    settings.viewType = static_cast<int>(std::ranges::find(kStyles, ctrl.Style()) - kStyles.begin());
    settings.thumbSize = ctrl.Thumbnails()->ThumbnailSide();
    settings.columnOrder = details.ColumnPositions();
    settings.columnWidths = details.ColumnWidths();
    settings.includeFolder = ctrl.List().IncludeFolder() ? 1 : 0;
    settings.filter = ctrl.List().Filter();
}

}  // namespace ui
