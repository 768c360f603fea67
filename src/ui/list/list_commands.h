// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The menu's commands on how the list is laid out: view, thumbnail size, filter and order.
#pragma once

#include "app/commands.h"

#include <span>

namespace ui
{

class CIEShellListCtrl;
class CMainMenu;

std::span<const app::CommandId> ListCommands();
// `id`: one of them.
void RunListCommand(app::CommandId id, CIEShellListCtrl& list);
// Ticks what holds for the list now.
void MarkListCommands(const CMainMenu& menu, const CIEShellListCtrl& list);

}  // namespace ui
