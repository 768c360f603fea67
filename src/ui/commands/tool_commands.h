// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CToolCommands: the commands of the menu "Tools" and of the task panel, most of them other programs of the
// suite.
#pragma once

#include "ui/commands/command_router.h"

namespace ui
{

class CMainFrame;

class CToolCommands
{
public:
    CToolCommands(CCommandRouter& router, CMainFrame& frame);
};

}  // namespace ui
