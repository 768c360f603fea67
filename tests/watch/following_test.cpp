// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Change notifications on the real file system, and the watcher threads over them.
#include "support/test_services.h"

#include "browser/list_watch.h"
#include "browser/tree_watch.h"
#include "platform_linux/drives.h"
#include "platform_linux/linux_change_notifications.h"

#include <gtest/gtest.h>

#include <array>
#include <condition_variable>
#include <dirent.h>
#include <mutex>
#include <sched.h>
#include <sys/resource.h>

using namespace platform;
namespace fs = std::filesystem;

namespace
{

constexpr int kLong = 20'000;  // milliseconds; only a failing test waits for so long

// The window of a test's own thread: counts what is posted, and answers sent messages while it is open.
class CWindow : public CMessageWindow
{
public:
    void PostMessage(std::uint32_t message) override
    {
        const std::lock_guard lock(mutex);
        ++posted[message];
        changed.notify_all();
    }
    int SendMessage(std::uint32_t, std::string& text) override
    {
        std::unique_lock lock(mutex);
        asked = true;
        changed.notify_all();
        changed.wait(lock, [this] { return answers; });
        text = path;
        return isOpen ? 1 : 0;
    }
    void SetPath(const std::string& wanted)
    {
        const std::lock_guard lock(mutex);
        path = wanted;
    }
    // Whether the message has been posted that many times in all.
    bool Heard(std::uint32_t message, int times, int milliseconds = kLong)
    {
        std::unique_lock lock(mutex);
        return changed.wait_for(lock, std::chrono::milliseconds(milliseconds),
                                [&] { return posted[message] >= times; });
    }
    bool IsAsked()
    {
        std::unique_lock lock(mutex);
        return changed.wait_for(lock, std::chrono::milliseconds(kLong), [&] { return asked; });
    }
    void Answer(bool open)
    {
        const std::lock_guard lock(mutex);
        answers = true;
        isOpen = open;
        changed.notify_all();
    }

    bool answers = true;

private:
    std::mutex mutex;
    std::condition_variable changed;
    std::map<std::uint32_t, int> posted;
    std::string path;
    bool asked = false;
    bool isOpen = true;
};

class CLockedUtility : public support::CTestUtility
{
public:
    using CTestUtility::CTestUtility;
    void OutputDebugString(const std::string& text) override
    {
        const std::lock_guard lock(mutex);
        CTestUtility::OutputDebugString(text);
    }

private:
    std::mutex mutex;
};

class Following : public testing::Test
{
protected:
    Following()
    {
        Os().changes = &changes;
        Os().utility = &utility;
        fs::create_directories(folder + "/sub");
        support::WriteBytes(folder + "/a.jpg", "1");
    }
    bool IsSignalled(CWaitable& object, int milliseconds = 0)
    {
        const std::array<CWaitable*, 1> objects = {&object};
        return changes.WaitForMultipleObjects(objects, milliseconds) == kWaitObject0;
    }
    std::unique_ptr<CChangeNotification> FollowList()
    {
        return changes.FindFirst(folder, WatchDepth::folderOnly,
                                 kNotifyChangeFileName | kNotifyChangeDirName | kNotifyChangeLastWrite);
    }

    support::TestServices services;
    CLockedUtility utility{services.profiles};
    platform_linux::CLinuxChangeNotifications changes;
    const std::string above = services.folder.Path("above");
    const std::string folder = above + "/photos";
};

}  // namespace

