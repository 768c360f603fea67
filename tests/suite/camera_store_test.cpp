// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The library for mounted cameras, on real folders.
#include "suite/camera/msd_module.h"

#include "support/test_services.h"

#include <gmock/gmock.h>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

namespace
{

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;
using testing::UnorderedElementsAre;
using Lines = std::vector<std::string>;

class CameraStore : public testing::Test
{
protected:
    CameraStore()
    {
        setenv("KELVO_CAMERA_ROOT", card.Path().c_str(), 1);
        fs::create_directory(copies);
    }
    ~CameraStore() override { unsetenv("KELVO_CAMERA_ROOT"); }

    void Put(const std::string& name, const std::string& bytes)
    {
        fs::create_directories(fs::path(card.Path(name)).parent_path());
        support::WriteBytes(card.Path(name), bytes);
    }
    int Connect() { return camera.InitMsd("Dev.ini", 0, platform::kMsdAll); }
    int Count(int kind)
    {
        int count = -1;
        camera.GetFileCount(kind, &count);
        return count;
    }
    int Copy(int kind, unsigned number, const std::string& name)
    {
        return camera.UploadFile(1, number, static_cast<unsigned>(kind), copies + "/" + name + ".", nullptr);
    }
    Lines Copies() const
    {
        Lines names;
        for (const auto& entry : fs::directory_iterator(copies))
            names.push_back(entry.path().filename());
        std::sort(names.begin(), names.end());
        return names;
    }

    support::TestServices services;
    // Another file system than the card's where there is one, so that blocks cannot just be shared.
    support::CTempFolder card{fs::exists("/dev/shm") ? "/dev/shm" : "/tmp"};
    std::string copies = services.folder.Path("copies");
    suite::CMountedStore camera;
};

}  // namespace

TEST_F(CameraStore, ListsPhotosAndClipsOfAllFoldersInOrderAndCopiesThemWithTheirTimes)
{
    Put("DCIM/101b/b.jpg", "4");
    Put("DCIM/100A/B.JPG", "2");
    Put("DCIM/100A/a.Jpeg", "1");
    Put("DCIM/100A/b.JPG", "3");
    Put("DCIM/100A/clip.MP4", "clip");
    Put("Phone/dcim/IMG.heic", "5");
    for (const char* none : {"DCIM/100A/._B.JPG", "DCIM/100A/notes.txt", "Music/song.jpg", "root.jpg"})
        Put(none, "none");
    fs::create_directories(card.Path("DCIM/100A/folder.jpg"));
    fs::create_symlink("nowhere", card.Path("DCIM/100A/dangling.jpg"));
    fs::create_symlink("../100A", card.Path("DCIM/100A/circle"));
    mkfifo(card.Path("DCIM/100A/pipe.jpg").c_str(), 0600);
    const auto old = fs::file_time_type::clock::now() - std::chrono::hours(50000);
    fs::last_write_time(card.Path("DCIM/100A/a.Jpeg"), old);

    ASSERT_EQ(Connect(), 1);
    ASSERT_EQ(Count(platform::kMsdPhoto), 5);
    EXPECT_EQ(Count(platform::kMsdClip), 1);
    EXPECT_EQ(Count(platform::kMsdAll), 6);
    std::string order;
    for (unsigned number = 1; number <= 5; ++number) {
        EXPECT_EQ(Copy(platform::kMsdPhoto, number, "DSC" + std::to_string(number)), 1);
        order += support::ReadBytes(camera.UploadedPath());
    }
    EXPECT_EQ(Copy(platform::kMsdClip, 1, "AVI1"), 1);

    EXPECT_EQ(order, "12345");
    EXPECT_THAT(Copies(),
                ElementsAre("AVI1.MP4", "DSC1.Jpeg", "DSC2.JPG", "DSC3.JPG", "DSC4.jpg", "DSC5.heic"));
    EXPECT_EQ(fs::last_write_time(copies + "/DSC1.Jpeg"), old);
    for (const int wrong : {platform::kMsdAll, 0})
        EXPECT_EQ(Copy(wrong, 1, "X"), 0);
    EXPECT_EQ(Copy(platform::kMsdPhoto, 0, "X"), 0);
    EXPECT_EQ(Copy(platform::kMsdPhoto, 6, "X"), 0);
}

TEST_F(CameraStore, CopiesMoreThanItKeepsReadyByteForByteFromAnyPlaceOn)
{
    constexpr unsigned kFiles = 300;
    for (unsigned i = 0; i < kFiles; ++i)
        Put("DCIM/100/I" + std::to_string(1000 + i) + ".JPG", std::string(i * 1999, static_cast<char>(i)));
    ASSERT_EQ(Connect(), 1);

    for (unsigned number = 1; number <= kFiles; ++number)
        ASSERT_EQ(Copy(platform::kMsdPhoto, number, std::to_string(number)), 1) << camera.LastError();
    ASSERT_EQ(Copy(platform::kMsdPhoto, 7, "again"), 1);

    for (unsigned i = 0; i < kFiles; ++i)
        EXPECT_EQ(support::ReadBytes(copies + "/" + std::to_string(i + 1) + ".JPG"),
                  std::string(i * 1999, static_cast<char>(i)));
    EXPECT_EQ(Copies().size(), kFiles + 1);
}

