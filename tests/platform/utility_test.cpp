// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/process.h"
#include "platform_linux/services.h"
#include "suite/utility/utility_library.h"
#include "support/services_guard.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

namespace
{

class Utility : public testing::Test
{
protected:
    support::CTempFolder folder;
    tests::CEnvironment environment{{{"KELVO_PROGRAM_FOLDER", folder.Path() + "/."}}};
    support::CServicesGuard guard{platform::Services()};
    platform_linux::CLinuxServices os;
    suite::CUtilityLibrary utility{os.ProgramFolder()};

    void SetUp() override
    {
        os.Install();
        utility.Install();
    }
};

TEST_F(Utility, ReadsSettingsOfTheRightFormAndLeavesTheDefaultOtherwise)
{
    struct Case {
        const char* value;
        int number;
        platform::Rect rect;
        platform::Extent size;
        platform::ColorRef color;
    };
    const platform::Rect noRect{-1, -1, -1, -1};
    const platform::Extent noSize{-1, -1};
    for (const Case& c :
         {Case{"12", 12, noRect, noSize, 7}, Case{"-3", -3, noRect, noSize, 7},
          Case{"12x", -1, noRect, noSize, 7}, Case{"", -1, noRect, noSize, 7},
          Case{" , ", -1, noRect, noSize, 7}, Case{"99999999999", -1, noRect, noSize, 7},
          Case{"640, 480", -1, noRect, {640, 480}, 7}, Case{"1,2,3,4", -1, {1, 2, 3, 4}, noSize, 7},
          Case{"\" -1 ,\t2 , 3,4\"", -1, {-1, 2, 3, 4}, noSize, 7}, Case{"1,2,3,4,5", -1, noRect, noSize, 7},
          Case{"1,,3,4", -1, noRect, noSize, 7}, Case{"255,128,1", -1, noRect, noSize, 0x0180FF},
          Case{"256,0,0", -1, noRect, noSize, 7}, Case{"0,-1,0", -1, noRect, noSize, 7}}) {
        const std::string file = folder.Make("skin.ini", std::string("[panel]\nk=") + c.value + "\n");
        int number = -1;
        platform::Rect rect = noRect;
        platform::Extent size = noSize;
        platform::ColorRef color = 7;

        EXPECT_EQ(utility.ql_GetSettingInt("panel", "k", file, number), c.number != -1) << c.value;
        EXPECT_EQ(utility.ql_GetSettingRect("panel", "k", file, rect), c.rect != noRect) << c.value;
        EXPECT_EQ(utility.ql_GetSettingSize("panel", "k", file, size), c.size != noSize) << c.value;
        EXPECT_EQ(utility.ql_GetSettingColor("panel", "k", file, color), c.color != 7) << c.value;

        EXPECT_TRUE(number == c.number && rect == c.rect && size == c.size && color == c.color) << c.value;
    }
}

TEST_F(Utility, KnowsTheProgramAndItsTexts)
{
    const std::string file = folder.Make("skin.ini", "[panel]\nimage=\"info.png\"\nempty=\n");
    std::string text = "preset";
    platform::FileVersion version;

    EXPECT_FALSE(utility.ql_GetSettingString("panel", "none", file, text));
    EXPECT_EQ(text, "preset");
    EXPECT_TRUE(utility.ql_GetSettingString("Panel", "Image", file, text));
    EXPECT_EQ(text, "info.png");
    EXPECT_TRUE(utility.ql_GetSettingString("panel", "empty", file, text));
    EXPECT_EQ(text, "");
    EXPECT_EQ(utility.ql_GetModulePath(), folder.Path());
    EXPECT_EQ(utility.ql_GetFileName(), folder.Path("kelvo"));
    EXPECT_TRUE(utility.ql_GetFileVersion(version) && version.major == 1 && version.revision == 1);
}

}  // namespace
