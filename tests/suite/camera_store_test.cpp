// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The library for mounted cameras, on real folders.
#include "suite/camera/msd_module.h"

#include "support/test_services.h"

#include <gmock/gmock.h>

#include <csignal>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/mount.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>

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

    // Copies one photo as a process of its own, after `prepare`; whether it ends as told.
    int CopyAlone(const std::function<bool()>& prepare, const std::function<bool()>& isAsTold)
    {
        const pid_t child = fork();
        if (child == 0)
            _exit(!prepare() ? kNotPossible : isAsTold() ? 0 : 1);
        int status = 0;
        waitpid(child, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    static constexpr int kNotPossible = 77;
    support::TestServices services;
    // Another file system than the card's where there is one, so that blocks cannot just be shared.
    support::CTempFolder card{fs::exists("/dev/shm") ? "/dev/shm" : "/tmp"};
    std::string copies = services.folder.Path("copies");
    suite::CMountedStore camera;
};

// From here on, this process cannot make files without a name, as on FAT.
bool ForbidNamelessFiles()
{
    constexpr auto kFlags = offsetof(seccomp_data, args) + 2 * sizeof(std::uint64_t);
    sock_filter rules[] = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_openat, 0, 3),
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, kFlags),
        BPF_JUMP(BPF_JMP | BPF_JSET | BPF_K, O_TMPFILE & ~O_DIRECTORY, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | EOPNOTSUPP),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    };
    const sock_fprog program = {std::size(rules), rules};
    return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
}

// From here on, this process has a file system of its own in that folder, of that size; readOnly it has
// nothing.
bool MountOwn(const std::string& folder, const std::string& size, unsigned long flags)
{
    const uid_t user = geteuid();
    if (unshare(user == 0 ? CLONE_NEWNS : CLONE_NEWUSER | CLONE_NEWNS) != 0)
        return false;
    if (user != 0)
        support::WriteBytes("/proc/self/uid_map", "0 " + std::to_string(user) + " 1");
    return mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
           mount("none", folder.c_str(), "tmpfs", flags, ("size=" + size).c_str()) == 0;
}

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

TEST_F(CameraStore, KeepsUnfinishedCopiesHiddenWhereFilesNeedANameAndLeavesNone)
{
    Put("DCIM/a.JPG", "a");
    Put("DCIM/b.MOV", "");
    fs::resize_file(card.Path("DCIM/b.MOV"), 6'000'000'000);
    static std::function<void()> duringCopy;
    const int ended = CopyAlone(ForbidNamelessFiles, [this] {
        Lines meanwhile;
        duringCopy = [&] {
            meanwhile = Copies();
            camera.Abort(0);
        };
        const bool first = Connect() == 1 && Copy(platform::kMsdPhoto, 1, "DSC") == 1;
        const bool second = camera.UploadFile(1, 1, platform::kMsdClip, copies + "/AVI.",
                                              [](int, int) { duringCopy(); }) == 1;
        camera.UnInitMsd();
        return first && !second && meanwhile.size() == 2 && meanwhile[0].starts_with(".kelvo-");
    });

    EXPECT_EQ(ended, 0);
    EXPECT_THAT(Copies(), ElementsAre("DSC.JPG"));
    EXPECT_EQ(support::ReadBytes(copies + "/DSC.JPG"), "a");
}

TEST_F(CameraStore, SaysThatTheDiskIsFullOrWrittenProtectedAndKeepsTheCopiesThatAreWhole)
{
    Put("DCIM/a.JPG", std::string(600'000, 'a'));
    Put("DCIM/b.JPG", std::string(600'000, 'b'));
    const int full = CopyAlone([this] { return MountOwn(copies, "1m", 0); },
                               [this] {
                                   const bool isAsTold =
                                       Connect() == 1 && Copy(platform::kMsdPhoto, 1, "A") == 1 &&
                                       Copy(platform::kMsdPhoto, 2, "B") == 0 &&
                                       camera.LastFailure() == platform::MsdFailure::diskFull;
                                   camera.UnInitMsd();
                                   const bool isClean = Copies() == Lines{"A.JPG"};
                                   return isAsTold && isClean && fs::remove(copies + "/A.JPG") &&
                                          Connect() == 1 && Copy(platform::kMsdPhoto, 2, "B") == 1;
                               });
    const int readOnly = CopyAlone([this] { return MountOwn(copies, "1m", MS_RDONLY); },
                                   [this] {
                                       return Connect() == 1 && Copy(platform::kMsdPhoto, 1, "A") == 0 &&
                                              camera.LastError() == "Read-only file system" &&
                                              camera.LastFailure() == platform::MsdFailure::other;
                                   });

    if (full == kNotPossible)
        GTEST_SKIP() << "no file systems of its own here";
    EXPECT_EQ(full, 0);
    EXPECT_EQ(readOnly, 0);
}

TEST_F(CameraStore, ASurveyCountsWithoutAConnectionAndNoFurtherThanItMay)
{
    EXPECT_FALSE(camera.Survey("Dev.ini"));
    Put("DCIM/1/a.JPG", "a");
    Put("DCIM/1/b.AVI", "b");
    ASSERT_EQ(Connect(), 1);
    const auto found = camera.Survey("Dev.ini");
    ASSERT_TRUE(found);
    EXPECT_EQ(found->root, card.Path());
    EXPECT_EQ(found->label, fs::path(card.Path()).filename());
    EXPECT_EQ(found->photos * 10 + found->clips, 11);
    EXPECT_FALSE(found->isCut);

    const suite::DeviceRules rules = suite::ReadDeviceFile("Dev.ini");
    for (const auto& [bounds, files] :
         {std::pair{suite::ListBounds{1, 100}, 1U}, {{100, 2}, 1U}, {{2, 100}, 2U}}) {
        const suite::StoreList list = suite::ListStore(card.Path(), rules, bounds);
        EXPECT_EQ(list.photos.size() + list.clips.size(), files);
        EXPECT_EQ(list.isCut, files < 2);
    }
}

TEST_F(CameraStore, TellsACardThatIsGoneFromAPhotoThatIs)
{
    Put("DCIM/a.JPG", "a");
    ASSERT_EQ(Connect(), 1);
    fs::remove(card.Path("DCIM/a.JPG"));
    EXPECT_EQ(Copy(platform::kMsdPhoto, 1, "A"), 0);
    EXPECT_EQ(camera.LastFailure(), platform::MsdFailure::other);
    Put("DCIM/a.JPG", "a");
    ASSERT_EQ(Connect(), 1);
    fs::remove_all(card.Path());
    EXPECT_EQ(Copy(platform::kMsdPhoto, 1, "A"), 0);
    EXPECT_EQ(camera.LastFailure(), platform::MsdFailure::storeGone);
    EXPECT_THAT(Copies(), IsEmpty());
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
