// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/data_folders.h"
#include "app/kelvo_app.h"
#include "support/test_services.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace fs = std::filesystem;

namespace
{

constexpr const char* kKey = "Software/Qorvel/Mobile/1.00.0000.01";

class StartUp : public testing::Test
{
protected:
    StartUp()
    {
        services.utility.programFolder = services.folder.Path("program");
        services.shell.base = services.folder.Path("user");
    }
    app::CDataFolders Prepared()
    {
        services.shell.log.clear();
        app::CDataFolders folders;
        folders.Prepare();
        return folders;
    }

    support::TestServices services;
    const std::string local = services.folder.Path("user/0/Halden/Tessa1.0");
    const std::string documents = services.folder.Path("user/1/Halden/Tessa1.0");
};

}  // namespace

TEST_F(StartUp, TheFirstStartRecordsAndMakesTheTreeAndCopiesTheSamples)
{
    const app::CDataFolders folders = Prepared();

    const std::map<std::string, std::string> expected{
        {"DB", local + "/ThumbDB"},
        {"Temp", local + "/_temp_"},
        {"MobileDownload", documents + "/MobileDownload"},
        {"FavoriteTree", documents + "/My Favorite"},
        {"Outbox", local + "/Outbox"},
        {"SearchFolder", local + "/Search Result"},
        {"Path", services.folder.Path("program/")},
    };
    EXPECT_EQ(services.registry.keys[kKey], expected);
    EXPECT_EQ(folders.ThumbDbFolder(), local + "/ThumbDB");
    EXPECT_EQ(folders.TempRoot(), local + "/_temp_/");
    for (int kind = 0; kind <= 13; ++kind) {
        std::string path;
        folders.GetFolderPath(kind, path);
        EXPECT_TRUE(path.ends_with('/') && fs::is_directory(path)) << kind << path;
    }
    std::string untouched = "x";
    EXPECT_TRUE(folders.GetFolderPath(14, untouched));
    EXPECT_EQ(untouched, "x");
    EXPECT_EQ(folders.FolderPath(app::DataFolderKind::frameSample), documents + "/My Favorite/Frame/Sample/");
    ASSERT_EQ(services.shell.log.size(), 3U);
    EXPECT_EQ(services.shell.log[1], "copy " + services.folder.Path("program/My Favorite/Ring/Sample") +
                                         " to " + documents + "/My Favorite/Ring");
    EXPECT_TRUE(folders.Problems().empty());
}

TEST_F(StartUp, SamplesAreCopiedAgainOnlyWhereTheirFolderIsGone)
{
    Prepared();
    Prepared();
    EXPECT_TRUE(services.shell.log.empty());

    fs::remove(documents + "/My Favorite/Photo/Sample");
    Prepared();

    ASSERT_EQ(services.shell.log.size(), 1U);
    EXPECT_NE(services.shell.log[0].find("/Photo/Sample to"), std::string::npos);
}

TEST_F(StartUp, AValueThatNamesNoFolderIsReplacedOnTheSameStart)
{
    services.registry.keys[kKey]["Temp"] = services.folder.Make("a-file", "");
    const std::string own = services.folder.Path("own");
    services.registry.keys[kKey]["Outbox"] = own;

    const app::CDataFolders folders = Prepared();

    EXPECT_EQ(folders.TempRoot(), local + "/_temp_/");
    EXPECT_EQ(services.registry.keys[kKey]["Temp"], local + "/_temp_");
    EXPECT_EQ(folders.OutboxFolder(), own);
    EXPECT_TRUE(fs::is_directory(own));
}

TEST_F(StartUp, WithoutAUsablePlaceNothingIsMadeAndTheProblemsAreNamed)
{
    services.registry.writable = false;

    const app::CDataFolders folders = Prepared();

    EXPECT_EQ(folders.FavouriteRoot(), "");
    EXPECT_EQ(folders.FolderPath(app::DataFolderKind::photo), "");
    EXPECT_TRUE(services.shell.log.empty());
    EXPECT_EQ(folders.Problems().size(), 4U);
    EXPECT_FALSE(fs::exists(services.shell.base));
}

