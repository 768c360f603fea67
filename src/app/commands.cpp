// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/commands.h"

#include <algorithm>
#include <array>

namespace app
{

namespace
{

constexpr std::string_view kNoPrinting = "Printing is not part of this version yet";
constexpr std::string_view kNoMail = "Sending mail is not part of this version yet";
constexpr std::string_view kNoFileWork = "Moving and deleting files is not part of this version yet";
constexpr std::string_view kNoProperties = "Photo information is not part of this version yet";
constexpr std::string_view kNoSorting = "Only sorting by name is part of this version yet";
constexpr std::string_view kNoEditors = "The image editors are not part of this version yet";
constexpr std::string_view kNoSlideShow = "The slide show is not part of this version yet";
constexpr std::string_view kNoScreenSaver = "The screen saver is not part of this version yet";
constexpr std::string_view kNoTimeStamps = "Changing time stamps is not part of this version yet";
constexpr std::string_view kNoVideoTrim = "Trimming videos is not part of this version yet";
constexpr std::string_view kNoHandset = "Exchange with the handset is not part of this version yet";
constexpr std::string_view kNoCamera = "Taking photos over from a camera is not part of this version yet";
constexpr std::string_view kNoScanner = "Taking pictures from a scanner is not part of this version yet";
constexpr std::string_view kNoCapture = "Capturing the screen is not part of this version yet";
constexpr std::string_view kNoPim = "Contacts and calendar are not part of this version yet";
constexpr std::string_view kNoLauncher = "The task panel is not part of this version yet";
constexpr std::string_view kNoStyle = "This view is not part of this version yet";
constexpr std::string_view kNoBars = "There is no such bar in this version yet";
constexpr std::string_view kNoOptions = "Options are not part of this version yet";

constexpr std::array kMenus = {
    Menu{MenuId::file, "File", MenuId::file},     Menu{MenuId::edit, "Edit", MenuId::edit},
    Menu{MenuId::view, "View", MenuId::view},     Menu{MenuId::thumbnailSize, "Thumbnail Size", MenuId::view},
    Menu{MenuId::filter, "Filter", MenuId::view}, Menu{MenuId::sort, "Sort", MenuId::view},
    Menu{MenuId::tools, "Tools", MenuId::tools},  Menu{MenuId::mobile, "Mobile", MenuId::tools},
    Menu{MenuId::help, "Help", MenuId::help},
};

using enum CommandId;
constexpr std::array kCommands = {
    Command{acquire, MenuId::file, "Acquire...", "", Mark::none, false, kNoScanner},
    Command{selectSource, MenuId::file, "Select Source...", "", Mark::none, false, kNoScanner},
    Command{cameraDownload, MenuId::file, "Camera Download...", "", Mark::none, false, kNoCamera},
    Command{print, MenuId::file, "Print...", "Ctrl+P", Mark::none, true, kNoPrinting},
    Command{eMail, MenuId::file, "E-mail...", "Ctrl+E", Mark::none, false, kNoMail},
    Command{properties, MenuId::file, "Properties...", "Alt+Enter", Mark::none, true, kNoProperties},
    Command{backToTaskPanel, MenuId::file, "Back to Task Panel", "", Mark::none, true, kNoLauncher},
    Command{CommandId::exit, MenuId::file, "Exit", "Ctrl+Q"},

    Command{copy, MenuId::edit, "Copy", "Ctrl+C"},
    Command{cut, MenuId::edit, "Cut", "Ctrl+X", Mark::none, false, kNoFileWork},
    Command{paste, MenuId::edit, "Paste", "Ctrl+V", Mark::none, false, kNoFileWork},
    Command{CommandId::remove, MenuId::edit, "Delete", "DEL", Mark::none, false, kNoFileWork},
    Command{selectAll, MenuId::edit, "Select All", "Ctrl+A", Mark::none, true},
    Command{selectNone, MenuId::edit, "Select None", "Ctrl+N"},
    Command{invertSelection, MenuId::edit, "Invert Selection", "Ctrl+I"},
    Command{search, MenuId::edit, "Search...", "F3", Mark::none, true},

    Command{thumbnails, MenuId::view, "Thumbnails", "", Mark::view},
    Command{smallIcons, MenuId::view, "Small Icons", "", Mark::view, false, kNoStyle},
    Command{CommandId::list, MenuId::view, "List", "", Mark::view, false, kNoStyle},
    Command{details, MenuId::view, "Details", "", Mark::view},
    Command{sizeLarge, MenuId::thumbnailSize, "Large", "", Mark::choice},
    Command{sizeMedium, MenuId::thumbnailSize, "Medium", "", Mark::choice},
    Command{sizeSmall, MenuId::thumbnailSize, "Small", "", Mark::choice},
    Command{filterPhoto, MenuId::filter, "Photo", "", Mark::choice},
    Command{filterVideo, MenuId::filter, "Video", "", Mark::choice},
    Command{filterMedia, MenuId::filter, "Media", "", Mark::choice},
    Command{filterAllFiles, MenuId::filter, "All Files", "", Mark::choice},
    Command{includeFolder, MenuId::filter, "Include Folder", "", Mark::toggle, true},
    Command{sortByName, MenuId::sort, "By Name", "", Mark::choice},
    Command{sortBySize, MenuId::sort, "By Size", "", Mark::choice, false, kNoSorting},
    Command{sortByType, MenuId::sort, "By Type", "", Mark::choice, false, kNoSorting},
    Command{sortByModified, MenuId::sort, "By Modified", "", Mark::choice, false, kNoSorting},
    Command{toolBar, MenuId::view, "Tool Bar", "", Mark::toggle, true, kNoBars},
    Command{taskPanel, MenuId::view, "Task Panel", "", Mark::toggle, false, kNoBars},
    Command{refresh, MenuId::view, "Refresh", "F5", Mark::none, true},

    Command{imageSize, MenuId::tools, "Image Size", "", Mark::none, false, kNoEditors},
    Command{photoTrim, MenuId::tools, "Photo Trim", "", Mark::none, false, kNoEditors},
    Command{whiteboardCleanUp, MenuId::tools, "Whiteboard Clean-up", "", Mark::none, false, kNoEditors},
    Command{videoTrim, MenuId::tools, "Video Trim", "", Mark::none, false, kNoVideoTrim},
    Command{slideShow, MenuId::tools, "Slide Show", "", Mark::none, true, kNoSlideShow},
    Command{screenSaver, MenuId::tools, "Screen Saver", "", Mark::none, false, kNoScreenSaver},
    Command{screenCapture, MenuId::tools, "Screen Capture", "", Mark::none, false, kNoCapture},
    Command{changeTimeStamp, MenuId::tools, "Change Time Stamp", "", Mark::none, true, kNoTimeStamps},
    Command{uploadToPc, MenuId::mobile, "Upload to PC", "", Mark::none, false, kNoHandset},
    Command{downloadToMobile, MenuId::mobile, "Download to Mobile", "", Mark::none, false, kNoHandset},
    Command{messageCenter, MenuId::mobile, "Message Center", "", Mark::none, false, kNoHandset},
    Command{pim, MenuId::mobile, "PIM", "", Mark::none, true, kNoPim},
    Command{mms, MenuId::mobile, "MMS", ""},
    Command{sms, MenuId::mobile, "SMS", ""},
    Command{options, MenuId::tools, "Options...", "", Mark::none, true, kNoOptions},

    Command{CommandId::help, MenuId::help, "Help", "F1"},
    Command{about, MenuId::help, "About", "", Mark::none, true},
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
