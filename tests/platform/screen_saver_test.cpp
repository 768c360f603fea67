// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The screen saver's file: what is set, and that nothing of the user's is lost.
#include "platform_linux/linux_screen_saver.h"
#include "platform_linux/xscreensaver_text.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <cstdlib>

using namespace platform_linux;
using platform::ScreenSaverResult;
namespace fs = std::filesystem;

TEST(ScreenSaver, ThePictureShowIsChosenAndAllElseStays)
{
    const std::string list = "\\\n  maze --root \\n\\\n- GL: \"Show\" glslideshow --root \\n\\\n  last \\n";
    const std::string ending = "mode:\tone\ngrabDesktopImages:\tFalse\ngrabVideoFrames:\tFalse\n"
                               "chooseRandomImages:\tTrue\nimageDirectory:\t/p q\n";
    const struct {
        std::string text;
        std::string defaults;
        std::string result;
    } rows[] = {
        {"", "", "programs:\t\\\n  GL: glslideshow --root \\n\nselected:\t0\n" + ending},
        {"", "! of X\n*programs: " + list + "\n*timeout: 1\n",
         "programs:\t" + list + "\nselected:\t1\n" + ending},
        {"# mine\ntimeout:\t0:05:00\nprograms:\t" + list + "\n\nmode: random\nlock:\tTrue", "",
         "# mine\ntimeout:\t0:05:00\nprograms:\t" + list + "\n\nmode:\tone\nlock:\tTrue\nselected:\t1\n" +
             ending.substr(10)},
        {"programs: \\\n maze \\n\nselected: 7\nimageDirectory: \\\n/old\nmodesty: 1\n", "",
         "programs:\t\\\n  GL: glslideshow --root \\n\\\n maze \\n\nselected:\t0\nimageDirectory:\t/p q\n"
         "modesty: 1\n" +
             ending.substr(0, ending.find("imageDirectory"))},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(WithPictureShow(row.text, row.defaults, "/p q"), row.result);
        EXPECT_EQ(WithPictureShow(row.result, row.defaults, "/p q"), row.result) << "once is enough";
    }
}

TEST(ScreenSaver, TheFileIsReplacedAndTheUsersOwnKept)
{
    const support::CTempFolder home;
    const std::map<std::string, std::string> place = {
        {"HOME", home.Path("")}, {"XDG_DATA_HOME", home.Path("data")}, {"PATH", home.Path("bin")}};
    std::map<std::string, std::string> former;
    for (const auto& [name, value] : place) {
        const char* before = std::getenv(name.c_str());
        former[name] = before ? before : "";
        setenv(name.c_str(), value.c_str(), 1);
    }
    unsetenv("WAYLAND_DISPLAY");
    CLinuxScreenSaver saver;
    const std::string file = home.Path(".xscreensaver");
    const std::string mine = "timeout:\t0:07:00\n";
    support::WriteBytes(file, mine);

    EXPECT_EQ(saver.ShowPictures("/p", {}), ScreenSaverResult::missing);
    EXPECT_EQ(support::ReadBytes(file), mine);
    fs::create_directory(home.Path("bin"));
    for (const char* program : {"bin/xscreensaver", "bin/glslideshow"}) {
        support::WriteBytes(home.Path(program), "#!/bin/sh\n");
        fs::permissions(home.Path(program), fs::perms::owner_all);
    }
    EXPECT_EQ(saver.ShowPictures("/p\nlock: False", {}), ScreenSaverResult::notWritten);
    EXPECT_EQ(support::ReadBytes(file), mine);
    EXPECT_EQ(saver.ShowPictures("/p", {"/x/a.jpg"}), ScreenSaverResult::set);
    EXPECT_EQ(saver.ShowPictures("/p", {"/x/b.jpg", "/y/b.jpg"}), ScreenSaverResult::set);

    const auto folder = XScreenSaverValue(support::ReadBytes(file), "imageDirectory").value_or("");
    EXPECT_EQ(fs::read_symlink(folder + "/2-b.jpg"), "/y/b.jpg");
    const fs::directory_iterator all(fs::path(folder).parent_path());
    EXPECT_EQ(std::distance(fs::begin(all), fs::end(all)), 1) << "the former links are gone";
    EXPECT_TRUE(support::ReadBytes(file).starts_with(mine));
    EXPECT_EQ(support::ReadBytes(file + ".before-kelvo"), mine);
    for (const auto& [name, value] : former)
        setenv(name.c_str(), value.c_str(), 1);
}
