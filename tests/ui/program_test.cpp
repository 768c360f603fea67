// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The program itself: a second instance, and a picture of the window.
#include "platform_linux/desktop/linux_messages.h"
#include "support/test_services.h"

#include <QImage>

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>

namespace
{

class ProgramTest : public testing::Test
{
protected:
    ProgramTest()
    {
        for (const char* name : {"HOME", "XDG_RUNTIME_DIR"})
            setenv(name, home.Path().c_str(), 1);
        for (const char* name : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_DOCUMENTS_DIR"})
            unsetenv(name);
        std::filesystem::permissions(home.Path(), std::filesystem::perms::owner_all);
    }
    // Runs the program with a shell's words; what it says goes to "said". -1 when it had to be ended.
    int Start(const std::string& words)
    {
        const std::string command =
            "timeout 60 " KELVO_PROGRAM " " + words + " > '" + home.Path("said") + "' 2>&1";
        const int status = std::system(command.c_str());
        return WIFEXITED(status) && WEXITSTATUS(status) != 124 ? WEXITSTATUS(status) : -1;
    }

    support::CTempFolder home;
};

}  // namespace

TEST_F(ProgramTest, ASecondInstanceEndsWithoutAWord)
{
    platform_linux::CLinuxMessages first;
    ASSERT_TRUE(first.RegisterClass("QorvelVellum"));

    EXPECT_EQ(Start(""), 0);
    EXPECT_EQ(Start("'" + home.Path() + "'"), 0);
    EXPECT_FALSE(support::ReadBytes(home.Path("said")).find("kelvo") != std::string::npos);
}

TEST_F(ProgramTest, AShotIsTakenBesideARunningInstanceAndOfAnyFolder)
{
    platform_linux::CLinuxMessages first;
    ASSERT_TRUE(first.RegisterClass("QorvelVellum"));
    const std::string odd = home.Path("f\xF6lder with 'none'");
    std::filesystem::create_directories(odd);
    const std::string quoted = "\"" + odd + "\"";
    const std::string shot = home.Path("shot.png");

    EXPECT_EQ(Start("--shot '" + shot + "' --size 640x480 " + quoted), 0);
    EXPECT_EQ(QImage(QString::fromStdString(shot)).size(), QSize(640, 480));

    EXPECT_EQ(Start("--shot '" + home.Path("no/such/place.png") + "' " + quoted), 1);
    EXPECT_EQ(Start("--shot '" + shot + "' /no/such/folder"), 2);
}
