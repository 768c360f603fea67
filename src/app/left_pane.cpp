// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/left_pane.h"

#include "browser/file_names.h"
#include "platform/file_system.h"
#include "platform/services.h"
#include "platform/shell.h"

#include <algorithm>
#include <iterator>

namespace app
{

using platform::StringId;

Tab* CTabs::Find(int id)
{
    for (Tab& tab : tabs) {
        if (tab.id == id)
            return &tab;
    }
    return nullptr;
}

void CTabs::Select(int id)
{
    if (!Find(id))
        return;
    for (Tab& tab : tabs)
        tab.checked = tab.id == id;
    mode = id == kDeviceTab ? TabMode::device : id == kFolderTab ? TabMode::folder : TabMode::search;
}

void CTabs::Enable(int id, bool on)
{
    if (Tab* tab = Find(id))
        tab->enabled = on;
}

void CTabs::EnableAll(bool on)
{
    for (Tab& tab : tabs)
        tab.enabled = on;
}

void CTabs::Show(int id, bool on)
{
    if (Tab* tab = Find(id))
        tab->visible = on;
}

void CLeftPane::ShowTree(PanelMode tree)
{
    mode = tree;
    tabs.Select(tree == PanelMode::folder ? kFolderTab : kDeviceTab);
}

bool CLeftPane::LeaveSearch(const std::function<bool()>& ask) const
{
    if (mode != PanelMode::search || !isSearchBusy || !isSearchBusy())
        return true;
    if (!ask())
        return false;
    if (stopSearch)
        stopSearch();
    return true;
}

std::string CLeftPane::OpenSearch(const std::string& deviceTree, const std::string& folderTree)
{
    if (mode != PanelMode::search)
        previousMode = mode;
    mode = PanelMode::search;
    tabs.Select(kSearchTab);
    return previousMode == PanelMode::folder ? folderTree : deviceTree;
}

namespace
{

std::string WithoutSeparator(std::string path)
{
    if (path.size() > 1 && path.ends_with('/'))
        path.pop_back();
    return path;
}

// With the albums that are there now; like any folder it is read anew when it is opened.
Place FavouriteFolder(CDataFolders& dataFolders, DataFolderKind kind, PlaceKind placeKind)
{
    const std::string path = WithoutSeparator(dataFolders.FolderPath(kind));
    Place place{placeKind, std::string(browser::FileName(path)), path, true, {}};
    std::vector<std::string> names;
    if (dataFolders.ListAlbums(path))
        names = dataFolders.AlbumNames();
    if (platform::Os().files->FindFirstFile(browser::JoinPath(path, "Sample")))
        names.emplace_back("Sample");
    std::ranges::sort(names, browser::NameBefore);
    for (const std::string& name : names)
        place.children.push_back({PlaceKind::folder, name, browser::JoinPath(path, name), true, {}});
    return place;
}

}  // namespace

std::vector<Place> VolumePlaces(const std::vector<platform::Volume>& volumes, VolumeChoice choice)
{
    std::vector<Place> places;
    for (const platform::Volume& volume : volumes) {
        if (volume.mountPoint == "/" || (choice == VolumeChoice::removable && !volume.removable))
            continue;
        places.push_back({volume.removable ? PlaceKind::removableVolume : PlaceKind::volume,
                          volume.label,
                          volume.mountPoint,
                          true,
                          {}});
    }
    return places;
}

std::vector<Place> DevicePlaces(CDataFolders& dataFolders)
{
    std::vector<Place> places;
    const std::string root = WithoutSeparator(dataFolders.FavouriteRoot());
    if (!root.empty() && root != "/") {
        Place favourites{PlaceKind::favourites, std::string(browser::FileName(root)), root, false, {}};
        for (const auto& [kind, placeKind] : {std::pair{DataFolderKind::photo, PlaceKind::photo},
                                              {DataFolderKind::ring, PlaceKind::ring},
                                              {DataFolderKind::frame, PlaceKind::frame},
                                              {DataFolderKind::animation, PlaceKind::animation}})
            favourites.children.push_back(FavouriteFolder(dataFolders, kind, placeKind));
        places.push_back(std::move(favourites));
    }
    Place devices{PlaceKind::heading, "", "", false, {}, StringId::placeDevices};
    devices.children = VolumePlaces(platform::Os().shell->Volumes(), VolumeChoice::removable);
    places.push_back(std::move(devices));
    return places;
}

std::vector<Place> FolderPlaces()
{
    std::vector<Place> places;
    platform::CShell& shell = *platform::Os().shell;
    if (const auto home = shell.GetFolderPath(platform::KnownFolder::home, false))
        places.push_back({PlaceKind::home, "", *home, true, {}, StringId::placeHome});
    places.push_back({PlaceKind::fileSystem, "", "/", true, {}, StringId::placeFileSystem});
    std::ranges::move(VolumePlaces(shell.Volumes(), VolumeChoice::all), std::back_inserter(places));
    return places;
}

}  // namespace app
