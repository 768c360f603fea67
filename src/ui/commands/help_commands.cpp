// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/commands/help_commands.h"

#include "browser/file_names.h"
#include "platform/file_system.h"
#include "platform/services.h"
#include "platform/shell.h"
#include "ui/controls/message_box.h"
#include "ui/display_text.h"
#include "ui/icons.h"
#include "ui/main_frame.h"
#include "ui/theme.h"
#include "ui/words.h"

namespace ui
{

namespace
{

void ShowHelp(const app::CKelvoApp& application)
{
    const std::string page = browser::JoinPath(application.ProgramFolder(), "Help/index.htm");
    if (platform::Os().files->FindFirstFile(page))
        platform::Os().shell->ShellExecute(page);
}

void ShowAbout(CMainFrame& frame)
{
    const app::CKelvoApp& application = frame.Application();
    auto* box = new CMessageBox(
        CMessageBox::NoIcon, Text(StringId::aboutTitle),
        QStringLiteral("%1 %2").arg(frame.windowTitle(), Shown(application.VersionText().substr(0, 4))),
        &frame);
    box->setInformativeText(Text(StringId::aboutWhat));
    box->setIconPixmap(
        IconPixmap(QStringLiteral("kelvo"), 64, CTheme::Colours().text, frame.devicePixelRatioF()));
    box->Add(CMessageBox::Ok);
    box->Open();
}

}  // namespace

CHelpCommands::CHelpCommands(CCommandRouter& router, CMainFrame& frame)
{
    router.On(app::CommandId::help, [&frame] { ShowHelp(frame.Application()); });
    router.On(app::CommandId::about, [&frame] { ShowAbout(frame); });
}

}  // namespace ui
