// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CFileCommands: what is done with the selected files as a whole, and the way out.
#pragma once

#include "ui/commands/command_router.h"

namespace ui
{

class CMainFrame;

class CFileCommands
{
public:
    CFileCommands(CCommandRouter& router, CMainFrame& frame);
};

}  // namespace ui
