// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/commands/edit_commands.h"

#include "ui/main_frame.h"

namespace ui
{

CEditCommands::CEditCommands(CCommandRouter& router, CMainFrame& frame)
{
    using app::CommandId;
    using enum app::CommandId;
    router.On(undo, [&frame] { frame.Files()->Undo(); });
    router.On(copy, [&frame] { frame.Files()->Copy(); });
    router.On(cut, [&frame] { frame.Files()->Cut(); });
    router.On(paste, [&frame] { frame.Files()->Paste(); });
    router.On(CommandId::remove, [&frame] { frame.Files()->Delete(); });
    router.On(CommandId::rename, [&frame] { frame.Files()->Rename(); });
    router.On(newFolder, [&frame] { frame.Files()->NewFolder(); });
    router.On(selectAll, [&frame] { frame.List()->SelectAll(); });
    router.On(selectNone, [&frame] { frame.List()->SelectNone(); });
    router.On(invertSelection, [&frame] { frame.List()->InvertSelection(); });
    router.On(search, [&frame] { frame.LeftView()->ShowTab(app::kSearchTab); });
}

}  // namespace ui
