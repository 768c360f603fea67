// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/settings.h"
#include "support/test_services.h"

#include <gtest/gtest.h>

using app::CSettings;
using Lines = std::vector<std::string>;

namespace
{

struct Settings : testing::Test {
    support::TestServices services;
    std::map<std::string, std::string>& values = services.profiles.values;
    Lines& written = services.profiles.written;
};

}  // namespace

TEST_F(Settings, AMissingFileGivesTheDefaultsAndIsMadeAtTheEnd)
{
    CSettings settings;

    EXPECT_FALSE(settings.Load(""));
    EXPECT_FALSE(settings.Save());
    EXPECT_TRUE(settings.Load("Kelvo.ini"));
    EXPECT_EQ(settings.delDscPhoto, 2);
    EXPECT_EQ(settings.jpegQuality, 85);
    EXPECT_TRUE(settings.skinPos);
    EXPECT_EQ(settings.itemIdMax, 0);
    settings.Save();

    EXPECT_EQ(written,
              (Lines{"Setting/Sort=0", "Setting/DelDscPhoto=2", "Setting/ThumbType=0", "Setting/SkinPos=1"}));
}

TEST_F(Settings, CountersAreReadUsedAndWrittenOnlyWithUseId)
{
    values = {{"FileId/UseID", "0"},
              {"FileId/ImgItemID", "41"},
              {"FileId/AviItemID", "00007x"},
              {"FileId/ImgRcdID", "-3"},
              {"FileId/AviRcdID", "123456789012345"},
              {"Setting/SkinPos", "7"}};
    CSettings off;
    off.Load("Kelvo.ini");
    EXPECT_EQ(off.imgItemId, 0);

    values["FileId/UseID"] = "1";
    CSettings on;
    on.Load("Kelvo.ini");
    EXPECT_EQ(on.itemIdMax, 99999);
    ++on.imgItemId;
    ++on.aviItemId;
    on.Save();

    const Lines counters(written.end() - 5, written.end());
    EXPECT_EQ(counters, (Lines{"Setting/SkinPos=1", "FileId/ImgItemID=42", "FileId/AviItemID=8",
                               "FileId/ImgRcdID=-3", "FileId/AviRcdID=2147483647"}));
}

TEST_F(Settings, TheOptionDialogSelectsThePortBeforeTheNumber)
{
    EXPECT_EQ(app::LoadOptions("/p").portPosition, -1);
    EXPECT_EQ(app::PortNames().back(), "COM 255");

    EXPECT_TRUE(app::SaveOptions("/p", {1, 3}));

    EXPECT_EQ(written, (Lines{"Setting/DelDscPhoto=1", "Port/com=4"}));
    EXPECT_EQ(app::HandsetPort("/p"), 4);
    EXPECT_EQ(app::LoadOptions("/p").portPosition, 3);
    values["Port/com"] = "300";
    EXPECT_EQ(app::LoadOptions("/p").portPosition, -1);
}

TEST_F(Settings, DialogColoursGoToTheirSystemNumbers)
{
    values = {{"PropertyDlg/3DFace", "1"}, {"PropertyDlg/3DDKShadow", "2"}, {"PropertyDlg/3DHighLight", "4"}};
    std::string handedOver;

    for (const app::SystemColour& colour : app::PropertyDialogColours("/skin")) {
        handedOver +=
            std::to_string(colour.index) + (colour.set ? "=" + std::to_string(colour.colour) : "") + " ";
    }

    EXPECT_EQ(handedOver, "15=1 16 21=2 20=4 22 ");
}
