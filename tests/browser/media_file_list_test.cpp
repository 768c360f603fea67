// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/package_archive.h"
#include "browser/media_file_list.h"
#include "support/faulty_file_system.h"
#include "support/test_services.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <filesystem>

using namespace browser;

namespace
{

class MediaFileList : public testing::Test
{
protected:
    MediaFileList()
    {
        std::filesystem::create_directories(place);
        manager.Load();
    }
    std::string Make(const std::string& name, const std::string& content = "400x300") const
    {
        support::WriteBytes(place + "/" + name, content);
        return place + "/" + name;
    }
    std::string Names() const
    {
        std::string names;
        for (int i = 0; i < list.Count(); ++i) {
            names += list.Item(i).name + " ";
        }
        return names;
    }
    // Ticks until nothing is left; the items that got a thumbnail, in order.
    std::vector<int> Tick(VisibleRange visible)
    {
        std::vector<int> drawn;
        for (StepOutcome step{-1, true}; step.moreToDo;) {
            step = list.ThumbnailStep(true, visible);
            if (step.redraw >= 0) {
                drawn.push_back(step.redraw);
            }
        }
        return drawn;
    }
    ThumbnailResult Result(const std::string& name)
    {
        CMediaFileList fresh(&manager);
        fresh.Fill(place);
        for (int i = 0; i < fresh.Count(); ++i) {
            if (fresh.Item(i).name == name) {
                return fresh.CreateThumbnail(i).result;
            }
        }
        return ThumbnailResult::none;
    }

    support::TestServices services;
    const std::string place = services.folder.Path("photos");
    CThumbDbMgr manager{services.folder.Path("ThumbDB")};
    CMediaFileList list{&manager};
};

}  // namespace

TEST_F(MediaFileList, ShowsWhatTheFilterLetsThroughFoldersFirst)
{
    for (const char* name :
         {"b10.jpg", "b9.JPG", "c.avi", "d.mid", "e.jad", "f.txt", ".hidden.jpg", "g.asr"}) {
        Make(name);
    }
    std::filesystem::create_directory(place + "/z");

    EXPECT_TRUE(list.Fill(place));
    EXPECT_EQ(Names(), "b9.JPG b10.jpg c.avi d.mid g.asr ");
    EXPECT_EQ(list.ThumbnailsLeft(), 3);
    EXPECT_TRUE(list.SetFilter(kFilterPhoto, 1));
    EXPECT_FALSE(list.SetFilter(CMediaFileList::kKeep, 1));
    EXPECT_TRUE(list.SetFilter(5, CMediaFileList::kKeep));
    list.Fill(place);
    EXPECT_EQ(Names(), "z b9.JPG b10.jpg g.asr ");
    EXPECT_EQ(list.Filter(), 5);
    EXPECT_FALSE(list.Fill(place + "/none"));
    EXPECT_EQ(list.Count(), 0);
    EXPECT_FALSE(list.FillError().empty());
}

TEST_F(MediaFileList, ReadsALargeFolderInPiecesAndSortsItWhole)
{
    constexpr int kFiles = 5000;
    for (int i = 0; i < kFiles; ++i) {
        Make("p" + std::to_string(i * 7919 % kFiles) + ".jpg", "");
    }
    list.StartFill(place);
    int steps = 0;

    while (list.FillStep()) {
        ++steps;
    }

    EXPECT_GE(steps, 5);
    ASSERT_EQ(list.Count(), kFiles);
    for (int i = 0; i < kFiles; ++i) {
        ASSERT_EQ(list.Item(i).name, "p" + std::to_string(i) + ".jpg");
    }
}

TEST_F(MediaFileList, MakesVisibleThumbnailsFirstThenTheRestThenStops)
{
    for (const char* name : {"0.jpg", "1.jpg", "2.mid", "3.jpg", "4.jpg"}) {
        Make(name);
    }
    list.Fill(place);

    EXPECT_FALSE(list.ThumbnailStep(false, VisibleRange{0, 4}).moreToDo);
    EXPECT_FALSE(list.ThumbnailStep(true, std::nullopt).moreToDo);
    EXPECT_EQ(Tick({3, 4}), (std::vector<int>{3, 4, 0, 1}));
    EXPECT_EQ(list.ThumbnailsLeft(), 0);
    EXPECT_EQ(list.Item(0).thumbnail->width, 180);
    EXPECT_FALSE(list.Item(2).thumbnail);

    list.InvalidateThumbnail(3);
    EXPECT_EQ(Tick({3, 4}), (std::vector<int>{3}));
}

