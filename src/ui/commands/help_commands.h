// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CHelpCommands: the help and what the program says about itself.
#pragma once

#include "ui/commands/command_router.h"

namespace ui
{

class CMainFrame;

class CHelpCommands
{
public:
    CHelpCommands(CCommandRouter& router, CMainFrame& frame);
};

}  // namespace ui
