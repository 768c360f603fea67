// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/process.h"
#include "platform_linux/linux_profiles.h"
#include "platform_linux/linux_registry.h"
#include "support/temp_folder.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

using platform_linux::CLinuxProfiles;
using platform_linux::CLinuxRegistry;
using support::ReadBytes;

class Profiles : public testing::Test
{
protected:
    support::CTempFolder folder;
    CLinuxProfiles profiles{folder.Path("program"), folder.Path("user")};
};

TEST_F(Profiles, ReadsTextAndNumbersOutOfAValue)
{
    struct Case {
        const char* line;
        const char* text;
        int number;
    };
    for (const Case& c : {Case{"k=12", "12", 12}, Case{"k = 12 ; x ", "12 ; x", 12}, Case{"k=-7", "-7", -7},
                          Case{"k=+7", "+7", 7}, Case{"k=abc", "abc", 0}, Case{"k=", "", 0},
                          Case{"k=0x10", "0x10", 0}, Case{"k=\"15\"", "15", 15}, Case{"k=' a '", " a ", 0},
                          Case{"k=\"a", "\"a", 0}, Case{"k=\"", "\"", 0}, Case{"k=\"\"", "", 0},
                          Case{"k=99999999999999999999", "99999999999999999999", 2147483647},
                          Case{"k=-99999999999999999999", "-99999999999999999999", -2147483647 - 1},
                          Case{"x=1", "none", 42}}) {
        const std::string file = folder.Make("file.ini", std::string("[Section]\r\n") + c.line + "\r\n");

        EXPECT_EQ(profiles.GetPrivateProfileString("SECTION", "K", "none", file), c.text) << c.line;
        EXPECT_EQ(profiles.GetPrivateProfileInt("section", "k", 42, file), c.number) << c.line;
        EXPECT_EQ(profiles.HasPrivateProfileKey("section", "k", file), c.line[0] == 'k') << c.line;
    }
}

TEST_F(Profiles, ReadsBackWhatWasWritten)
{
    const std::string file = folder.Path("made.ini");
    for (const std::string value :
         {"plain", "", " a ", "\t", "\"quoted\"", "'", "''", "a=b;c", "[x]", "\xFF\xE9"}) {
        EXPECT_TRUE(profiles.WritePrivateProfileString("s", "k", value, file)) << value;

        EXPECT_EQ(profiles.GetPrivateProfileString("s", "k", "none", file), value);
    }
    EXPECT_FALSE(profiles.WritePrivateProfileString("s", "k", "two\nlines", file));
    EXPECT_EQ(ReadBytes(file), "[s]\nk=\xFF\xE9\n");
    EXPECT_FALSE(profiles.WritePrivateProfileString("s", "k", "v\n", folder.Path("never.ini")));
    EXPECT_FALSE(std::filesystem::exists(folder.Path("never.ini")));
}

TEST_F(Profiles, SeesWhatOthersWroteIntoTheFile)
{
    const std::string file = folder.Make("file.ini", "[s]\nk=1\n");
    const std::string before = profiles.GetPrivateProfileString("s", "k", "", file);
    CLinuxProfiles other("", "");
    std::string seen;

    for (const char* value : {"2", "3", "4", "5"}) {
        other.WritePrivateProfileString("s", "k", value, file);
        seen += profiles.GetPrivateProfileString("s", "k", "", file);
    }
    std::filesystem::remove(file);

    EXPECT_EQ(before + seen, "12345");
    EXPECT_EQ(profiles.GetPrivateProfileString("s", "k", "gone", file), "gone");
}

