// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/commands/file_commands.h"

#include "app/suite_programs.h"
#include "platform/file_system.h"
#include "platform/services.h"
#include "ui/camera/camera_dialog.h"
#include "ui/dialogs/properties_dialog.h"
#include "ui/display_text.h"
#include "ui/main_frame.h"
#include "ui/photo/photo_info_dialog.h"
#include "ui/words.h"

#include <algorithm>

namespace ui
{

namespace
{

void Print(CMainFrame& frame)
{
    switch (app::StartPrinting(frame.Application().ProgramFolder(), frame.List()->SelectedPaths())) {
    case app::StartedProgram::started:
        // Until the suite says that the program has ended.
        frame.setEnabled(false);
        break;
    case app::StartedProgram::noPictures:
        frame.Tell(Text(StringId::suiteNoPictures));
        break;
    case app::StartedProgram::missing:
        frame.Tell(Text(StringId::suiteNoPrinter));
        break;
    case app::StartedProgram::notWritten:
        frame.Tell(Text(StringId::suiteListNotWritten, Shown(platform::Os().files->LastError())));
        break;
    }
}

void ShowProperties(CMainFrame& frame)
{
    std::vector<std::string> paths = frame.List()->SelectedPaths();
    const bool inLeftPane = frame.LeftView()->isAncestorOf(frame.focusWidget());
    if ((paths.empty() || inLeftPane) && !frame.LeftView()->Folder().empty())
        paths = {frame.LeftView()->Folder()};
    if (paths.empty())
        return frame.Tell(Text(StringId::propertiesNothing));
    PhotoQuestion question = AskAboutSelection(*frame.List());
    QDialog* dialog = nullptr;
    if (question.paths == paths && question.isMedia)
        dialog = new CPhotoInfoDialog(std::move(question), *frame.Files(), &frame);
    else
        dialog = new CPropertiesDialog(std::move(paths), &frame);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void TellLeftOut(CMainFrame& frame, const std::vector<std::string>& paths)
{
    constexpr std::size_t kMostNames = 10;
    QStringList names;
    for (std::size_t i = 0; i < std::min(paths.size(), kMostNames); ++i)
        names.append(Shown(paths[i]));
    if (paths.size() > kMostNames)
        names.append(QStringLiteral("\u2026"));
    frame.Tell(Counted(StringId::cameraLeftOut, static_cast<qint64>(paths.size())),
               names.join(QLatin1Char('\n')));
}

void CopyFromCamera(CMainFrame& frame)
{
    const app::CSettings& settings = *app::CurrentSettings();
    if (!platform::Os().cameraStore)
        return frame.Tell(Text(StringId::cameraNotAvailable));
    auto* dialog = new CCameraDialog({frame.Application().ProgramFolder(),
                                      frame.Application().MobileDownloadFolder(),
                                      settings.delDscPhoto,
                                      {settings.useId, settings.imgItemId, settings.aviItemId}},
                                     &frame);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(dialog, &CCameraDialog::Counted, &frame, [](const handset::CameraNumbers& numbers) {
        if (app::CSettings* kept = app::CurrentSettings()) {
            kept->imgItemId = numbers.photo;
            kept->aviItemId = numbers.clip;
        }
    });
    QObject::connect(dialog, &CCameraDialog::Ended, &frame,
                     [&frame](int copied, bool kept, const std::vector<std::string>& leftOut) {
                         if (copied > 0)
                             frame.Status()->showMessage(Counted(StringId::cameraCopied, copied), 10'000);
                         if (kept)
                             frame.Tell(Text(StringId::cameraKept));
                         if (!leftOut.empty())
                             TellLeftOut(frame, leftOut);
                     });
    dialog->open();
}

}  // namespace

CFileCommands::CFileCommands(CCommandRouter& router, CMainFrame& frame)
{
    using enum app::CommandId;
    router.On(print, [&frame] { Print(frame); });
    router.On(cameraDownload, [&frame] { CopyFromCamera(frame); });
    router.On(properties, [&frame] { ShowProperties(frame); });
    router.On(app::CommandId::exit, [&frame] { frame.close(); });
}

}  // namespace ui
