// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/thumbnail_store.h"
#include "photo/caption_history.h"
#include "photo_fixture.h"

#include <fstream>
#include <gmock/gmock.h>
#include <sys/stat.h>

using browser::FileTask;
using photo::PhotoTexts;
using testing::ElementsAre;

namespace
{

class Captions : public CPhotoFixture
{
protected:
    void FetchThumbnail(const std::string& path)
    {
        const auto facts = files.FindFirstFile(path);
        browser::CThumbnailStore store(Manager());
        if (!store.Fetch(path, *facts)) {
            platform::Bitmap bitmap;
            bitmap.width = bitmap.height = 1;
            bitmap.pixels.resize(4);
            store.Keep(path, bitmap, *facts, 0, "2001/02/03");
        }
    }
};

}  // namespace

TEST_F(Captions, APhotoWithoutAMemberGetsOneBeforeItsTextsAreStored)
{
    const std::string photo = Make("a.jpg");
    const std::string broken = Make("broken.jpg", "no picture");
    photo::CCaptionStore store(Manager());

    const auto report = store.Set({photo, broken, Path("none.jpg")}, {"Beach", "2004/05/17", {}}, host);
    store.Set({photo}, {{}, "", "second"}, host);

    EXPECT_EQ(report.stored, 2U);
    ASSERT_EQ(report.problems.size(), 1U);
    EXPECT_EQ(report.problems[0].path, Path("none.jpg"));
    EXPECT_EQ(store.Get(photo), (PhotoTexts{"Beach", "", "second"}));
    EXPECT_EQ(store.Get(broken), (PhotoTexts{"Beach", "2004/05/17", ""}));
}

TEST_F(Captions, AnEditedPhotoAndADamagedThumbnailKeepTheirTexts)
{
    const std::string edited = Make("edited.jpg");
    const std::string damaged = Make("damaged.jpg");
    Caption({edited, damaged}, "Beach");

    Make("edited.jpg", "500x300 grown");
    FetchThumbnail(edited);
    std::string bytes = support::ReadBytes(folder.Path("ThumbDB/Tmb0.db"));
    bytes.back() = static_cast<char>(~bytes.back());  // in the last member's data
    support::WriteBytes(folder.Path("ThumbDB/Tmb0.db"), bytes);
    for (const std::string& path : {edited, damaged}) {
        FetchThumbnail(path);
        FetchThumbnail(path);
    }

    EXPECT_EQ(CaptionOf(edited), "Beach");
    EXPECT_EQ(CaptionOf(damaged), "Beach");
}

TEST_F(Captions, ADateAloneGivesWayToTheNewPhotographsDate)
{
    const std::string photo = Make("a.jpg");
    photo::CCaptionStore(Manager()).Set({photo}, {{}, "2004/05/17", {}}, host);

    Make("a.jpg", "500x300 another");
    FetchThumbnail(photo);

    EXPECT_EQ(photo::CCaptionStore(Manager()).Get(photo).timeStamp, "2001/02/03");
}

TEST_F(Captions, APhotoWhoseArchiveIsLostGetsItsTextsBack)
{
    const std::string photo = Make("a.jpg");
    const std::string bare = Make("b.jpg", "300x300");
    Caption({photo, bare}, "Beach");
    photo::CCaptionStore(Manager()).Set({bare}, {"", "", {}}, host);
    std::ofstream(folder.Path("captions.tsv"), std::ios::app) << "a line that a kill cut o";
    Run({FileTask::rename, {photo}, Path("c.jpg"), {}, {}});

    std::filesystem::remove_all(folder.Path("ThumbDB"));
    std::filesystem::rename(folder.Path("p"), folder.Path("elsewhere"));
    for (const char* name : {"elsewhere/b.jpg", "elsewhere/c.jpg"})
        FetchThumbnail(folder.Path(name));

    EXPECT_EQ(CaptionOf(folder.Path("elsewhere/c.jpg")), "Beach");
    EXPECT_EQ(CaptionOf(folder.Path("elsewhere/b.jpg")), "");
}

