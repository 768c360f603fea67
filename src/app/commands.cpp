// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/commands.h"

#include <algorithm>
#include <array>

namespace app
{

namespace
{

using enum platform::StringId;

constexpr std::array kMenus = {
    Menu{MenuId::file, menuFile, MenuId::file},
    Menu{MenuId::edit, menuEdit, MenuId::edit},
    Menu{MenuId::view, menuView, MenuId::view},
    Menu{MenuId::thumbnailSize, menuThumbnailSize, MenuId::view},
    Menu{MenuId::filter, menuFilter, MenuId::view},
    Menu{MenuId::sort, menuSort, MenuId::view},
    Menu{MenuId::tools, menuTools, MenuId::tools},
    Menu{MenuId::mobile, menuMobile, MenuId::tools},
    Menu{MenuId::help, menuHelp, MenuId::help},
};

using enum CommandId;
constexpr std::array kCommands = {
    Command{acquire, MenuId::file, commandAcquire, "", Mark::none, false, missingScanner},
    Command{selectSource, MenuId::file, commandSelectSource, ""},
    Command{cameraDownload, MenuId::file, commandCameraDownload, ""},
    Command{print, MenuId::file, commandPrint, "Ctrl+P", Mark::none, true},
    Command{eMail, MenuId::file, commandEMail, "Ctrl+E", Mark::none, false, missingMail},
    Command{properties, MenuId::file, commandProperties, "Alt+Enter", Mark::none, true},
    Command{backToTaskPanel, MenuId::file, commandBackToTaskPanel, "", Mark::none, true},
    Command{CommandId::exit, MenuId::file, commandExit, "Ctrl+Q"},

    Command{undo, MenuId::edit, filesUndo, "Ctrl+Z"},
    Command{copy, MenuId::edit, commandCopy, "Ctrl+C", Mark::none, true},
    Command{cut, MenuId::edit, commandCut, "Ctrl+X"},
    Command{paste, MenuId::edit, commandPaste, "Ctrl+V"},
    Command{CommandId::remove, MenuId::edit, commandDelete, "DEL"},
    Command{CommandId::rename, MenuId::edit, commandRename, "F2"},
    Command{newFolder, MenuId::edit, commandNewFolder, "Ctrl+Shift+N"},
    Command{selectAll, MenuId::edit, commandSelectAll, "Ctrl+A", Mark::none, true},
    Command{selectNone, MenuId::edit, commandSelectNone, "Ctrl+N"},
    Command{invertSelection, MenuId::edit, commandInvertSelection, "Ctrl+I"},
    Command{search, MenuId::edit, commandSearch, "F3", Mark::none, true},

    Command{thumbnails, MenuId::view, commandThumbnails, "", Mark::view},
    Command{smallIcons, MenuId::view, commandSmallIcons, "", Mark::view},
    Command{CommandId::list, MenuId::view, commandList, "", Mark::view},
    Command{details, MenuId::view, commandDetails, "", Mark::view},
    Command{sizeLarge, MenuId::thumbnailSize, commandLarge, "", Mark::choice},
    Command{sizeMedium, MenuId::thumbnailSize, commandMedium, "", Mark::choice},
    Command{sizeSmall, MenuId::thumbnailSize, commandSmall, "", Mark::choice},
    Command{filterPhoto, MenuId::filter, commandPhoto, "", Mark::choice},
    Command{filterVideo, MenuId::filter, commandVideo, "", Mark::choice},
    Command{filterMedia, MenuId::filter, commandMedia, "", Mark::choice},
    Command{filterAllFiles, MenuId::filter, commandAllFiles, "", Mark::choice},
    Command{includeFolder, MenuId::filter, commandIncludeFolder, "", Mark::toggle, true},
    Command{sortByName, MenuId::sort, commandByName, "", Mark::choice},
    Command{sortBySize, MenuId::sort, commandBySize, "", Mark::choice},
    Command{sortByType, MenuId::sort, commandByType, "", Mark::choice},
    Command{sortByModified, MenuId::sort, commandByModified, "", Mark::choice},
    Command{sortByDateTaken, MenuId::sort, commandByDateTaken, "", Mark::choice},
    Command{sortAscending, MenuId::sort, commandAscending, "", Mark::way, true},
    Command{sortDescending, MenuId::sort, commandDescending, "", Mark::way},
    Command{dateTakenColumn, MenuId::view, commandDateTakenColumn, "", Mark::toggle},
    Command{toolBar, MenuId::view, commandToolBar, "", Mark::toggle, true},
    Command{taskPanel, MenuId::view, commandTaskPanel, "", Mark::toggle, false},
    Command{photoInfo, MenuId::view, commandPhotoInfo, "F9", Mark::toggle},
    Command{refresh, MenuId::view, commandRefresh, "F5", Mark::none, true},

    Command{imageSize, MenuId::tools, commandImageSize, "", Mark::none, false, missingEditors},
    Command{photoTrim, MenuId::tools, commandPhotoTrim, "", Mark::none, false, missingEditors},
    Command{whiteboardCleanUp, MenuId::tools, commandWhiteboardCleanUp, "", Mark::none, false,
            missingEditors},
    Command{videoTrim, MenuId::tools, commandVideoTrim, ""},
    Command{slideShow, MenuId::tools, commandSlideShow, "", Mark::none, true},
    Command{screenSaver, MenuId::tools, commandScreenSaver, ""},
    Command{screenCapture, MenuId::tools, commandScreenCapture, ""},
    Command{changeTimeStamp, MenuId::tools, commandChangeTimeStamp, "", Mark::none, true},
    Command{convertTone, MenuId::tools, commandConvertTone, ""},
    Command{downloadToMobile, MenuId::mobile, commandDownloadToMobile, ""},
    Command{uploadToPc, MenuId::mobile, commandUploadToPc, ""},
    Command{uploadRings, MenuId::mobile, commandUploadRings, ""},
    Command{uploadAnimations, MenuId::mobile, commandUploadAnimations, ""},
    Command{messageCenter, MenuId::mobile, commandMessageCenter, "", Mark::none, false, missingHandset},
    Command{pim, MenuId::mobile, commandPim, "", Mark::none, true},
    Command{mms, MenuId::mobile, commandMms, ""},
    Command{sms, MenuId::mobile, commandSms, ""},
    Command{options, MenuId::tools, commandOptions, "", Mark::none, true},

    Command{CommandId::help, MenuId::help, commandHelp, "F1"},
    Command{about, MenuId::help, commandAbout, "", Mark::none, true},
};

}  // namespace

std::span<const Menu> Menus()
{
    return kMenus;
}

std::span<const Command> Commands()
{
    return kCommands;
}

const Command& FindCommand(CommandId id)
{
    return *std::ranges::find(kCommands, id, &Command::id);
}

}  // namespace app
