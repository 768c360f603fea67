// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/commands/tool_commands.h"

#include "app/screen_saver.h"
#include "platform/file_system.h"
#include "ui/dialogs/options_dialog.h"
#include "ui/dialogs/select_source_dialog.h"
#include "ui/display_text.h"
#include "ui/main_frame.h"
#include "ui/words.h"

namespace ui
{

CToolCommands::CToolCommands(CCommandRouter& router, CMainFrame& mainFrame)
    : frame(mainFrame), capture(new CCaptureRun(mainFrame))
{
    using enum app::CommandId;
    RegisterSuite(router);
    router.On(videoTrim, [this] { TrimVideo(); });
    router.On(slideShow, [this] { ShowSlides(); });
    router.On(screenSaver, [this] { SetScreenSaver(); });
    router.On(screenCapture, [this] { StartCapture(); });
    router.On(selectSource, [this] { SelectSource(); });
    router.On(options, [this] { ShowOptions(); });
    QObject::connect(capture, &CCaptureRun::NothingToCapture, &frame,
                     [this] { frame.Tell(Text(StringId::captureNothing)); });
    QObject::connect(capture, &CCaptureRun::Ended, &frame, [this](const std::string& path) {
        if (path.empty())
            frame.Status()->showMessage(Text(StringId::captureNotSaved), 10'000);
        else
            frame.SendMessage(app::FrameMessage::refreshList);
    });
}

void CToolCommands::RegisterSuite(CCommandRouter& router)
{
    using enum app::CommandId;
    router.On(backToTaskPanel, [this] {
        if (!frame.Application().ShowLauncher())
            frame.Tell(Text(StringId::suiteNoLauncher));
    });
    router.On(mms, [this] { frame.Tell(Text(StringId::suiteLaunchMms)); });
    router.On(sms, [this] { frame.Tell(Text(StringId::suiteLaunchSms)); });
    // The library that keeps contacts and calendar is no part of this program, so it never starts.
    router.On(pim, [this] { frame.Tell(Text(StringId::suitePimError), Text(StringId::suitePimWhy)); });
}

void CToolCommands::TrimVideo()
{
    switch (app::StartVideoTrim(frame.Application().ProgramFolder(), frame.winId())) {
    case app::StartedProgram::notWritten:
        frame.Tell(Text(StringId::suiteTrimNotWritten, Shown(platform::Os().files->LastError())));
        break;
    case app::StartedProgram::missing:
        frame.Tell(Text(StringId::suiteNoTrimmer));
        break;
    default:
        break;
    }
}

void CToolCommands::ShowSlides()
{
    if (app::HasClips(frame.List()->SelectedPaths()))
        frame.Warn(Text(StringId::suiteWarning), Text(StringId::suiteNoClips));
    else if (!frame.Pages()->ShowSlides())
        frame.Tell(Text(StringId::suiteNoShow));
}

void CToolCommands::SetScreenSaver()
{
    const CIEShellListCtrl& list = *frame.List();
    const app::ScreenSaverAnswer answer = app::MakeScreenSaver(list.List().Folder(), list.SelectedPaths());
    const QString text = answer.detail.empty() ? Text(answer.text) : Text(answer.text, Shown(answer.detail));
    if (answer.isSet)
        frame.Status()->showMessage(text, 10'000);
    else
        frame.Tell(text);
}

void CToolCommands::StartCapture()
{
    const std::string folder = frame.LeftView()->Folder();
    if (folder.empty())
        frame.Tell(Text(StringId::captureNoFolder));
    else
        capture->Start(folder, captureWait);
}

void CToolCommands::SelectSource()
{
    auto* dialog = new CSelectSourceDialog(&frame);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(dialog, &CSelectSourceDialog::Failed, &frame, [this] {
        frame.Tell(Text(StringId::sourceCannotOpen), Text(StringId::sourceCannotOpenWhy));
    });
    dialog->open();
}

void CToolCommands::ShowOptions()
{
    auto* dialog = new COptionsDialog(frame.Application().ProgramFolder(), &frame);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

}  // namespace ui
