// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/handset/handset_commands.h"

#include "app/handset_places.h"
#include "handset/record_file.h"
#include "ui/handset/fetch_dialog.h"
#include "ui/handset/send_dialog.h"
#include "ui/main_frame.h"
#include "ui/words.h"

namespace ui
{

CHandsetCommands::CHandsetCommands(CCommandRouter& router, CMainFrame& mainFrame)
    : frame(mainFrame), deletion(mainFrame)
{
    using enum app::CommandId;
    router.On(downloadToMobile, [this] { Send(); });
    router.On(uploadToPc, [this] { Fetch(platform::FileDataType::mainWallpaper); });
    router.On(uploadRings, [this] { Fetch(platform::FileDataType::ring); });
    router.On(uploadAnimations, [this] { Fetch(platform::FileDataType::animation); });
}

unsigned CHandsetCommands::Port() const
{
    const int port = app::HandsetPort(frame.Application().ProgramFolder());
    return port > 0 ? static_cast<unsigned>(port) : 0;
}

void CHandsetCommands::Send()
{
    std::vector<std::string> paths = frame.List()->SelectedPaths();
    if (paths.empty())
        return frame.Tell(Text(StringId::handsetNothingSelected));
    auto* dialog = new CSendDialog(std::move(paths), Port(), &frame);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(dialog, &CTransferDialog::Transferred, &frame, [this](int count) {
        if (count > 0)
            frame.Status()->showMessage(Counted(StringId::handsetSent, count), 10'000);
    });
    dialog->open();
}

void CHandsetCommands::Fetch(platform::FileDataType mode)
{
    const std::string folder = app::FetchDestination(frame.Folders(), frame.List()->List().Folder(), mode);
    if (folder.empty())
        return frame.Tell(Text(StringId::handsetNoFolder));
    app::MakeProgramRecordFile(frame.Application().ProgramFolder(), mode);
    auto* dialog = new CFetchDialog(mode, folder, Port(), &frame);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(dialog, &CTransferDialog::Transferred, &frame, [this](int count) {
        if (count > 0)
            frame.Status()->showMessage(Counted(StringId::handsetFetched, count), 10'000);
    });
    dialog->open();
}

}  // namespace ui
