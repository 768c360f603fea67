// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/test_services.h"
#include "ui/command_line.h"

#include <gtest/gtest.h>

TEST(CommandLine, WordsAreToldApartByWhatTheyName)
{
    support::TestServices services;
    const std::string base = services.folder.Path();
    const std::string odd = base + "/caf\xE9";
    std::filesystem::create_directories(odd);
    std::filesystem::create_directories(base + "/-load");
    const std::string picture = services.folder.Make("a.jpg", "1x1");
    const std::string loadFolder = base + "/load";
    std::filesystem::create_directories(loadFolder);
    using enum ui::Task;
    const struct {
        std::vector<std::string> words;
        ui::Task task;
        std::string folder;
        std::string fileName;
        std::string suiteWords;
    } rows[] = {
        {{}, run, "", "", ""},
        {{"."}, run, base, "", ""},
        {{"caf\xE9/"}, run, odd, "", ""},
        {{picture}, run, base, "a.jpg", ""},
        {{"/load"}, run, "", "", "/load"},
        {{"/LOAD:1", "/pnplaunch:E", "a.jpg"}, run, base, "a.jpg", "/LOAD:1 /pnplaunch:E"},
        {{loadFolder}, run, loadFolder, "", ""},  // begins like a switch but is there
        {{"--", "-load"}, run, base + "/-load", "", ""},
        {{"--shot", "s.png", "--size", "640x480", odd}, shot, odd, "", ""},
        {{"--version"}, version, "", "", ""},
        {{"--help", "--nonsense"}, help, "", "", ""},
        {{"-load"}, refuse, "", "", ""},
        {{"/no/such/folder"}, refuse, "", "", ""},
        {{base, base}, refuse, "", "", ""},
        {{"--shot"}, refuse, "", "", ""},
        {{"--size", "640x"}, refuse, "", "", ""},
        {{"--size", "0x5"}, refuse, "", "", ""},
        {{"--size", "99999x5"}, refuse, "", "", ""},
    };
    for (const auto& row : rows) {
        const ui::CommandLine line = ui::ReadCommandLine(row.words, base);

        const std::string shown = row.words.empty() ? "" : row.words.back();
        EXPECT_EQ(line.task, row.task) << shown << ": " << line.error;
        EXPECT_EQ(line.error.empty(), row.task != refuse) << shown;
        EXPECT_EQ(line.folder, row.folder) << shown;
        EXPECT_EQ(line.fileName, row.fileName) << shown;
        EXPECT_EQ(line.suiteWords, row.suiteWords) << shown;
        if (row.task == shot) {
            EXPECT_EQ(line.shotFile, base + "/s.png");
            EXPECT_EQ(line.shotSize, (platform::Extent{640, 480}));
        }
    }
}
