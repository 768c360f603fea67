// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CEditCommands: the clipboard's commands, the selection's, and the way to the search.
#pragma once

#include "ui/commands/command_router.h"

namespace ui
{

class CMainFrame;

class CEditCommands
{
public:
    CEditCommands(CCommandRouter& router, CMainFrame& frame);
};

}  // namespace ui
