// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/left_pane.h"
#include "app/string_table.h"
#include "support/test_services.h"

#include <gtest/gtest.h>

namespace
{

class CShellWithVolumes : public support::CTestShell
{
public:
    std::vector<platform::Volume> Volumes() override
    {
        return {{"/", "Root", false}, {"/data", "Data", false}, {"/media/card", "CARD", true}};
    }
};

// "label(child child)" for a whole list of places.
std::string Outline(const std::vector<app::Place>& places)
{
    std::string text;
    for (const app::Place& place : places) {
        const std::string label =
            place.label.empty() ? app::Strings().LoadString(place.caption) : place.label;
        text += (text.empty() ? "" : " ") + label;
        if (!place.children.empty())
            text += "(" + Outline(place.children) + ")";
    }
    return text;
}

}  // namespace

TEST(Tabs, SelectingATabChecksItAloneAndSetsItsMode)
{
    app::CTabs tabs;
    EXPECT_EQ(tabs.Mode(), app::TabMode::device);
    const struct {
        int id;
        app::TabMode mode;
        std::size_t checked;
    } rows[] = {
        {app::kFolderTab, app::TabMode::folder, 1},
        {app::kSearchTab, app::TabMode::search, 2},
        {4711, app::TabMode::search, 2},  // no tab: nothing changes
        {app::kDeviceTab, app::TabMode::device, 0},
    };
    for (const auto& row : rows) {
        tabs.Select(row.id);

        EXPECT_EQ(tabs.Mode(), row.mode) << row.id;
        for (std::size_t i = 0; i < tabs.All().size(); ++i)
            EXPECT_EQ(tabs.All()[i].checked, i == row.checked) << row.id << " " << i;
    }
}

TEST(Tabs, TabsAreEnabledAndShownByTheirNumber)
{
    app::CTabs tabs;

    tabs.EnableAll(false);
    tabs.Enable(app::kFolderTab, true);
    tabs.Enable(4711, true);
    tabs.Show(app::kSearchTab, false);
    tabs.Show(4711, false);

    const auto& [device, folder, search] = tabs.All();
    EXPECT_FALSE(device.enabled);
    EXPECT_TRUE(folder.enabled);
    EXPECT_FALSE(search.enabled);
    EXPECT_TRUE(device.visible && folder.visible);
    EXPECT_FALSE(search.visible);
    EXPECT_EQ(device.image, "favorite.png");
}

TEST(LeftPane, TheSearchStartsInTheFolderOfTheTreeThatWasShown)
{
    const struct {
        app::PanelMode tree;
        const char* folder;
    } rows[] = {{app::PanelMode::device, "/fav"}, {app::PanelMode::folder, "/home"}};
    for (const auto& row : rows) {
        app::CLeftPane pane;
        pane.ShowTree(row.tree);

        EXPECT_EQ(pane.OpenSearch("/fav", "/home"), row.folder);
        // Opening it a second time must not forget where it came from.
        EXPECT_EQ(pane.OpenSearch("/fav", "/home"), row.folder);

        EXPECT_EQ(pane.Mode(), app::PanelMode::search);
        EXPECT_EQ(pane.PreviousMode(), row.tree);
        EXPECT_EQ(pane.tabs.Mode(), app::TabMode::search);
        pane.ShowTree(pane.PreviousMode());
        EXPECT_EQ(pane.Mode(), row.tree);
    }
}

TEST(LeftPane, ARunningSearchIsOnlyLeftAndStoppedWhenTheUserSaysSo)
{
    struct Case {
        bool open;
        bool busy;
        bool answer;
        bool leaves;
        std::string steps;
    };
    for (const Case& c : {Case{true, true, false, false, "ask "}, Case{true, true, true, true, "ask stop "},
                          Case{true, false, false, true, ""}, Case{false, true, false, true, ""}}) {
        app::CLeftPane pane;
        std::string steps;
        pane.isSearchBusy = [&] { return c.busy; };
        pane.stopSearch = [&] { steps += "stop "; };
        if (c.open)
            pane.OpenSearch("/fav", "/home");

        EXPECT_EQ(pane.LeaveSearch([&] { return steps += "ask ", c.answer; }), c.leaves);

        EXPECT_EQ(steps, c.steps);
        EXPECT_EQ(pane.Mode(), c.open ? app::PanelMode::search : app::PanelMode::device);
    }
}

TEST(Places, FavouritesHaveTheirAlbumsAndDevicesTheRemovableVolumes)
{
    support::TestServices services;
    CShellWithVolumes shell;
    platform::Os().shell = &shell;
    services.utility.programFolder = services.folder.Path("program");
    shell.base = services.folder.Path("user");
    app::CDataFolders folders;
    folders.Prepare();
    const std::string photo = folders.FolderPath(app::DataFolderKind::photo);
    std::filesystem::create_directories(photo + "Lake 10");
    std::filesystem::create_directories(photo + "Lake 9");

    EXPECT_EQ(Outline(app::DevicePlaces(folders)),
              "My Favorite(Photo(Lake 9 Lake 10 Sample) Ring(Sample) Frame(Sample) Animation) Devices(CARD)");
    EXPECT_EQ(Outline(app::FolderPlaces()), "Home File System Data CARD");
}

TEST(Places, WithoutADataTreeOnlyTheDevicesAreThere)
{
    support::TestServices services;
    app::CDataFolders folders;

    EXPECT_EQ(Outline(app::DevicePlaces(folders)), "Devices");
    EXPECT_EQ(Outline(app::FolderPlaces()), "File System");
}