TEST_F(CameraStore, NeverOverwritesAndNumbersATakenNameInstead)
{
    Put("DCIM/a.JPG", "new");
    support::WriteBytes(copies + "/DSC.JPG", "old");
    fs::create_symlink("nowhere", copies + "/DSC (2).JPG");
    ASSERT_EQ(Connect(), 1);

    EXPECT_EQ(Copy(platform::kMsdPhoto, 1, "DSC"), 1);

    EXPECT_THAT(camera.UploadedPath(), EndsWith("/DSC (3).JPG"));
    EXPECT_EQ(support::ReadBytes(copies + "/DSC.JPG"), "old");
    EXPECT_EQ(support::ReadBytes(copies + "/DSC (3).JPG"), "new");
}

TEST_F(CameraStore, FailsForWhatVanishedOrCannotBeWrittenAndLeavesNothingHalf)
{
    Put("DCIM/a.JPG", "a");
    Put("DCIM/b.JPG", std::string(3'000'000, 'b'));
    Put("DCIM/c.JPG", "c");
    ASSERT_EQ(Connect(), 1);
    fs::remove(card.Path("DCIM/a.JPG"));
    EXPECT_EQ(Copy(platform::kMsdPhoto, 1, "A"), 0);
    EXPECT_EQ(camera.LastError(), "No such file or directory");

    // As a disk that is full after the first million bytes.
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before = {};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small = {1'000'000, before.rlim_max};
    ASSERT_EQ(Connect(), 1);
    setrlimit(RLIMIT_FSIZE, &small);
    EXPECT_EQ(Copy(platform::kMsdPhoto, 1, "B"), 0);
    setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_EQ(camera.LastError(), "File too large");

    EXPECT_EQ(camera.UploadFile(1, 2, 1, copies + "/missing/C.", nullptr), 0);
    camera.UnInitMsd();
    EXPECT_THAT(Copies(), IsEmpty());
    EXPECT_EQ(Copy(platform::kMsdPhoto, 1, "C"), 0);
    EXPECT_EQ(Count(platform::kMsdAll), 0);
}

TEST_F(CameraStore, AbortEndsTheCopyInWorkUntilTheNextConnection)
{
    Put("DCIM/a.MOV", "");
    fs::resize_file(card.Path("DCIM/a.MOV"), 6'000'000'000);  // a hole, and nobody waits for its copy
    Put("DCIM/b.JPG", "b");
    ASSERT_EQ(Connect(), 1);
    static suite::CMountedStore* inWork = nullptr;
    inWork = &camera;

    const int result =
        camera.UploadFile(1, 1, platform::kMsdClip, copies + "/A.", [](int, int) { inWork->Abort(0); });

    EXPECT_EQ(result, 0);
    EXPECT_EQ(Copy(platform::kMsdPhoto, 1, "B"), 0);
    EXPECT_THAT(Copies(), IsEmpty());
    ASSERT_EQ(Connect(), 1);
    EXPECT_EQ(Copy(platform::kMsdPhoto, 1, "B"), 1);
}

TEST_F(CameraStore, DeletesOnlyListedFilesThatAreWhatTheyWere)
{
    Put("DCIM/1/a.JPG", "a");
    Put("DCIM/1/b.JPG", "b");
    Put("DCIM/1/c.AVI", "c");
    Put("DCIM/1/d.AVI", "d");
    Put("DCIM/1/notes.txt", "n");
    ASSERT_EQ(Connect(), 1);
    Put("DCIM/1/b.JPG", "another photo by now");
    Put("DCIM/1/new.JPG", "taken since");
    const auto left = [this] {
        Lines names;
        for (const auto& entry : fs::directory_iterator(card.Path("DCIM/1")))
            names.push_back(entry.path().filename());
        return names;
    };

    EXPECT_EQ(camera.DeleteMsdFile(platform::kMsdClip, 2), 1);
    EXPECT_THAT(left(), UnorderedElementsAre("a.JPG", "b.JPG", "c.AVI", "new.JPG", "notes.txt"));
    EXPECT_EQ(camera.DeleteMsdFile(platform::kMsdAll, 0), 0);
    EXPECT_THAT(left(), UnorderedElementsAre("b.JPG", "new.JPG", "notes.txt"));
}

TEST_F(CameraStore, IsFoundByRootFolderNamesAndExtensionsOfTheDeviceFile)
{
    Put("a.jpg", "in the root");
    Put("Pictures/b.ABC", "b");
    ASSERT_EQ(Connect(), 1);
    EXPECT_EQ(Count(platform::kMsdPhoto), 1) << "a root without a photo folder is one itself";

    unsetenv("KELVO_CAMERA_ROOT");
    EXPECT_EQ(Connect(), 0);
    services.profiles.values = {
        {"Device/Root", card.Path()}, {"Device/Folders", "misc, PICTURES"}, {"Files/Photos", " .Abc ,jpg"}};
    ASSERT_EQ(Connect(), 1);
    EXPECT_EQ(Count(platform::kMsdAll), 1);
    ASSERT_EQ(Copy(platform::kMsdPhoto, 1, "B"), 1);
    EXPECT_EQ(support::ReadBytes(copies + "/B.ABC"), "b");

    services.profiles.values["Device/Root"] = card.Path("gone");
    EXPECT_EQ(Connect(), 0);
    EXPECT_EQ(Count(platform::kMsdAll), 0);
}
