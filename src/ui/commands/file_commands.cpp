// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/commands/file_commands.h"

#include "ui/main_frame.h"

namespace ui
{

CFileCommands::CFileCommands(CCommandRouter& router, CMainFrame& frame)
{
    router.On(app::CommandId::exit, [&frame] { frame.close(); });
}

}  // namespace ui
