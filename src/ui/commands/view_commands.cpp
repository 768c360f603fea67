// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/commands/view_commands.h"

#include "ui/list/list_commands.h"
#include "ui/main_frame.h"

namespace ui
{

CViewCommands::CViewCommands(CCommandRouter& router, CMainFrame& frame)
{
    using enum app::CommandId;
    for (const app::CommandId id : ListCommands())
        router.On(id, [&frame, id] { RunListCommand(id, *frame.List()); });
    for (const app::CommandId bar : {toolBar, taskPanel})
        router.On(bar, [&frame, bar] { frame.Bars().Show(bar, frame.Menu()->Action(bar)->isChecked()); });
    router.On(photoInfo, [&frame] { frame.PhotoInfo()->Turn(!frame.PhotoInfo()->IsOn()); });
    router.On(refresh, [&frame] {
        frame.LeftView()->Tree()->Refresh();
        frame.List()->Refresh();
    });
}

}  // namespace ui