TEST_F(Profiles, NeverOverwritesAFileThatItCannotUse)
{
    const std::string pipe = folder.Path("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    const std::string large(5 << 20, '\n');
    const std::string wide("\xFF\xFE[\0s\0]\0", 8);
    for (const auto& [path, bytes] : {std::pair{folder.Make("large.ini", large), large},
                                      {folder.Make("wide.ini", wide), wide},
                                      {folder.Path("no/folder.ini"), ""}}) {
        EXPECT_EQ(profiles.GetPrivateProfileInt("s", "k", 42, path), 42) << path;
        EXPECT_FALSE(profiles.WritePrivateProfileString("s", "k", "v", path)) << path;

        EXPECT_EQ(ReadBytes(path), bytes) << path;
    }
    EXPECT_FALSE(profiles.WritePrivateProfileString("s", "k", "v", pipe));
    EXPECT_FALSE(profiles.WritePrivateProfileString("s", "k", "v", folder.Path()));
}

TEST_F(Profiles, WritesBesideTheUsersSettingsWhereTheProgramFolderIsShut)
{
    std::filesystem::create_directories(folder.Path("program/skin"));
    const std::string file = folder.Make("program/Kelvo.ini", "; kept\n[s]\na=1\nb=2\n");
    const std::string skin = folder.Make("program/skin/config.ini", "[s]\na=1\n");
    const std::string outside = folder.Make("outside.ini", "[s]\na=1\n");
    const std::string climbing = folder.Path("program/skin/../../outside.ini");
    const std::string guarded[] = {file, skin, outside, folder.Path("program"), folder.Path("program/skin")};
    std::filesystem::create_directory(folder.Path("user"));
    ASSERT_EQ(chmod(folder.Path().c_str(), 0755) | chmod(folder.Path("user").c_str(), 0777), 0);
    for (const std::string& path : guarded)
        ASSERT_EQ(chmod(path.c_str(), 0555), 0);

    const int result = tests::RunAsPlainUser([&] {
        const bool first = profiles.WritePrivateProfileString("S", "A", "new", file);
        const bool second = profiles.WritePrivateProfileString("s", "c", "3", file);
        const bool deep = profiles.WritePrivateProfileString("s", "a", "red", skin);
        const bool made = profiles.WritePrivateProfileString("s", "a", "1", folder.Path("program/Port.ini"));
        const bool refused = !profiles.WritePrivateProfileString("s", "a", "new", outside) &&
                             !profiles.WritePrivateProfileString("s", "a", "new", climbing);
        return (first && second && deep && made ? 0 : 1) + (refused ? 0 : 2);
    });
    for (const std::string& path : guarded)
        ASSERT_EQ(chmod(path.c_str(), 0755), 0);
    support::WriteBytes(file, "[s]\na=1\nlater=here\n");

    EXPECT_EQ(result, 0);
    EXPECT_EQ(ReadBytes(folder.Path("user/Kelvo.ini")), "; kept\n[s]\na=new\nb=2\nc=3\n");
    EXPECT_EQ(profiles.GetPrivateProfileString("s", "a", "", file), "new");
    EXPECT_EQ(profiles.GetPrivateProfileString("s", "later", "", file), "here");
    EXPECT_EQ(profiles.GetPrivateProfileString("s", "a", "", skin), "red");
    EXPECT_TRUE(profiles.WritePrivateProfileString("s", "b", "copy goes on", file));
    EXPECT_EQ(ReadBytes(file), "[s]\na=1\nlater=here\n");
    EXPECT_EQ(ReadBytes(outside), "[s]\na=1\n");
}

TEST_F(Profiles, KeepAllChangesOfSeveralProcesses)
{
    const std::string file = folder.Path("shared.ini");
    constexpr int kWrites = 20;
    std::vector<std::unique_ptr<tests::CChild>> writers;
    for (const std::string name : {"a", "b", "c", "d"})
        writers.push_back(std::make_unique<tests::CChild>([=, this](const auto&) {
            bool all = true;
            for (int i = 0; i < kWrites; ++i)
                all = profiles.WritePrivateProfileString("s", name + std::to_string(i), "v", file) && all;
            return all ? 0 : 1;
        }));

    for (const auto& writer : writers)
        EXPECT_EQ(writer->Wait(), 0);

    for (const std::string name : {"a", "b", "c", "d"})
        for (int i = 0; i < kWrites; ++i)
            EXPECT_TRUE(profiles.HasPrivateProfileKey("s", name + std::to_string(i), file)) << name << i;
}

TEST_F(Profiles, SurviveAKillAndAFullDiskWhole)
{
    const std::string comment = ";" + std::string(60'000, 'c') + "\n";
    const std::string file = folder.Make("file.ini", comment + "[s]\nn=0\nlast=1\n");
    for (int round = 0; round < 30; ++round) {
        tests::CChild writer([&](const auto& step) {
            for (int i = 0; profiles.WritePrivateProfileString("s", "n", std::to_string(i), file); ++i)
                step();
            return 1;
        });
        ASSERT_TRUE(writer.Await(1 + round % 5));

        writer.Kill();

        const std::string bytes = ReadBytes(file);
        ASSERT_TRUE(bytes.starts_with(comment + "[s]\nn=") && bytes.ends_with("\nlast=1\n"));
    }
    const std::optional<int> full = tests::RunOnSmallDisk([&](const std::string& small) {
        const std::string path = small + "/file.ini";
        support::WriteBytes(path, "[s]\nk=old\n");
        support::WriteBytes(small + "/filler", std::string(300'000, 'f'));
        const bool refused =
            !profiles.WritePrivateProfileString("s", "k", std::string(9'000, 'v'), path) &&
            !profiles.WritePrivateProfileString("s", "k", std::string(9'000, 'v'), small + "/new");
        return refused && ReadBytes(path) == "[s]\nk=old\n" && access((small + "/new").c_str(), F_OK) != 0
                   ? 0
                   : 1;
    });
    EXPECT_EQ(full.value_or(0), 0);
}

class Registry : public testing::Test
{
protected:
    support::CTempFolder folder;
    CLinuxRegistry registry{folder.Path("config/kelvo/registry.ini")};
};

TEST_F(Registry, HoldsAnyBytesUnderAnyName)
{
    std::string all;
    for (int byte = 0; byte < 256; ++byte)
        all += static_cast<char>(byte);
    const std::string texts[] = {"plain",        "", "@", "%", "%41", " outer blanks ", "[x]=;",
                                 "two\r\nlines", all};
    for (const std::string& name : texts)
        for (const std::string& value : texts)
            ASSERT_TRUE(registry.SetValue("Software/" + name, name, value));
    for (const std::string& name : texts) {
        ASSERT_TRUE(registry.SetValue("Key of " + name, name, name)) << name;
        EXPECT_EQ(registry.QueryValue("Key of " + name, name), name);
        EXPECT_EQ(registry.QueryValue("Software/" + name, name), all) << name;
        EXPECT_TRUE(registry.KeyExists("Software/" + name));
    }

    CLinuxRegistry again(folder.Path("config/kelvo/registry.ini"));

    EXPECT_EQ(again.QueryValue("key OF " + all, all), all);
}

TEST_F(Registry, KeepsKeysValuesAndForeignLinesApart)
{
    const std::string key = "Software/Qorvel/Mobile/1.00.0000.01";
    const bool before = registry.KeyExists("Software") || registry.DeleteValue(key, "DB");

    ASSERT_TRUE(registry.CreateKey(key) && registry.CreateKey("software/QORVEL//mobile/") &&
                registry.SetValue(key, "DB", "/a") && registry.SetValue(key, "Temp", "/b"));
    const std::string file = folder.Path("config/kelvo/registry.ini");
    support::WriteBytes(file, "; by hand\n" + ReadBytes(file));
    ASSERT_TRUE(registry.DeleteValue(key, "db"));

    EXPECT_FALSE(before);
    EXPECT_EQ(ReadBytes(file), "; by hand\n[Software/Qorvel/Mobile/1.00.0000.01]\nTemp=/b\n");
    EXPECT_TRUE(registry.KeyExists("SOFTWARE") && registry.KeyExists("/software/qorvel/"));
    EXPECT_FALSE(registry.KeyExists("Soft") || registry.KeyExists("") || registry.CreateKey("/"));
    EXPECT_FALSE(registry.QueryValue(key, "DB") || registry.DeleteValue(key, "DB"));
    EXPECT_FALSE(registry.QueryValue("Software", "Temp"));
    EXPECT_FALSE(CLinuxRegistry("").SetValue(key, "DB", "/a"));
}

}  // namespace