TEST_F(MediaFileList, AFailureIsPassedOverAndTriedAgainWhenTheFileChanges)
{
    Make("0.jpg", "broken");
    Make("1.jpg");
    Make("2.jpg", "broken too");
    Make("3.jpg");
    list.Fill(place);

    EXPECT_EQ(Tick({0, 0}), (std::vector<int>{1, 3}));
    EXPECT_EQ(list.ThumbnailsLeft(), 0);
    const auto opened = services.images.opened.size();
    EXPECT_TRUE(Tick({0, 3}).empty());
    EXPECT_EQ(services.images.opened.size(), opened) << "an unchanged failure costs no decoding";
    Make("0.jpg", "20x20 and more");
    EXPECT_EQ(Tick({0, 3}), (std::vector<int>{0}));
}

TEST_F(MediaFileList, ATickThatSpentItsTimeOnFailuresGoesOnInTheNext)
{
    for (int i = 0; i < 4; ++i) {
        Make(std::to_string(i) + ".jpg", "broken");
    }
    class CSlowImages : public support::CTestImages
    {
    public:
        explicit CSlowImages(support::CTestUtility& clock) : utility(clock) {}
        std::unique_ptr<platform::CImageSource> Open(const std::string& path) override
        {
            utility.now += 50;
            return CTestImages::Open(path);
        }
        support::CTestUtility& utility;
    } slow(services.utility);
    platform::Os().images = &slow;
    list.Fill(place);

    EXPECT_TRUE(list.ThumbnailStep(true, VisibleRange{0, 3}).moreToDo);

    EXPECT_EQ(slow.opened.size(), 1U);
    EXPECT_EQ(list.ThumbnailsLeft(), 3);
}

TEST_F(MediaFileList, StoredThumbnailsServeWhileTimesAndLengthAreTheSame)
{
    const std::string path = Make("a.jpg", "400x300 2004:05:17 10:22:31");

    EXPECT_EQ(Result("a.jpg"), ThumbnailResult::made);
    EXPECT_EQ(Result("a.jpg"), ThumbnailResult::reused);
    services.files.SetFileTime(path, 0, 123456789012345678);
    EXPECT_EQ(Result("a.jpg"), ThumbnailResult::made);
    services.files.SetFileTime(path, 123456789000000000, 0);
    EXPECT_EQ(Result("a.jpg"), ThumbnailResult::made);
    Make("a.jpg", "100x300 2004:05:17 10:22:31 longer");
    EXPECT_EQ(Result("a.jpg"), ThumbnailResult::made);
    EXPECT_EQ(Result("a.jpg"), ThumbnailResult::reused);

    archive::CPackageArchive stored;
    ASSERT_TRUE(stored.Open(services.folder.Path("ThumbDB/Tmb0.db"), archive::CPackageArchive::Mode::read));
    const auto& member = stored.Member(*stored.Find("a.jpg.jpg"));
    EXPECT_EQ(member.timeStampText, "2004/05/17");
    EXPECT_EQ(member.originalSize, std::filesystem::file_size(path));
    EXPECT_TRUE(std::filesystem::is_empty(services.files.GetTempPath()));
}

TEST_F(MediaFileList, AnEmptyFileKeepsItsStoredThumbnail)
{
    Make("a.jpg");
    Result("a.jpg");

    Make("a.jpg", "");

    EXPECT_EQ(Result("a.jpg"), ThumbnailResult::reused);
}

TEST_F(MediaFileList, NamesThatDifferInCaseKeepTheirOwnThumbnails)
{
    Make("A.jpg", "400x300");
    Make("a.jpg", "300x400");

    Result("A.jpg");
    EXPECT_EQ(Result("a.jpg"), ThumbnailResult::made);
    EXPECT_EQ(Result("A.jpg"), ThumbnailResult::reused);
    std::filesystem::rename(place + "/A.jpg", place + "/B.jpg");
    std::filesystem::remove(place + "/a.jpg");
    std::filesystem::rename(place + "/B.jpg", place + "/a.JPG");
    EXPECT_EQ(Result("a.JPG"), ThumbnailResult::reused)
        << "the renamed file's own member differs in case only";
}