TEST_F(StartUp, AnotherProgramVersionWritesAKeyThatTheApplicationDoesNotRead)
{
    services.utility.version = {2, 5, 10, 7};
    const app::CDataFolders folders = Prepared();
    app::CKelvoApp application;
    application.ReadConfiguration();

    EXPECT_EQ(folders.VersionText(), "2.05.0010.07");
    EXPECT_TRUE(services.registry.keys.contains("Software/Qorvel/Mobile/2.05.0010.07"));
    EXPECT_EQ(application.DbFolder(), "");

    services.registry.keys[kKey]["DB"] = services.folder.Path("deep/store/folder");
    application.ReadConfiguration();
    EXPECT_TRUE(fs::is_directory(application.DbFolder()));
}

TEST_F(StartUp, AlbumsAreTheSubFoldersButSample)
{
    app::CDataFolders folders = Prepared();
    const std::string photo = folders.FolderPath(app::DataFolderKind::photo);
    EXPECT_EQ(folders.CountAlbums(app::DataFolderKind::photo), -1);

    for (const char* name : {"b10", "B9", "sample"}) {
        fs::create_directory(photo + name);
    }
    support::WriteBytes(photo + "file", "");

    EXPECT_EQ(folders.CountAlbums(app::DataFolderKind::photo), 3);
    EXPECT_EQ(folders.AlbumNames(), (std::vector<std::string>{"B9", "b10", "sample"}));
    EXPECT_FALSE(folders.ListAlbums(photo + "none"));
    EXPECT_EQ(folders.AlbumNames().size(), 3U);
}

TEST_F(StartUp, TheCommandLineNamesTheDrive)
{
    struct Case {
        const char* line;
        bool launched;
        const char* drive;
    };
    for (const Case& test :
         {Case{"/pnplaunch:E", true, "e"}, Case{"/pnplaunch:", true, ""}, Case{"/LOAD", true, ""},
          Case{"/load /PnpLaunch:f", true, "f"}, Case{"/pnplaunch:g /load", true, "g"}, Case{"", false, ""},
          Case{"/", false, ""}, Case{"//", false, ""}, Case{"load", false, ""}}) {
        app::CKelvoApp application;
        application.ParseCommandLine(test.line);
        EXPECT_EQ(application.LaunchedBySuite(), test.launched) << test.line;
        EXPECT_EQ(application.PnpDrive(), test.drive) << test.line;
    }
}

TEST_F(StartUp, OneInstanceRunsAndStampsItsVersion)
{
    services.profiles.values["Manager/caption"] = "Kelvo";
    app::CKelvoApp application;

    EXPECT_EQ(application.InitInstance(""), app::StartResult::run);
    EXPECT_TRUE(application.LaunchedBySuite());
    EXPECT_EQ(application.WindowClass(), "QorvelVellum");
    EXPECT_EQ(application.Caption(), "Kelvo");
    EXPECT_EQ(services.registry.keys["Software/Qorvel/Vellum"]["CurVer"], "1.00.0000.01");
    EXPECT_EQ(services.registry.keys["Software/Qorvel/Vellum/1.00.0000.01"]["Path"],
              application.ProgramFolder());
    EXPECT_EQ(services.profiles.written, (std::vector<std::string>{"Manager/ver=1.00.0000.01"}));
    EXPECT_EQ(services.utility.trace, "font arial 11\n");

    services.messages.windows = {"QorvelVellum"};
    EXPECT_EQ(application.InitInstance(""), app::StartResult::secondInstance);
    services.messages.windows.clear();
    services.messages.registers = false;
    EXPECT_EQ(application.InitInstance(""), app::StartResult::failed);
    EXPECT_EQ(application.Message(), "Class Registration Failed");
}

TEST_F(StartUp, TheLauncherComesBackAtTheEndUnlessToldOtherwise)
{
    app::CKelvoApp application;
    application.ReadConfiguration();

    application.ExitInstance();
    EXPECT_EQ(services.shell.log,
              (std::vector<std::string>{"run \"" + services.folder.Path("program/Hubdeck.exe\"")}));
    services.shell.log.clear();
    for (const int mode : {1, 2}) {
        application.exitMode = mode;
        application.ExitInstance();
    }
    application.exitMode = 0;
    services.messages.windows = {"QorvelMobile"};
    application.ExitInstance();

    EXPECT_TRUE(services.shell.log.empty());
}
