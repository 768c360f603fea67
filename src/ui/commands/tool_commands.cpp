// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/commands/tool_commands.h"

#include "ui/main_frame.h"
#include "ui/words.h"

namespace ui
{

CToolCommands::CToolCommands(CCommandRouter& router, CMainFrame& frame)
{
    router.On(app::CommandId::mms, [&frame] { frame.Tell(Text(StringId::suiteLaunchMms)); });
    router.On(app::CommandId::sms, [&frame] { frame.Tell(Text(StringId::suiteLaunchSms)); });
}

}  // namespace ui
