// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/commands/tool_commands.h"

#include "ui/main_frame.h"

namespace ui
{

CToolCommands::CToolCommands(CCommandRouter& router, CMainFrame& frame)
{
    router.On(app::CommandId::mms, [&frame] { frame.Tell(QStringLiteral("Launch MMS")); });
    router.On(app::CommandId::sms, [&frame] { frame.Tell(QStringLiteral("Launch SMS")); });
}

}  // namespace ui
