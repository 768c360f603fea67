// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The context menus of the two panes, as lists of commands, and the form in which a place on the screen
// travels with the message that opens one.
#pragma once

#include "app/commands.h"

#include <cstdint>
#include <span>
#include <vector>

namespace app
{

// The private messages that the panes send to the frame.
enum class FrameMessage {
    leftPaneMenu,  // lParam: where, as PackPoint has it
    listMenu,      // the same
    refreshList,
};

enum class MenuPane { leftPane, list };

// The commands of a pane's menu in order, in groups between which a line stands.
std::span<const std::vector<CommandId>> ContextMenu(MenuPane pane);

struct ScreenPoint {
    int x = 0;
    int y = 0;
    bool operator==(const ScreenPoint&) const = default;
};

// x in the low word, y in the high word, each a signed 16-bit number.
std::int64_t PackPoint(ScreenPoint point);
ScreenPoint UnpackPoint(std::int64_t lParam);

}  // namespace app