TEST_F(Captions, TheBookStaysShortHoweverOftenACaptionChanges)
{
    browser::CCaptionBook book(stores.thumbnails);
    for (int i = 0; i < 1'200; ++i) {
        const browser::CaptionedFile file{"a%\t.jpg", 1, 2, {std::to_string(i), "", std::string(600, '\n')}};
        ASSERT_TRUE(book.Record(std::span(&file, 1)));
    }

    EXPECT_LT(std::filesystem::file_size(folder.Path("captions.tsv")), 600'000U);
    EXPECT_EQ(browser::CCaptionBook(stores.thumbnails).Find("a%\t.jpg", 1, 2),
              (PhotoTexts{"1199", "", std::string(600, '\n')}));
}

TEST_F(Captions, FollowTheirPhotosAndFoldersThroughTheProgramsOwnWork)
{
    std::filesystem::create_directories(folder.Path("other"));
    const std::string photo = Make("a.jpg");
    Caption({photo}, "Beach");

    Run({FileTask::rename, {photo}, Path("b.jpg"), {}, {}});
    EXPECT_EQ(CaptionOf(Path("b.jpg")), "Beach");
    Run({FileTask::copy, {Path("b.jpg")}, folder.Path("other"), {}, {}});
    EXPECT_EQ(CaptionOf(folder.Path("other/b.jpg")), "Beach");
    const auto moved = Run({FileTask::move, {Path("b.jpg")}, folder.Path(), {}, {}});
    EXPECT_EQ(CaptionOf(folder.Path("b.jpg")), "Beach");
    Undo(moved.undo);
    EXPECT_EQ(CaptionOf(Path("b.jpg")), "Beach");
    Run({FileTask::rename, {folder.Path("p")}, folder.Path("q"), {}, {}});
    EXPECT_EQ(CaptionOf(folder.Path("q/b.jpg")), "Beach");
    Run({FileTask::copy, {folder.Path("q")}, folder.Path("other"), {}, {}});
    EXPECT_EQ(CaptionOf(folder.Path("other/q/b.jpg")), "Beach");
    const auto copied = files.FindFirstFile(folder.Path("other/q/b.jpg"));
    EXPECT_TRUE(browser::CThumbnailStore(Manager()).Fetch(folder.Path("other/q/b.jpg"), *copied));
}

TEST_F(Captions, OfManyPhotosAreWrittenWithOneCompaction)
{
    std::vector<std::string> names;
    for (int i = 0; i < 20; ++i)
        names.push_back(std::to_string(i) + ".jpg");
    const auto photos = MakeAll(names);
    Caption(photos, "first");
    struct stat before {
    };
    stat(folder.Path("ThumbDB/Tmb0.db").c_str(), &before);

    Caption(photos, "second");

    // Each compaction puts a new file in the archive's place; one leaves room for one new number only.
    struct stat after {
    };
    stat(folder.Path("ThumbDB/Tmb0.db").c_str(), &after);
    EXPECT_NE(before.st_ino, after.st_ino);
    for (const std::string& path : photos)
        EXPECT_EQ(CaptionOf(path), "second");
}

TEST_F(Captions, TheHistoryHoldsEachCaptionOnceInItsOwnSpelling)
{
    const photo::CCaptionHistory history(stores.thumbnails);

    EXPECT_TRUE(history.Remember("Beach", false));  // makes the file, for a photo or not
    EXPECT_EQ(support::ReadBytes(folder.Path("cap_db.ini")), "[caption]\nCount=1\n1=Beach\n");
    profiles.values = {
        {"caption/Count", "3"}, {"caption/1", "Beach"}, {"caption/2", ""}, {"caption/3", "Beach"}};
    history.Remember("unused", false);
    history.Remember("Beach", true);
    EXPECT_THAT(history.Captions(), ElementsAre("Beach"));
    history.Remember("beach", true);
    history.Remember("two\nlines", true);
    history.Remember("", true);

    EXPECT_EQ(profiles.values["caption/count"], "4");
    EXPECT_EQ(profiles.values["caption/4"], "beach");
    EXPECT_EQ(profiles.values.size(), 6U);
}
