// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/context_menus.h"

#include <array>

namespace app
{

std::span<const std::vector<CommandId>> ContextMenu(MenuPane pane)
{
    using enum CommandId;
    static const std::array<std::vector<CommandId>, 4> ofLeftPane{
        {{newFolder},
         {copy, cut, paste, CommandId::remove, CommandId::rename},
         {search, refresh},
         {properties}}};
    static const std::array<std::vector<CommandId>, 6> ofList{
        {{copy, cut, paste, CommandId::remove, CommandId::rename},
         {newFolder},
         {slideShow, print, eMail},
         {selectAll, invertSelection},
         {refresh},
         {properties}}};
    return pane == MenuPane::leftPane ? std::span<const std::vector<CommandId>>(ofLeftPane) : ofList;
}

std::int64_t PackPoint(ScreenPoint point)
{
    const auto word = [](int value) { return static_cast<std::uint32_t>(value) & 0xffffU; };
    return static_cast<std::int64_t>(word(point.x) | word(point.y) << 16);
}

ScreenPoint UnpackPoint(std::int64_t lParam)
{
    const auto number = [lParam](int shift) { return static_cast<std::int16_t>(lParam >> shift); };
    return {number(0), number(16)};
}

}  // namespace app
