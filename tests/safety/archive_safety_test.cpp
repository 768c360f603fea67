// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/package_archive.h"
#include "platform_linux/linux_file_system.h"
#include "support/services_guard.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <atomic>
#include <csignal>
#include <ctime>
#include <functional>
#include <random>
#include <sched.h>
#include <sys/mman.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

using archive::CPackageArchive;
using Mode = CPackageArchive::Mode;

std::string DataOf(int step)
{
    std::mt19937 random(static_cast<unsigned>(step));
    std::string bytes(random() % 20'000, '\0');
    for (char& byte : bytes)
        byte = static_cast<char>(random());
    return bytes;
}

// What an archive should hold: name, data and caption of each member.
struct Held {
    std::string name, data, caption;
    bool operator==(const Held&) const = default;
};
using Contents = std::vector<Held>;

// Step `step` of an endless series of changes, done to the archive.
bool Change(const std::string& path, const std::string& sources, int step)
{
    CPackageArchive target;
    const std::string name = "m" + std::to_string(step);
    if (!target.Open(path, Mode::readWrite))
        return false;
    std::size_t first = 0;
    while (first < target.Count() && target.Member(first).deleted)
        ++first;
    switch (step % 5) {
    case 2:
        return target.Remove(first);
    case 4:
        return target.SetTexts(target.Count() - 1, name, std::nullopt, "x") && target.Close(true);
    default:
        support::WriteBytes(sources + '/' + name, DataOf(step));
        return target.AddFile(sources + '/' + name, {});
    }
}

// The same step, done to what it should hold.
void Change(Contents& contents, int step)
{
    const std::string name = "m" + std::to_string(step);
    switch (step % 5) {
    case 2:
        contents.erase(contents.begin());
        break;
    case 4:
        contents.back().caption = name;
        break;
    default:
        contents.push_back({name, DataOf(step), ""});
    }
}

Contents Read(const std::string& path)
{
    Contents contents;
    CPackageArchive source;
    EXPECT_TRUE(source.Open(path, Mode::read)) << source.Error();
    for (std::size_t i = 0; i < source.Count(); ++i) {
        if (source.Member(i).deleted)
            continue;
        Held held{source.Member(i).name, "", source.Member(i).caption};
        EXPECT_TRUE(source.ExtractToMemory(i, held.data)) << held.name;
        contents.push_back(held);
    }
    return contents;
}

class ArchiveSafety : public testing::Test
{
protected:
    // Runs the work in a process of its own with its own services; the process ends with its result.
    static pid_t Start(const std::function<bool()>& work)
    {
        const pid_t child = fork();
        if (child != 0)
            return child;
        int result = 1;
        {
            platform_linux::CLinuxFileSystem own;
            const support::CServicesGuard owned(own);
            result = work() ? 0 : 1;
        }
        _exit(result);
    }
    static int End(pid_t child)
    {
        int status = -1;
        waitpid(child, &status, 0);
        return status;
    }

    platform_linux::CLinuxFileSystem files;
    support::CServicesGuard guard{files};
    support::CTempFolder folder;
    const std::string path = folder.Path("p.db");
};

// The kernel kills the calling process after that time.
void DieAfter(long microseconds)
{
    sigevent event = {};
    event.sigev_notify = SIGEV_SIGNAL;
    event.sigev_signo = SIGKILL;
    timer_t timer = {};
    const itimerspec when = {{}, {0, microseconds * 1000}};
    if (timer_create(CLOCK_MONOTONIC, &event, &timer) != 0 || timer_settime(timer, 0, &when, nullptr) != 0)
        _exit(1);
}

}  // namespace

