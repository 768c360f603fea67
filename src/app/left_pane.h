// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CTabs, CLeftPane and the places: what the left pane shows, without its window.
#pragma once

#include "app/data_folders.h"
#include "platform/shell.h"
#include "platform/string_ids.h"

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace app
{

enum class TabMode { device = 0, folder = 1, search = 2 };

// The commands that the tabs send; the numbers by which CTabs knows its buttons.
inline constexpr int kDeviceTab = 1;
inline constexpr int kFolderTab = 2;
inline constexpr int kSearchTab = 3;

struct Tab {
    int id = 0;
    platform::StringId caption = platform::StringId::none;
    std::string_view image;  // file name in the skin's "Manager" folder
    bool checked = false;
    bool enabled = true;
    bool visible = true;
};

// The tab bar. Every call about a number that no tab has does nothing.
class CTabs
{
public:
    void Select(int id);
    void Enable(int id, bool on);
    void EnableAll(bool on);
    void Show(int id, bool on);

    TabMode Mode() const { return mode; }
    const std::array<Tab, 3>& All() const { return tabs; }

private:
    Tab* Find(int id);

    std::array<Tab, 3> tabs = {Tab{kDeviceTab, platform::StringId::tabDevice, "favorite.png", true},
                               Tab{kFolderTab, platform::StringId::tabFolder, "folder.png"},
                               Tab{kSearchTab, platform::StringId::tabSearch, "search.png"}};
    TabMode mode = TabMode::device;
};

enum class PanelMode { device = 2, folder = 3, search = 4 };

// Which panel is shown, and which one the search was opened from.
class CLeftPane
{
public:
    CTabs tabs;
    // The search panel's; without them, no search ever runs.
    std::function<bool()> isSearchBusy;
    std::function<void()> stopSearch;

    void ShowTree(PanelMode tree);
    // Shows the search panel. Its starting folder is the one selected in the tree that was shown:
    // `folderTree` when that is the folder tree, else `deviceTree`.
    std::string OpenSearch(const std::string& deviceTree, const std::string& folderTree);
    // Whether a tree may take the place of the search panel. While a search runs, `ask` decides; on true the
    // search is stopped.
    bool LeaveSearch(const std::function<bool()>& ask) const;
    PanelMode Mode() const { return mode; }
    PanelMode PreviousMode() const { return previousMode; }

private:
    PanelMode mode = PanelMode::device;
    PanelMode previousMode = PanelMode::device;
};

enum class PlaceKind {
    heading,
    favourites,
    photo,
    ring,
    frame,
    animation,
    folder,
    home,
    fileSystem,
    volume,
    removableVolume,
};

// A line of a tree. A place with `subfolders` set has those of its folder below it, read when it is opened.
struct Place {
    PlaceKind kind = PlaceKind::folder;
    std::string label;  // empty when `caption` names it
    std::string path;   // without a trailing separator; empty for a heading
    bool subfolders = false;
    std::vector<Place> children;
    platform::StringId caption = platform::StringId::none;
};

// The favourite folders, each with its albums, then the removable volumes below a heading of their own.
std::vector<Place> DevicePlaces(CDataFolders& dataFolders);
// Mounted volumes other than the file system's root, or the removable ones of them.
enum class VolumeChoice { all, removable };
std::vector<Place> VolumePlaces(const std::vector<platform::Volume>& volumes, VolumeChoice choice);
// The home folder, the file system and the other mounted volumes.
std::vector<Place> FolderPlaces();

}  // namespace app