TEST_F(MediaFileList, ADamagedArchiveIsReplacedAndAnEntryThatCannotBeReadIsMadeAnew)
{
    Make("a.jpg");
    const std::string archivePath = services.folder.Path("ThumbDB/Tmb0.db");
    manager.AddFolder(place);
    support::WriteBytes(archivePath, "not an archive at all");

    EXPECT_EQ(Result("a.jpg"), ThumbnailResult::made);
    EXPECT_EQ(Result("a.jpg"), ThumbnailResult::reused);
    std::string bytes = support::ReadBytes(archivePath);
    bytes.replace(bytes.size() - 8, 8, "damaged!");
    support::WriteBytes(archivePath, bytes);
    EXPECT_EQ(Result("a.jpg"), ThumbnailResult::made);
    EXPECT_EQ(Result("a.jpg"), ThumbnailResult::reused);
}

TEST_F(MediaFileList, ASoundMemberStaysWhenItCannotBeReadOrUnpackedJustNow)
{
    Make("a.jpg");
    Result("a.jpg");
    const std::string archivePath = services.folder.Path("ThumbDB/Tmb0.db");
    support::CFaultyFileSystem fullTemporaryFolder(services.files);
    fullTemporaryFolder.refused = {services.files.GetTempPath() + "/a.jpg.jpg"};
    support::CFaultyFileSystem failingDisk(services.files);
    failingDisk.badFrom = std::filesystem::file_size(archivePath) - 1;

    for (support::CFaultyFileSystem* faulty : {&fullTemporaryFolder, &failingDisk}) {
        {
            const support::CServicesGuard trouble(*faulty);
            Result("a.jpg");
        }

        EXPECT_EQ(Result("a.jpg"), ThumbnailResult::reused);
        archive::CPackageArchive stored;
        ASSERT_TRUE(stored.Open(archivePath, archive::CPackageArchive::Mode::read));
        EXPECT_EQ(stored.Count(), 1U);
    }
}

TEST_F(MediaFileList, OddEntriesOfAFolderDoNoHarm)
{
    Make("target.jpg");
    Make("none.txt");
    const std::string longName = std::string(251, 'n') + ".jpg";
    for (const std::string& name :
         {std::string("-dash.jpg"), std::string("\xff\xfe.jpg"), std::string("back\\slash.jpg"), longName}) {
        Make(name);
    }
    std::filesystem::create_symlink(place + "/target.jpg", place + "/link.gif");
    std::filesystem::create_symlink(place + "/none.txt", place + "/to-text.jpg");
    std::filesystem::create_symlink("loop.jpg", place + "/loop.jpg");
    std::filesystem::create_symlink("nowhere", place + "/dangling.jpg");
    ASSERT_EQ(mkfifo((place + "/pipe.jpg").c_str(), 0600), 0);
    std::filesystem::create_directory(place + "/folder.jpg");
    Make("vanishes.jpg");
    list.Fill(place);
    std::filesystem::remove(place + "/vanishes.jpg");

    Tick({0, list.Count() - 1});

    for (int i = 0; i < list.Count(); ++i) {
        const std::string& name = list.Item(i).name;
        const bool expected = name == "target.jpg" || name == "link.gif" || name == "-dash.jpg" ||
                              name == "\xff\xfe.jpg" || name == "back\\slash.jpg" || name == longName;
        EXPECT_EQ(list.Item(i).thumbnail != nullptr, expected) << name;
    }
    EXPECT_EQ(list.Count(), 11);
    EXPECT_EQ(Result(longName), ThumbnailResult::reused);
    EXPECT_EQ(Result("back\\slash.jpg"), ThumbnailResult::reused);
}

TEST_F(MediaFileList, ClipsAndHandsetImagesAreLoadedInTheirOwnWays)
{
    Make("clip.avi", "640x480");
    Make("handset.sss", "200x100");
    list.Fill(place);

    const ThumbnailOutcome clip = list.CreateThumbnail(0);
    const ThumbnailOutcome handset = list.CreateThumbnail(1);

    EXPECT_EQ(clip.source, platform::Extent{});
    EXPECT_EQ(clip.bitmap->height, 135);
    EXPECT_EQ(handset.bitmap->height, 90);
    EXPECT_FALSE(std::filesystem::exists(place + "/Src0.jpg"));
    EXPECT_FALSE(list.CreateThumbnail(-1).bitmap);
    EXPECT_FALSE(list.CreateThumbnail(2).bitmap);
}

