// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/commands.h"
#include "app/string_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

TEST(Commands, EveryCommandStandsOnceInAMenuOfTheTable)
{
    std::map<app::CommandId, int> seen;
    for (const app::Command& command : app::Commands()) {
        ++seen[command.id];
        EXPECT_EQ(std::ranges::count(app::Menus(), command.menu, &app::Menu::id), 1)
            << app::CStringTable::Name(command.text);
        EXPECT_EQ(&app::FindCommand(command.id), &command) << app::CStringTable::Name(command.text);
    }

    EXPECT_EQ(seen.size(), static_cast<std::size_t>(app::CommandId::about) + 1);
    for (const auto& [id, times] : seen)
        EXPECT_EQ(times, 1) << app::CStringTable::Name(app::FindCommand(id).text);
}

TEST(Commands, NoTwoCommandsShareAShortcut)
{
    std::set<std::string_view> shortcuts;
    for (const app::Command& command : app::Commands()) {
        if (!command.shortcut.empty()) {
            EXPECT_TRUE(shortcuts.insert(command.shortcut).second) << app::CStringTable::Name(command.text);
        }
    }
}
