// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The commands of the main frame: what each menu holds, in order.
#pragma once

#include "platform/string_ids.h"

#include <span>
#include <string_view>

namespace app
{

enum class CommandId {
    acquire,
    selectSource,
    cameraDownload,
    print,
    eMail,
    properties,
    backToTaskPanel,
    exit,
    undo,
    copy,
    cut,
    paste,
    remove,
    rename,
    newFolder,
    selectAll,
    selectNone,
    invertSelection,
    search,
    thumbnails,
    smallIcons,
    list,
    details,
    sizeLarge,
    sizeMedium,
    sizeSmall,
    filterPhoto,
    filterVideo,
    filterMedia,
    filterAllFiles,
    includeFolder,
    sortByName,
    sortBySize,
    sortByType,
    sortByModified,
    sortByDateTaken,
    sortAscending,
    sortDescending,
    dateTakenColumn,
    toolBar,
    taskPanel,
    photoInfo,
    refresh,
    imageSize,
    photoTrim,
    whiteboardCleanUp,
    videoTrim,
    slideShow,
    screenSaver,
    screenCapture,
    changeTimeStamp,
    convertTone,
    uploadToPc,
    uploadRings,
    uploadAnimations,
    downloadToMobile,
    messageCenter,
    pim,
    mms,
    sms,
    options,
    help,
    about,
};

enum class MenuId { file, edit, view, thumbnailSize, filter, sort, tools, mobile, help };

struct Menu {
    MenuId id;
    platform::StringId text;
    MenuId parent;  // itself for a menu of the menu bar
};

// What is ticked when a command holds.
enum class Mark {
    none,
    toggle,  // on or off by itself
    choice,  // one of the commands of its menu
    way,     // one of the two ways of sorting
    view,    // one of the list's views
};

struct Command {
    CommandId id;
    MenuId menu;
    platform::StringId text;
    std::string_view shortcut;  // "Ctrl+P"; empty for none
    Mark mark = Mark::none;
    bool startsGroup = false;                               // a line stands before it
    platform::StringId missing = platform::StringId::none;  // why it cannot be used; none when it works
};

// A sub-menu stands where the first of its commands does.
std::span<const Menu> Menus();
std::span<const Command> Commands();
const Command& FindCommand(CommandId id);

}  // namespace app