TEST_F(ArchiveSafety, AKillAtAnyInstantLeavesTheOldStateOrTheNewOne)
{
    void* const shared =
        mmap(nullptr, sizeof(std::atomic<int>), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    ASSERT_NE(shared, MAP_FAILED);
    auto& done = *new (shared) std::atomic<int>(0);
    ASSERT_TRUE(CPackageArchive().Open(path, Mode::create));
    std::mt19937 random(std::random_device{}());
    Contents expected;

    for (int round = 0, step = 0; round < 200; ++round) {
        const long lifetime = 100 + static_cast<long>(random() % (round % 4 == 0 ? 30'000 : 4'000));
        const pid_t child = Start([&] {
            DieAfter(lifetime);
            for (int next = step; Change(path, folder.Path(), next); done = ++next) {
            }
            return false;
        });
        const int status = End(child);
        ASSERT_TRUE(WIFSIGNALED(status)) << "a step failed after " << done;
        for (; step < done; ++step)
            Change(expected, step);
        Contents further = expected;
        Change(further, step);
        const Contents found = Read(path);
        ASSERT_TRUE(found == expected || found == further) << "step " << step << " lifetime " << lifetime;
        if (found == further) {
            expected = further;
            done = ++step;
        }
    }

    RecordProperty("steps", done);
    EXPECT_GT(done, 20) << "too slow a machine to tell anything";
    munmap(shared, sizeof(std::atomic<int>));
}

TEST_F(ArchiveSafety, ProcessesThatChangeOneArchiveAtOnceLoseNothing)
{
    constexpr int kEach = 30;
    ASSERT_TRUE(CPackageArchive().Open(path, Mode::create));
    const auto work = [&](const std::string& prefix) {
        bool done = true;
        for (int i = 0; i < kEach && done; ++i) {
            const std::string source = folder.Make(prefix + std::to_string(i), prefix);
            CPackageArchive target;
            done = target.Open(path, Mode::readWrite) && target.AddFile(source, {}) &&
                   (i % 5 != 0 || target.SetTexts(target.Count() - 1, prefix, "", "")) &&
                   target.Close(i % 5 == 0);
        }
        return done;
    };

    const pid_t first = Start([&] { return work("a"); });
    const pid_t second = Start([&] { return work("b"); });
    EXPECT_TRUE(work("c"));
    EXPECT_EQ(End(first), 0);
    EXPECT_EQ(End(second), 0);

    EXPECT_EQ(Read(path).size(), 3 * kEach);
    CPackageArchive target;
    ASSERT_TRUE(target.Open(path, Mode::read));
    for (int i = 0; i < kEach; ++i)
        for (const char* prefix : {"a", "b", "c"})
            EXPECT_TRUE(target.FindExact(prefix + std::to_string(i)));
}

TEST_F(ArchiveSafety, ADiskThatIsReallyFullLeavesTheOldState)
{
    // A small file system of this process alone.
    const bool isRoot = geteuid() == 0;
    if (unshare(isRoot ? CLONE_NEWNS : CLONE_NEWNS | CLONE_NEWUSER) != 0 ||
        mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0)
        GTEST_SKIP() << "mounting is not permitted";
    const std::string disk = folder.Path("disk");
    ASSERT_TRUE(files.CreateDirectory(disk));
    if (mount("tmpfs", disk.c_str(), "tmpfs", 0, "size=256k") != 0)
        GTEST_SKIP() << "mounting is not permitted";
    const std::string small = disk + "/p.db";
    Contents expected;
    CPackageArchive target;
    ASSERT_TRUE(target.Open(small, Mode::create));

    int step = 0;
    for (; step < 1000 && target.AddFile(folder.Make("m", DataOf(step)), {}); ++step)
        expected.push_back({"m", DataOf(step), ""});
    EXPECT_NE(target.Error().find("No space left"), std::string::npos) << target.Error();
    target.Close(false);
    EXPECT_EQ(Read(small), expected);
    ASSERT_TRUE(target.Open(small, Mode::readWrite));
    ASSERT_TRUE(target.SetTexts(0, "caption", "", ""));
    EXPECT_FALSE(target.Close(true));
    EXPECT_EQ(Read(small), expected);

    umount2(disk.c_str(), MNT_DETACH);
}
