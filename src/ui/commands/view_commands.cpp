// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/commands/view_commands.h"

#include "ui/main_frame.h"

namespace ui
{

CViewCommands::CViewCommands(CCommandRouter& router, CMainFrame& frame)
{
    using enum app::CommandId;
    constexpr int kKeep = browser::CMediaFileList::kKeep;
    router.On(thumbnails, [&frame] { frame.ListView()->SetViewStyle(ViewStyle::thumbnails); });
    router.On(details, [&frame] { frame.ListView()->SetViewStyle(ViewStyle::details); });
    router.On(sizeLarge, [&frame] { frame.ListView()->SetThumbnailStep(2); });
    router.On(sizeMedium, [&frame] { frame.ListView()->SetThumbnailStep(1); });
    router.On(sizeSmall, [&frame] { frame.ListView()->SetThumbnailStep(0); });
    router.On(filterPhoto, [&frame] { frame.List()->SetFilter(browser::kFilterPhoto, kKeep); });
    router.On(filterVideo, [&frame] { frame.List()->SetFilter(browser::kFilterVideo, kKeep); });
    router.On(filterMedia, [&frame] { frame.List()->SetFilter(browser::kFilterMedia, kKeep); });
    router.On(filterAllFiles, [&frame] { frame.List()->SetFilter(browser::kFilterAllFiles, kKeep); });
    router.On(includeFolder, [&frame] {
        frame.List()->SetFilter(kKeep, frame.Menu()->Action(includeFolder)->isChecked() ? 1 : 0);
    });
    router.On(sortByName, [] {});
    router.On(refresh, [&frame] {
        frame.LeftView()->Tree()->Refresh();
        frame.List()->Refresh();
    });
}

}  // namespace ui