TEST_F(Following, AFolderTellsOfItsOwnFilesAndOfItsEnd)
{
    const struct {
        const char* what;
        std::function<void()> action;
        bool signalled = true;
        bool goesOn = true;
    } rows[] = {
        {"made", [&] { support::WriteBytes(folder + "/b.jpg", "1"); }},
        {"written", [&] { support::WriteBytes(folder + "/a.jpg", "12"); }},
        {"renamed", [&] { fs::rename(folder + "/b.jpg", folder + "/c.jpg"); }},
        {"moved away", [&] { fs::rename(folder + "/c.jpg", above + "/c.jpg"); }},
        {"moved in", [&] { fs::rename(above + "/c.jpg", folder + "/c.jpg"); }},
        {"removed", [&] { fs::remove(folder + "/c.jpg"); }},
        {"new time", [&] { services.files.SetFileTime(folder + "/a.jpg", 0, 123456789012345678); }},
        {"folder made", [&] { fs::create_directory(folder + "/new"); }},
        {"permissions", [&] { fs::permissions(folder, fs::perms::owner_all); }},
        {"read", [&] { support::ReadBytes(folder + "/a.jpg"); }, false},
        {"in a sub-folder", [&] { support::WriteBytes(folder + "/sub/x.jpg", "1"); }, false},
        {"beside it", [&] { support::WriteBytes(above + "/x.jpg", "1"), fs::remove(above + "/x.jpg"); },
         false},
        {"gone", [&] { fs::rename(folder, above + "/other"); }, true, false},
        {"replaced by a file", [&] { fs::remove_all(folder), support::WriteBytes(folder, "1"); }, true,
         false},
        {"gone with those above", [&] { fs::rename(above, services.folder.Path("moved")); }, true, false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        if (!fs::is_directory(folder)) {
            fs::remove(folder);
            fs::create_directories(folder);
        }
        const auto notification = FollowList();
        ASSERT_NE(notification, nullptr);

        row.action();

        EXPECT_EQ(IsSignalled(*notification), row.signalled);
        EXPECT_EQ(notification->FindNext(), row.goesOn);
    }
}

TEST_F(Following, AFolderRemovedUnderAnotherProgramIsGoneAtOnce)
{
    fs::remove_all(folder);
    fs::create_directory(folder);
    const auto notification = FollowList();
    DIR* const held = opendir(folder.c_str());

    fs::remove(folder);

    EXPECT_TRUE(IsSignalled(*notification));
    EXPECT_FALSE(notification->FindNext());
    closedir(held);
}

TEST_F(Following, WhatIsForgottenEndsNoWaitAndWhatFollowsDoes)
{
    const auto notification = FollowList();
    support::WriteBytes(folder + "/b.jpg", "1");

    EXPECT_TRUE(notification->Forget());
    EXPECT_FALSE(IsSignalled(*notification));
    support::WriteBytes(folder + "/c.jpg", "1");
    EXPECT_TRUE(IsSignalled(*notification, kLong));
    fs::rename(folder, above + "/other");
    EXPECT_FALSE(notification->Forget()) << "its end is not overlooked";
}

TEST_F(Following, ABurstEndsFewWaits)
{
    const auto notification = FollowList();
    const auto burst = [&](const std::string& name) {
        for (int i = 0; i < 1000; ++i) {
            support::WriteBytes(folder + "/" + name + std::to_string(i), "1");
        }
    };
    burst("first");
    EXPECT_TRUE(IsSignalled(*notification));
    burst("second");
    EXPECT_FALSE(IsSignalled(*notification)) << "not armed";

    notification->FindNext();
    EXPECT_FALSE(IsSignalled(*notification)) << "the next ones are being gathered";
    int signals = 0;
    while (IsSignalled(*notification, 100)) {
        notification->FindNext();
        ++signals;
    }

    EXPECT_GE(signals, 1);
    EXPECT_LE(signals, 6);
}

TEST_F(Following, ASubtreeTellsOfFoldersInTheFoldersFollowed)
{
    const auto first = changes.FollowFolder(folder);
    const auto notification = changes.FindFirst("/", WatchDepth::subtree, kNotifyChangeDirName);
    ASSERT_NE(notification, nullptr);
    auto second = changes.FollowFolder(folder);
    const auto gone = changes.FollowFolder(above + "/gone");
    const auto otherDrive = changes.FollowFolder("/proc/self");
    const auto signalledBy = [&](const std::function<void()>& action) {
        notification->FindNext();
        action();
        return IsSignalled(*notification, 60);
    };

    // The folders are watched, or seen to have changed meanwhile, a moment later.
    fs::create_directory(folder + "/early");
    EXPECT_TRUE(IsSignalled(*notification, kLong));
    while (signalledBy([] {})) {
    }

    EXPECT_TRUE(signalledBy([&] { fs::create_directory(folder + "/new"); }));
    EXPECT_TRUE(signalledBy([&] { fs::rename(folder + "/new", folder + "/named"); }));
    EXPECT_TRUE(signalledBy([&] { fs::remove(folder + "/named"); }));
    EXPECT_FALSE(signalledBy([&] { support::WriteBytes(folder + "/b.jpg", "1"); }));
    EXPECT_FALSE(signalledBy([&] { fs::create_directory(folder + "/sub/deep"); }));
    auto deep = changes.FollowFolder(folder + "/sub");
    while (signalledBy([] {})) {
    }
    EXPECT_TRUE(signalledBy([&] { fs::create_directory(folder + "/sub/deeper"); }));
    deep.reset();
    second.reset();
    EXPECT_FALSE(signalledBy([&] { fs::create_directory(folder + "/sub/deepest"); }));
    EXPECT_TRUE(signalledBy([&] { fs::create_directory(folder + "/again"); }))
        << "still followed by the first";
}

TEST_F(Following, WhatCannotBeFollowedOrStartedIsRefused)
{
    EXPECT_EQ(changes.FindFirst(above + "/none", WatchDepth::folderOnly, kNotifyChangeFileName), nullptr);
    EXPECT_EQ(changes.FindFirst(above + "/none", WatchDepth::subtree, kNotifyChangeDirName), nullptr);
    EXPECT_EQ(changes.FindFirst(folder + "/a.jpg", WatchDepth::folderOnly, kNotifyChangeFileName), nullptr);
    // The process has no more descriptors: as when the kernel's limit is reached.
    rlimit former{};
    getrlimit(RLIMIT_NOFILE, &former);
    const rlimit none{0, former.rlim_max};
    setrlimit(RLIMIT_NOFILE, &none);
    EXPECT_EQ(FollowList(), nullptr);
    EXPECT_EQ(changes.FindFirst(folder, WatchDepth::subtree, kNotifyChangeDirName), nullptr);
    EXPECT_EQ(changes.CreateEvent(), nullptr);
    setrlimit(RLIMIT_NOFILE, &former);
}

TEST_F(Following, WaitsEndWithTheLowestObjectThatIsSet)
{
    const auto first = changes.CreateEvent();
    const auto second = changes.CreateEvent();
    const std::array<CWaitable*, 2> both = {first.get(), second.get()};
    const std::array<CWaitable*, 2> oneMissing = {first.get(), nullptr};

    EXPECT_EQ(changes.WaitForMultipleObjects(both, 0), kWaitTimeout);
    second->Set();
    first->Set();
    first->Set();
    EXPECT_EQ(changes.WaitForMultipleObjects(oneMissing, 0), kWaitFailed);
    EXPECT_EQ(changes.WaitForMultipleObjects(both, kNoTimeOut), kWaitObject0);
    EXPECT_EQ(changes.WaitForMultipleObjects(both, kNoTimeOut), kWaitObject0 + 1);
    EXPECT_EQ(changes.WaitForMultipleObjects(both, 1), kWaitTimeout);
}

TEST_F(Following, ThreadsAreIdleUntilTheirEndIsWaitedFor)
{
    const auto stop = changes.CreateEvent();
    int policy = -1;
    const auto thread = changes.StartIdleThread([&] {
        policy = sched_getscheduler(0);
        return IsSignalled(*stop, kNoTimeOut) ? 0 : 1;
    });
    stop->Set();
    const std::array<CThread*, 1> threads = {thread.get()};
    changes.WaitForThreads(threads);
    EXPECT_EQ(policy, SCHED_IDLE);
}

TEST_F(Following, TheListHearsOfChangesThroughAllOfItsFoldersFates)
{
    CWindow window;
    browser::CListWatch watch(window);
    const auto isFollowed = [&](int times) {
        EXPECT_TRUE(window.Heard(browser::kListFollowingMessage, times));
        return watch.CheckFollowing() == browser::Following::yes;
    };
    window.SetPath(folder);
    watch.PathChanged();
    ASSERT_TRUE(isFollowed(1));

    support::WriteBytes(folder + "/b.jpg", "1");
    EXPECT_TRUE(window.Heard(browser::kListRefreshMessage, 1));
    window.SetPath(above);
    watch.PathChanged();
    ASSERT_TRUE(isFollowed(2));
    watch.SetRefreshing(true);
    watch.ForgetChanges();
    fs::create_directory(above + "/new");
    // Held back until then, or told of at once where the watcher is late.
    watch.SetRefreshing(false);
    EXPECT_TRUE(window.Heard(browser::kListRefreshMessage, 2));

    window.SetPath(folder);
    watch.PathChanged();
    ASSERT_TRUE(isFollowed(3));
    fs::rename(folder, above + "/other");
    EXPECT_TRUE(window.Heard(browser::kListRefreshMessage, 3));
    EXPECT_FALSE(isFollowed(4));
    // The watcher gives up on a folder that is not there, and another one takes over when it is.
    watch.PathChanged();
    EXPECT_FALSE(isFollowed(6));
    fs::rename(above + "/other", folder);
    watch.PathChanged();
    EXPECT_TRUE(isFollowed(7));
    support::WriteBytes(folder + "/c.jpg", "1");
    EXPECT_TRUE(window.Heard(browser::kListRefreshMessage, 4));
}

TEST_F(Following, TheTreeHearsOfFoldersOnItsDrives)
{
    const auto followed = changes.FollowFolder(folder);
    CWindow window;
    browser::CTreeWatch watch(window);
    watch.CreateFileChangeThreads();

    // The thread may come too late for the first ones.
    int made = 0;
    bool heard = false;
    while (!heard && made < 2000) {
        fs::create_directory(folder + "/" + std::to_string(made++));
        heard = window.Heard(browser::kTreeRefreshMessage, 1, 10);
    }

    EXPECT_TRUE(heard);
}

TEST_F(Following, AWatcherThatIsAskingEndsWhenItsWindowCloses)
{
    CWindow window;
    window.answers = false;
    browser::CListWatch watch(window);
    watch.PathChanged();
    ASSERT_TRUE(window.IsAsked());

    window.Answer(false);
    watch.StopWatcher();

    EXPECT_NE(utility.trace.find("WaitForMultipleObjects... OK !!!"), std::string::npos);
}

TEST(Drives, AreTheFileSystemsThatHoldFilesByTheirKind)
{
    const auto table = platform_linux::ParseMountTable("22 1 8:1 / / rw - ext4 /dev/sda1 rw\n"
                                                       "23 22 0:21 / /proc rw - proc proc rw\n"
                                                       "24 22 0:22 / /dev/shm rw - tmpfs tmpfs rw\n"
                                                       "25 22 0:23 / /tmp rw - tmpfs tmpfs rw\n"
                                                       "26 22 0:24 / /home/u/nas rw - nfs4 nas:/photos rw\n"
                                                       "27 22 0:25 / /home/u/far rw - fuse.sshfs u@far: rw\n"
                                                       "28 22 11:0 / /media/u/DISC ro - iso9660 /dev/sr0 ro\n"
                                                       "29 22 8:17 / /media/u/STICK rw - vfat /dev/sdb1 rw\n"
                                                       "30 22 8:2 / /home rw - ext4 /dev/sda2 rw\n"
                                                       "31 30 8:3 / /home rw - btrfs /dev/sda3 rw\n");
    const std::map<std::string, DriveType> expected = {{"/", DriveType::fixed},
                                                       {"/home", DriveType::fixed},
                                                       {"/home/u/far", DriveType::remote},
                                                       {"/home/u/nas", DriveType::remote},
                                                       {"/media/u/DISC", DriveType::optical},
                                                       {"/media/u/STICK", DriveType::removable},
                                                       {"/tmp", DriveType::ramDisk}};
    std::map<std::string, DriveType> found;
    for (const std::string& root : platform_linux::DriveRoots(table)) {
        found[root] = platform_linux::DriveTypeOf(root, table);
    }
    EXPECT_EQ(found, expected);
    EXPECT_EQ(platform_linux::DriveTypeOf("/nowhere", table), DriveType::noRoot);
    EXPECT_EQ(platform_linux::MountPointIn(table, "/home/u/nas"), "/home/u/nas");
    EXPECT_EQ(platform_linux::MountPointIn(table, "/home/u/nasty/x"), "/home");
    EXPECT_EQ(platform_linux::MountPointIn(table, "/homes"), "/");

    platform_linux::CLinuxChangeNotifications changes;
    std::string roots;
    const std::size_t needed = changes.GetLogicalDriveStrings(0, roots);
    EXPECT_GT(needed, 2U);
    EXPECT_TRUE(roots.empty());
    EXPECT_EQ(changes.GetLogicalDriveStrings(needed, roots), needed);
    EXPECT_EQ(roots.substr(roots.size() - 2), std::string(2, '\0'));
}