TEST_F(MediaFileList, LetsGoOfBitmapsFarAwayAndTakesThemBackFromTheStore)
{
    for (int i = 0; i < 130; ++i) {
        Make(std::to_string(i) + ".jpg");
    }
    list.Fill(place);

    Tick({0, 3});
    std::vector<int> letGo;
    for (int i = 0; i < list.Count(); ++i) {
        if (!list.Item(i).thumbnail) {
            letGo.push_back(i);
        }
    }

    ASSERT_GE(letGo.size(), 30U);
    EXPECT_GT(letGo.front(), 3);
    EXPECT_TRUE(list.Item(letGo.front()).thumbnailDone);
    const int index = letGo.front();
    services.images.opened.clear();
    EXPECT_EQ(Tick({index, index}), (std::vector<int>{index}));
    EXPECT_EQ(services.images.opened.size(), 1U) << "from the store alone";
}

TEST_F(MediaFileList, ARefreshReadsAgainOnlyWhatHasChanged)
{
    const std::string changed = Make("changed.jpg");
    const std::string farChanged = Make("far.jpg");
    Make("broken.jpg", "none");
    Make("same.jpg");
    list.Fill(place);
    Tick({0, 3});
    list.FactsStep(10);
    const std::uint64_t bytes = list.KnownBytes();
    services.images.opened.clear();

    Make("changed.jpg", "40x30 and longer");
    services.files.SetFileTime(farChanged, 0, 123456789012345678);
    Make("0.jpg");
    list.Fill(place);

    EXPECT_EQ(Names(), "0.jpg broken.jpg changed.jpg far.jpg same.jpg ");
    EXPECT_FALSE(list.ItemsStayed());
    EXPECT_EQ(list.ThumbnailsLeft(), 1);
    EXPECT_EQ(list.KnownBytes(), bytes);
    EXPECT_TRUE(list.Item(2).thumbnail) << "on show until there is a new one";
    EXPECT_EQ(Tick({0, 2}), (std::vector<int>{0, 2}));
    EXPECT_EQ(services.images.opened.size(), 2U);
    EXPECT_FALSE(list.FactsStep(10));
    EXPECT_EQ(Tick({0, 2}), (std::vector<int>{3}));
    EXPECT_EQ(services.images.opened.back(), farChanged);
    EXPECT_EQ(list.KnownBytes(), bytes + 9 + 7);
    EXPECT_EQ(list.ThumbnailsLeft(), 0);

    Make("changed.jpg", "spoilt");
    list.Fill(place);
    Tick({0, 4});
    EXPECT_TRUE(list.ItemsStayed());
    EXPECT_FALSE(list.Item(2).thumbnail) << "a picture of what the file no longer holds";

    services.images.opened.clear();
    list.ForgetFailures();
    Tick({0, 4});
    EXPECT_EQ(services.images.opened.size(), 2U) << "both that failed";
}

TEST_F(MediaFileList, DeferredTextsAreSetWhenNothingElseIsLeft)
{
    const std::string path = Make("a.jpg");
    list.Fill(place);
    list.QueueEntryUpdate({place + "/other/b.jpg", "b.jpg.jpg", "lost", "", ""});
    list.QueueEntryUpdate({path, "a.jpg.jpg", "Caption", "2004/05/17", "Second"});

    Tick({0, 0});

    archive::CPackageArchive stored;
    ASSERT_TRUE(stored.Open(services.folder.Path("ThumbDB/Tmb0.db"), archive::CPackageArchive::Mode::read));
    EXPECT_EQ(stored.Member(0).caption, "Caption");
    EXPECT_EQ(stored.Member(0).secondText, "Second");
}

TEST_F(MediaFileList, SizesAreReadInStepsAndSummedOverFilesOnly)
{
    Make("a.jpg", "12345");
    Make("b.jpg", "123");
    std::filesystem::create_directory(place + "/folder");
    list.SetFilter(CMediaFileList::kKeep, 1);
    list.Fill(place);

    EXPECT_TRUE(list.FactsStep(2));
    EXPECT_EQ(list.KnownBytes(), 5U);
    EXPECT_FALSE(list.FactsStep(2));
    EXPECT_EQ(list.KnownBytes(), 8U);
}
