// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/list_settings.h"
#include "support/test_services.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <climits>

using namespace browser;
using testing::ElementsAre;

namespace
{

// Notes the keys in the order in which they are asked for.
class CNotingProfiles : public support::CTestProfiles
{
public:
    std::vector<std::string> read;
    bool HasPrivateProfileKey(const std::string& section, const std::string& key,
                              const std::string& file) override
    {
        read.push_back(key);
        return CTestProfiles::HasPrivateProfileKey(section, key, file);
    }
};

class ListSettings : public testing::Test
{
protected:
    ListSettings() { platform::Os().profiles = &profiles; }
    void Put(const std::string& key, const std::string& value) { profiles.values[kSection + key] = value; }

    const std::string kSection = "Files\\ListView/";
    support::TestServices services;
    CNotingProfiles profiles;
    CListSettings settings{"Kelvo.ini", "Files"};
};

}  // namespace

TEST_F(ListSettings, AFreshProfileKeepsTheBuiltInLayout)
{
    settings.viewType = kViewDetails;
    settings.sortColumn = 3;
    settings.thumbSize = 77;
    settings.columnOrder = {1, 0};

    settings.LoadSettings();

    EXPECT_THAT(profiles.read, ElementsAre("Headings", "Style", "RowSelection", "ViewType", "ColumnSizing",
                                           "SortColumn", "ThumbSize", "Columns", "IncludeFolder", "Filter"));
    EXPECT_EQ(settings.thumbSize, 120);
    EXPECT_EQ(settings.viewType, kViewDetails);
    EXPECT_EQ(settings.sortColumn, 3);
    EXPECT_THAT(settings.columnOrder, ElementsAre(1, 0));
    EXPECT_EQ(settings.headings, "");
    EXPECT_EQ(settings.includeFolder, 0);
    EXPECT_EQ(settings.filter, 23);
}

TEST_F(ListSettings, SavesAndLoadsInTheirOwnOrders)
{
    settings.headings = "Name|Size";
    settings.TakeSortOrder({SortKey::modified, true});
    settings.columnOrder = {1, 0};
    settings.columnWidths = {0, 80};
    settings.filter = 1;

    EXPECT_TRUE(settings.SaveSettings());

    std::vector<std::string> expected = {
        "Headings=Name|Size", "Style=32",         "RowSelection=1",  "ViewType=0",     "ColumnSizing=1",
        "Columns=2",          "SortColumn=3",     "ThumbSize=120",   "ColumnOrder1=1", "ColumnOrder2=0",
        "ColumnWidths1=0",    "ColumnWidths2=80", "IncludeFolder=0", "Filter=1"};
    for (std::string& line : expected) {
        line.insert(0, kSection);
    }
    EXPECT_EQ(profiles.written, expected);

    profiles.read.clear();
    CListSettings loaded("Kelvo.ini", "Files");
    loaded.LoadSettings();
    EXPECT_THAT(std::vector(profiles.read.begin() + 7, profiles.read.end()),
                ElementsAre("Columns", "ColumnOrder1", "ColumnWidths1", "ColumnOrder2", "ColumnWidths2",
                            "IncludeFolder", "Filter"));
    EXPECT_EQ(loaded.UsableSortOrder(), (SortOrder{SortKey::modified, true}));
    EXPECT_EQ(loaded.UsableWidth(1), 80);
    EXPECT_THAT(loaded.DisplayOrder(2), ElementsAre(1, 0));
    EXPECT_EQ(loaded.Heading(1), "Size");
    EXPECT_EQ(loaded.Heading(2), "");
}

TEST_F(ListSettings, WithoutColumnsNoneAreWrittenAndWithoutASectionNothingIs)
{
    settings.SaveSettings();
    EXPECT_EQ(profiles.written.size(), 10U);
    profiles.written.clear();
    profiles.read.clear();

    for (CListSettings* none : {new CListSettings, new CListSettings("Kelvo.ini", "")}) {
        none->LoadSettings();
        EXPECT_FALSE(none->SaveSettings());
        delete none;
    }

    EXPECT_TRUE(profiles.written.empty());
    EXPECT_TRUE(profiles.read.empty());
}

TEST_F(ListSettings, MissingColumnsReadAsZero)
{
    Put("Columns", "3");
    Put("ColumnOrder1", "2");

    settings.LoadSettings();

    EXPECT_THAT(settings.columnOrder, ElementsAre(2, 0, 0));
    EXPECT_THAT(settings.columnWidths, ElementsAre(0, 0, 0));
    EXPECT_THAT(settings.DisplayOrder(3), ElementsAre(1, 2, 0));
}

TEST_F(ListSettings, HostileValuesGiveAUsableList)
{
    const std::string huge = std::to_string(INT_MAX);
    const std::string low = std::to_string(INT_MIN);
    for (const std::string& value : {huge, low, std::string("-1"), std::string("xyz")}) {
        for (const char* key : {"Columns", "Style", "ViewType", "SortColumn", "ThumbSize", "ColumnOrder1",
                                "ColumnOrder3", "ColumnWidths1", "Headings", "Filter"}) {
            Put(key, value);
        }
        CListSettings hostile("Kelvo.ini", "Files");

        hostile.LoadSettings();

        EXPECT_LE(hostile.columnOrder.size(), 64U);
        std::vector<int> columns = hostile.DisplayOrder(5);
        std::ranges::sort(columns);
        EXPECT_THAT(columns, ElementsAre(0, 1, 2, 3, 4)) << value;
        EXPECT_FALSE(hostile.UsableWidth(0)) << value;
        EXPECT_FALSE(hostile.UsableWidth(100)) << value;
        EXPECT_GE(hostile.UsableThumbSize(), kThumbSmallest);
        EXPECT_LE(hostile.UsableThumbSize(), kThumbLarge);
        EXPECT_EQ(hostile.UsableViewType().has_value(), value == "xyz") << "0, the thumbnails";
        EXPECT_EQ(hostile.UsableSortOrder().has_value(), value == "xyz");
        EXPECT_EQ(hostile.Heading(1), "");
    }
    EXPECT_EQ(NearestThumbSize(89), 80);
    EXPECT_EQ(NearestThumbSize(90), 100);
}
