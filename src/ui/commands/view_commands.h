// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CViewCommands: how the list shows its files, and which ones.
#pragma once

#include "ui/commands/command_router.h"

namespace ui
{

class CMainFrame;

class CViewCommands
{
public:
    CViewCommands(CCommandRouter& router, CMainFrame& frame);
};

}  // namespace ui
