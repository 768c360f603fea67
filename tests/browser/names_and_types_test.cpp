// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/file_names.h"
#include "browser/list_file.h"
#include "browser/media_types.h"
#include "browser/thumbnail_maker.h"
#include "support/test_services.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

using namespace browser;

TEST(MediaTypes, AreToldByTheExtensionInAnyCase)
{
    for (const auto& [name, bits] :
         std::initializer_list<std::pair<const char*, unsigned>>{{"a.jpg", 1},
                                                                 {"A.JPEG", 1},
                                                                 {"x.y.rle", 1},
                                                                 {"clip.Mp4", 2},
                                                                 {"ring.mid", 4},
                                                                 {"s.sss", 16},
                                                                 {"app.jad", 0},
                                                                 {"c.asr", 0},
                                                                 {"jpg", 0},
                                                                 {"a.", 0},
                                                                 {"a.jpg.", 0},
                                                                 {"d.jpg/plain", 0},
                                                                 {".gif", 1}}) {
        EXPECT_EQ(TypeBits(name), bits) << name;
    }
}

TEST(Filters, ShowWhatTheirModeNames)
{
    struct Case {
        int mode;
        const char* shown;  // of a.jpg b.avi c.asr d.mid e.sss f.jad g
    };
    for (const Case& test : {Case{0, "abcdefg"}, Case{1, "ac"}, Case{2, "bc"}, Case{23, "abcde"}}) {
        const CPatternList patterns(FilterPatterns(test.mode));
        std::string shown;

        for (const char* name : {"a.jpg", "b.avi", "c.asr", "d.mid", "e.sss", "f.jad", "g"}) {
            shown += patterns.Matches(name) ? std::string(1, *name) : "";
        }

        EXPECT_EQ(shown, test.shown) << test.mode;
    }
    EXPECT_TRUE(FilterPatterns(23).ends_with("*.sss;;;*.asr"));
    EXPECT_TRUE(FilterPatterns(5).empty());
}

TEST(FileNames, AreHeldAgainstTheForbiddenCharacters)
{
    for (const char forbidden : std::string("/\\:*?\"<>|")) {
        EXPECT_FALSE(IsValidFileName(std::string("a") + forbidden + "b.jpg")) << forbidden;
    }
    EXPECT_TRUE(IsValidFileName("a b.jpg"));
}

TEST(SpecialPlaces, AreTheRecycleFolderOfADriveAndTheTwoShellPlaces)
{
    EXPECT_TRUE(IsSpecialPlace("C:\\Recycled"));
    EXPECT_TRUE(IsSpecialPlace("::{645FF040-5081-101B-9F08-00AA002F954E}"));
    EXPECT_FALSE(IsSpecialPlace("C:\\Recycled\\x"));
    EXPECT_FALSE(IsSpecialPlace("C:\\RECYCLED"));
}

TEST(NameOrder, CountsNumbersIgnoresCaseAndIsStrict)
{
    std::vector<std::string> names{"img10", "IMG2", "img2",  "img02",   "a",
                                   "",      "B",    "img2b", "img\xff", "img1"};

    std::ranges::sort(names, NameBefore);

    const std::vector<std::string> expected{"",      "a",    "B",     "img1",  "IMG2",
                                            "img02", "img2", "img2b", "img10", "img\xff"};
    EXPECT_EQ(names, expected);
    for (const std::string& name : names) {
        EXPECT_FALSE(NameBefore(name, name));
    }
}

TEST(Paths, AreTakenApartAtTheLastSeparator)
{
    EXPECT_EQ(FolderOf("/a"), "/");
    EXPECT_EQ(FolderOf("/a/b/"), "/a/b");
    EXPECT_EQ(FolderOf("a"), "");
    EXPECT_EQ(JoinPath("/", "a"), "/a");
    EXPECT_EQ(Extension("/x.y/a"), "");
}

TEST(ThumbnailSize, FitsTheBoxAndNeverGrows)
{
    struct Case {
        platform::Extent picture;
        platform::Extent expected;
    };
    for (const Case& test :
         {Case{{4000, 3000}, {180, 135}}, Case{{100, 50}, {100, 50}}, Case{{180, 100}, {180, 100}},
          Case{{3000, 4000}, {135, 180}}, Case{{179, 181}, {178, 180}}, Case{{60000, 2}, {180, 1}},
          Case{{1, 1}, {1, 1}}}) {
        EXPECT_EQ(FitInto(test.picture, 180, 180), test.expected) << test.picture.width;
    }
}

TEST(ListFiles, NumberTheirLinesAndCountThem)
{
    support::TestServices services;
    const std::string out = services.folder.Path("files.lst");
    std::filesystem::create_directories(services.folder.Path("folder.jpg"));
    const std::vector<std::string> selected{"/p/b.jpg", "/p/c.avi", "/p/a.JPG", "/p/d.jpg\nFile9=/etc/x.jpg"};

    EXPECT_EQ(WriteFileList(out, selected), 1);
    EXPECT_EQ(support::ReadBytes(out), "[Files]\nFile1=/p/b.jpg\nFile2=/p/a.JPG\nCount=2\n");
    EXPECT_EQ(WriteSelectionList(out, selected), 1);
    EXPECT_EQ(support::ReadBytes(out), "[Files]\nCount=3\nFile1=/p/b.jpg\nFile2=/p/c.avi\nFile3=/p/a.JPG\n");

    EXPECT_FALSE(IsPictureFile(services.folder.Path("folder.jpg")));
    EXPECT_EQ(WriteFileList("", selected), 0);
    EXPECT_EQ(WriteFileList(out, {}), 0);
    EXPECT_EQ(WriteSelectionList(services.folder.Path("none/x"), selected), 0);
}
