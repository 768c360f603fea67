// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/commands/edit_commands.h"

#include "ui/main_frame.h"

namespace ui
{

CEditCommands::CEditCommands(CCommandRouter& router, CMainFrame& frame)
{
    using enum app::CommandId;
    router.On(copy, [&frame] { frame.List()->CopySelection(); });
    router.On(selectAll, [&frame] { frame.List()->SelectAll(); });
    router.On(selectNone, [&frame] { frame.List()->SelectNone(); });
    router.On(invertSelection, [&frame] { frame.List()->InvertSelection(); });
    router.On(search, [&frame] { frame.LeftView()->ShowTab(app::kSearchTab); });
}

}  // namespace ui
