// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What only real file systems do to one: kills, full disks, odd names, permissions, volumes that are away.
#include "platform/process.h"
#include "platform_linux/linux_file_system.h"
#include "support/temp_folder.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace
{

using platform::OpenMode;
using platform::Presence;
using support::ReadBytes;

std::span<const std::byte> Bytes(std::string_view text)
{
    return std::as_bytes(std::span(text));
}

std::size_t CountEntries(const std::string& folder)
{
    const std::filesystem::directory_iterator entries(folder);
    return static_cast<std::size_t>(std::distance(begin(entries), end(entries)));
}

class LinuxFiles : public testing::Test
{
protected:
    support::CTempFolder folder;
    platform_linux::CLinuxFileSystem files;
};

TEST_F(LinuxFiles, AKillLeavesTheOldFileOrTheNewOne)
{
    const std::string path = folder.Make("file", std::string(200'000, 'a'));
    const std::string copied = folder.Make("copied", std::string(200'000, 'b'));
    const std::string source = folder.Make("source", std::string(200'000, 'c'));
    for (int round = 0; round < 40; ++round) {
        tests::CChild writer([&](const auto& step) {
            for (char letter = 'a';; letter = letter == 'z' ? 'a' : static_cast<char>(letter + 1)) {
                if (!files.ReplaceFile(path, Bytes(std::string(200'000, letter))) ||
                    !files.CopyFile(source, copied))
                    return 1;
                step();
            }
        });
        ASSERT_TRUE(writer.Await(1 + round % 4));

        writer.Kill();

        for (const std::string& bytes : {ReadBytes(path), ReadBytes(copied)}) {
            ASSERT_EQ(bytes.size(), 200'000U);
            ASSERT_EQ(std::count(bytes.begin(), bytes.end(), bytes[0]), 200'000);
        }
    }
}

TEST_F(LinuxFiles, AFullDiskLeavesTheOldFileAndNothingElse)
{
    const std::string large = folder.Make("large", std::string(1 << 20, 'n'));

    const std::optional<int> result = tests::RunOnSmallDisk([&](const std::string& small) {
        const std::string path = small + "/file";
        support::WriteBytes(path, "old");
        const bool refused = !files.ReplaceFile(path, Bytes(ReadBytes(large))) &&
                             files.LastError() == "No space left on device" && !files.CopyFile(large, path) &&
                             !files.CopyFile(large, small + "/other");
        const bool unharmed = ReadBytes(path) == "old" && CountEntries(small) == 1;
        return (refused ? 0 : 1) + (unharmed ? 0 : 2) + (files.ReplaceFile(path, Bytes("new")) ? 0 : 4);
    });

    if (!result)
        GTEST_SKIP() << "no right to mount a small file system";
    EXPECT_EQ(*result, 0);
}

TEST_F(LinuxFiles, TakesEveryNameThatTheKernelTakes)
{
    const std::string source = folder.Make("source", "bytes");
    std::string deep = folder.Path();
    while (deep.size() < 3'800)
        ASSERT_TRUE(files.CreateDirectory(deep += '/' + std::string(200, 'd')));
    for (const std::string& path :
         {folder.Path(std::string(255, 'n')), folder.Path("-rf"), folder.Path(" two  words "),
          folder.Path("\xC3\xA9t\xC3\xA9"), folder.Path("\xFF\xFE\n"), deep + "/file"}) {
        EXPECT_TRUE(files.CopyFile(source, path)) << path << files.LastError();
        EXPECT_TRUE(files.ReplaceFile(path, Bytes("new"))) << path;
        EXPECT_EQ(files.ReadWhole(path, 10), "new");
        EXPECT_TRUE(files.MoveFileNoReplace(path, folder.Path("moved")) &&
                    files.DeleteFile(folder.Path("moved")));
    }
}

TEST_F(LinuxFiles, NeverCutsAPathOff)
{
    const std::string tooLong = folder.Path() + std::string(5'000, '/') + "file";
    const std::string zero = folder.Path(std::string("file\0tail", 9));

    EXPECT_FALSE(files.Open(tooLong, OpenMode::create));
    EXPECT_EQ(files.LastError(), "File name too long");
    for (const std::string& path : {tooLong, zero})
        EXPECT_FALSE(files.Open(path, OpenMode::create) || files.ReplaceFile(path, Bytes("x")) ||
                     files.CreateDirectory(path) || files.LockFile(path, 0) || files.FindFirstFile(path));

    EXPECT_EQ(CountEntries(folder.Path()), 0U);
}

TEST_F(LinuxFiles, NeverWaitsForAPipeNorReplacesSpecialFiles)
{
    const std::string pipe = folder.Path("pipe");
    const std::string file = folder.Make("file", "x");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);

    for (const std::string& path : {pipe, std::string("/dev/null"), std::string("/dev/zero")}) {
        EXPECT_FALSE(files.ReadWhole(path, 10) || files.CopyFile(path, file) || files.CopyFile(file, path) ||
                     files.ReplaceFile(path, Bytes("x")))
            << path;
        EXPECT_FALSE(files.FindFirstFile(path)->isRegular);
    }

    EXPECT_EQ(ReadBytes(file), "x");
}

TEST_F(LinuxFiles, KeepsModeAndCreationTimeOfWhatItReplaces)
{
    const std::string path = folder.Make("file", "old");
    const std::string source = folder.Make("source", "new");
    ASSERT_EQ(chmod(path.c_str(), 0640) | chmod(source.c_str(), 0700), 0);
    if (!files.SetFileTime(path, 127'000'000'012'345'678, 0))
        GTEST_SKIP() << "no extended attributes here: " << files.LastError();
    char recorded[32] = {};

    ASSERT_TRUE(files.ReplaceFile(path, Bytes("newer")) && files.CopyFile(source, path));
    ASSERT_TRUE(files.CopyFile(source, folder.Path("fresh")));

    EXPECT_GT(getxattr(path.c_str(), "user.kelvo.creation-time", recorded, sizeof recorded), 0);
    EXPECT_STREQ(recorded, "127000000012345678");
    EXPECT_EQ(files.FindFirstFile(path)->creationTime, 127'000'000'012'345'678U);
    struct stat facts = {};
    EXPECT_TRUE(stat(path.c_str(), &facts) == 0 && (facts.st_mode & 0777) == 0640);
    EXPECT_TRUE(stat(folder.Path("fresh").c_str(), &facts) == 0 && (facts.st_mode & 0777) == 0700);
    for (const char* wrong : {"", "12x", " 12", "-1", "99999999999999999999999"}) {
        ASSERT_EQ(setxattr(path.c_str(), "user.kelvo.creation-time", wrong, strlen(wrong), 0), 0);
        EXPECT_GT(files.FindFirstFile(path)->creationTime, 130'000'000'000'000'000U) << wrong;
    }
}

TEST_F(LinuxFiles, LooksUpACreationTimeAgainOnlyWhereAChangeIsSeen)
{
    const std::string fresh = folder.Make("file", "old");
    if (!files.SetFileTime(fresh, 127'000'000'012'345'678, 0))
        GTEST_SKIP() << "no extended attributes here: " << files.LastError();
    const std::string settled = "/etc/passwd";
    for (const auto& [path, isKept] : {std::pair{fresh, false}, {settled, true}}) {
        const platform::FileFacts facts = files.FindFirstFile(path).value();
        platform::FileFacts known = facts;
        known.creationTime = 42;

        EXPECT_EQ(files.FindFirstFileAgain(path, known)->creationTime, isKept ? 42 : facts.creationTime)
            << path;
        ++known.lastWriteTime;
        EXPECT_EQ(files.FindFirstFileAgain(path, known)->creationTime, facts.creationTime) << path;
    }
}

TEST_F(LinuxFiles, RespectsWhatMayNotBeWrittenOrRead)
{
    const std::string shut = folder.Path("shut");
    ASSERT_TRUE(files.CreateDirectory(shut));
    support::WriteBytes(shut + "/file", "old");
    const std::string guarded = folder.Make("guarded", "old");
    ASSERT_EQ(chmod(folder.Path().c_str(), 0777) | chmod(guarded.c_str(), 0444) | chmod(shut.c_str(), 0), 0);

    const int result = tests::RunAsPlainUser([&] {
        const bool refused = !files.ReplaceFile(guarded, Bytes("new")) && !files.ReadFolder(shut) &&
                             !files.ReplaceFile(shut + "/file", Bytes("new")) &&
                             files.LastError() == "Permission denied";
        const bool unreachable = files.FindPresence(shut + "/file") == Presence::unreachable &&
                                 files.FindPresence(shut) == Presence::present;
        return (refused ? 0 : 1) + (unreachable ? 0 : 2);
    });

    EXPECT_EQ(result, 0);
    EXPECT_EQ(chmod(shut.c_str(), 0700), 0);
    EXPECT_EQ(ReadBytes(guarded) + ReadBytes(shut + "/file"), "oldold");
    EXPECT_EQ(CountEntries(folder.Path()), 2U);
}

TEST_F(LinuxFiles, AFileIsMissingOnlyWhereItsVolumeIs)
{
    const tests::CEnvironment environment({{"XDG_RUNTIME_DIR", folder.Path()}});
    std::filesystem::create_directories(folder.Path("gvfs/empty"));
    std::filesystem::create_directories(folder.Path("gvfs/mounted/sub"));
    folder.Make("file", "x");
    for (const auto& [link, end] :
         {std::pair{"into-away", "gvfs/away/photos"}, {"into-none", "none"}, {"circle", "circle"}})
        ASSERT_EQ(symlink(end, folder.Path(link).c_str()), 0);
    struct Case {
        std::string path;
        Presence presence;
    };

    for (const Case& c :
         {Case{"file", Presence::present}, Case{"none", Presence::missing},
          Case{"none/below", Presence::missing}, Case{"file/below", Presence::missing},
          Case{"gvfs/mounted/none.jpg", Presence::missing},
          Case{"gvfs/empty/none.jpg", Presence::unreachable},
          Case{"gvfs/away/none.jpg", Presence::unreachable}, Case{"gvfs/away", Presence::unreachable},
          Case{"gvfs", Presence::present}, Case{"into-away/none.jpg", Presence::unreachable},
          Case{"into-away", Presence::unreachable}, Case{"into-none", Presence::missing},
          Case{"sub/../gvfs/mounted/../away/x", Presence::unreachable},
          Case{"circle/x", Presence::unreachable}})
        EXPECT_EQ(files.FindPresence(folder.Path(c.path)), c.presence) << c.path;
    EXPECT_EQ(files.FindPresence("/mnt/kelvo-no-such-volume/x"), Presence::unreachable);
    EXPECT_EQ(files.FindPresence("/media/nobody/kelvo-no-such-volume/x"), Presence::unreachable);
    EXPECT_EQ(files.FindPresence("relative-none"), Presence::missing);
}

TEST_F(LinuxFiles, ALockEndsWithItsProcess)
{
    const std::string path = folder.Path("lock");
    tests::CChild holder([&](const auto& step) {
        const auto lock = files.LockFile(path, 0);
        step();
        return lock ? pause() : 1;
    });
    ASSERT_TRUE(holder.Await(1));
    const bool whileAlive = files.LockFile(path, 5) != nullptr;

    holder.Kill();

    EXPECT_FALSE(whileAlive);
    EXPECT_TRUE(files.LockFile(path, 0));
}

TEST_F(LinuxFiles, SweepsTheTemporaryFoldersOfKilledProcessesOnly)
{
    const tests::CEnvironment environment({{"XDG_RUNTIME_DIR", folder.Path()}});
    const auto hold = [&](const auto& step) {
        support::WriteBytes(files.GetTempPath() + "/file", "x");
        step();
        return pause();
    };
    tests::CChild killed(hold);
    ASSERT_TRUE(killed.Await(1));
    tests::CChild living(hold);
    ASSERT_TRUE(living.Await(1));
    killed.Kill();

    const std::string own = files.GetTempPath();

    EXPECT_TRUE(own.starts_with(folder.Path("kelvo/")));
    EXPECT_EQ(CountEntries(folder.Path("kelvo")), 3U);  // the living one's, ours and the lock
}

TEST_F(LinuxFiles, TrustsNoRunTimeFolderThatOthersMayWriteTo)
{
    const std::string open = folder.Path("open");
    ASSERT_TRUE(files.CreateDirectory(open));
    ASSERT_EQ(chmod(open.c_str(), 0777) | symlink("open", folder.Path("link").c_str()), 0);
    for (const std::string& runtime :
         {open, folder.Path("link"), folder.Path("none"), std::string("relative")}) {
        const tests::CEnvironment environment({{"XDG_RUNTIME_DIR", runtime}});
        platform_linux::CLinuxFileSystem other;

        EXPECT_FALSE(other.GetTempPath().starts_with(folder.Path())) << runtime;
        EXPECT_FALSE(other.GetTempPath().empty());
    }
    EXPECT_EQ(CountEntries(open), 0U);
}

}  // namespace
