// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/list/list_commands.h"

#include "browser/list_settings.h"
#include "browser/media_types.h"
#include "ui/ie_shell_list_ctrl.h"
#include "ui/main_menu.h"

#include <algorithm>
#include <array>
#include <utility>

namespace ui
{

namespace
{

using app::CommandId;
using browser::SortKey;

constexpr std::array kSizes = {std::pair(CommandId::sizeLarge, browser::kThumbLarge),
                               std::pair(CommandId::sizeMedium, browser::kThumbMedium),
                               std::pair(CommandId::sizeSmall, browser::kThumbSmall)};
constexpr std::array kStyles = {std::pair(CommandId::thumbnails, ViewStyle::thumbnails),
                                std::pair(CommandId::smallIcons, ViewStyle::smallIcons),
                                std::pair(CommandId::list, ViewStyle::list),
                                std::pair(CommandId::details, ViewStyle::details)};
constexpr std::array kFilters = {std::pair(CommandId::filterPhoto, browser::kFilterPhoto),
                                 std::pair(CommandId::filterVideo, browser::kFilterVideo),
                                 std::pair(CommandId::filterMedia, browser::kFilterMedia),
                                 std::pair(CommandId::filterAllFiles, browser::kFilterAllFiles)};
constexpr std::array kKeys = {
    std::pair(CommandId::sortByName, SortKey::name), std::pair(CommandId::sortBySize, SortKey::size),
    std::pair(CommandId::sortByType, SortKey::type), std::pair(CommandId::sortByModified, SortKey::modified),
    std::pair(CommandId::sortByDateTaken, SortKey::dateTaken)};

// What stands beside the command, or null.
template <typename Pairs> const auto* Find(const Pairs& pairs, CommandId id)
{
    const auto found = std::ranges::find(pairs, id, [](const auto& pair) { return pair.first; });
    return found == pairs.end() ? nullptr : &found->second;
}

template <typename Pairs, typename Value>
void Mark(const CMainMenu& menu, const Pairs& pairs, const Value& present)
{
    for (const auto& [id, value] : pairs)
        menu.Action(id)->setChecked(value == present);
}

}  // namespace

std::span<const CommandId> ListCommands()
{
    using enum CommandId;
    static constexpr std::array kCommands = {
        thumbnails,     smallIcons,      CommandId::list, details,        sizeLarge,
        sizeMedium,     sizeSmall,       filterPhoto,     filterVideo,    filterMedia,
        filterAllFiles, includeFolder,   sortByName,      sortBySize,     sortByType,
        sortByModified, sortByDateTaken, sortAscending,   sortDescending, dateTakenColumn};
    return kCommands;
}

void RunListCommand(CommandId id, CIEShellListCtrl& list)
{
    const browser::SortOrder order = list.List().Order();
    if (const int* side = Find(kSizes, id)) {
        list.SetThumbnailSide(*side);
    } else if (const int* filter = Find(kFilters, id)) {
        list.SetFilter(*filter, browser::CMediaFileList::kKeep);
    } else if (const SortKey* key = Find(kKeys, id)) {
        list.SetOrder({*key, order.descending});
    } else if (id == CommandId::sortAscending || id == CommandId::sortDescending) {
        list.SetOrder({order.key, id == CommandId::sortDescending});
    } else if (const ViewStyle* style = Find(kStyles, id)) {
        list.SetViewStyle(*style);
    } else if (id == CommandId::includeFolder) {
        list.SetFilter(browser::CMediaFileList::kKeep, list.List().IncludeFolder() ? 0 : 1);
    } else if (id == CommandId::dateTakenColumn) {
        list.ShowDateTaken(!list.Details()->IsDateTakenShown());
    }
}

void MarkListCommands(const CMainMenu& menu, const CIEShellListCtrl& list)
{
    const browser::SortOrder order = list.List().Order();
    Mark(menu, kSizes, list.Thumbnails()->ThumbnailSide());
    Mark(menu, kFilters, list.List().Filter());
    Mark(menu, kKeys, order.key);
    menu.Action(CommandId::sortAscending)->setChecked(!order.descending);
    menu.Action(CommandId::sortDescending)->setChecked(order.descending);
    Mark(menu, kStyles, list.Style());
    menu.Action(CommandId::includeFolder)->setChecked(list.List().IncludeFolder());
    menu.Action(CommandId::dateTakenColumn)->setChecked(list.Details()->IsDateTakenShown());
}

}  // namespace ui
