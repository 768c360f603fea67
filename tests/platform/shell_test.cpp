// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/process.h"
#include "platform_linux/launch.h"
#include "platform_linux/linux_shell.h"
#include "platform_linux/volumes.h"
#include "support/temp_folder.h"

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

namespace fs = std::filesystem;
using platform::FileOperation;
using platform::KnownFolder;
using support::ReadBytes;
using testing::ElementsAre;
using testing::UnorderedElementsAre;

class Shell : public testing::Test
{
protected:
    support::CTempFolder folder;
    platform_linux::CLinuxShell shell;

    // Every path below `path`, with "/" behind folders and "@" behind links.
    std::vector<std::string> Tree(const std::string& path) const
    {
        std::vector<std::string> names;
        for (const auto& entry : fs::recursive_directory_iterator(path))
            names.push_back(fs::relative(entry.path().parent_path(), path).lexically_normal().string() + '/' +
                            entry.path().filename().string() +
                            (entry.is_symlink()     ? "@"
                             : entry.is_directory() ? "/"
                                                    : ""));
        return names;
    }
    bool Do(FileOperation operation, const std::string& source, const std::string& target = "",
            bool filesOnly = false)
    {
        return shell.SHFileOperation({operation, {source}, target, filesOnly});
    }
};

TEST_F(Shell, FindsTheFoldersOfTheUser)
{
    const std::string& home = folder.Path();
    fs::create_directories(folder.Path("conf"));
    folder.Make("conf/user-dirs.dirs",
                "# x\nXDG_MUSIC_DIR=\"$HOME/m\"\nXDG_DOCUMENTS_DIR=\"$HOME/My \\\"Docs\"\n");
    struct Case {
        KnownFolder folder;
        std::map<std::string, std::string> set;
        std::string expected;
    };
    for (const Case& c :
         {Case{KnownFolder::home, {}, home}, Case{KnownFolder::localAppData, {}, home + "/.local/share"},
          Case{KnownFolder::localAppData, {{"XDG_DATA_HOME", home + "/d//"}}, home + "/d"},
          Case{KnownFolder::localAppData, {{"XDG_DATA_HOME", "relative"}}, home + "/.local/share"},
          Case{KnownFolder::documents, {}, home + "/Documents"},
          Case{KnownFolder::documents, {{"XDG_CONFIG_HOME", home + "/conf"}}, home + "/My \"Docs"},
          Case{KnownFolder::documents,
               {{"XDG_CONFIG_HOME", home + "/conf"}, {"XDG_DOCUMENTS_DIR", home + "/x"}},
               home + "/x"},
          Case{KnownFolder::commonAppData, {{"XDG_DATA_DIRS", "rel::" + home + "/c:/e"}}, home + "/c"},
          Case{KnownFolder::commonAppData, {}, "/usr/local/share"}}) {
        std::map<std::string, std::string> all = {{"HOME", home},
                                                  {"XDG_DATA_HOME", ""},
                                                  {"XDG_CONFIG_HOME", ""},
                                                  {"XDG_DOCUMENTS_DIR", ""},
                                                  {"XDG_DATA_DIRS", ""}};
        for (const auto& [name, value] : c.set)
            all[name] = value;
        const tests::CEnvironment environment(all);

        EXPECT_EQ(shell.GetFolderPath(c.folder, true), c.expected);
        EXPECT_TRUE(fs::is_directory(c.expected)) << c.expected;
    }
    const tests::CEnvironment taken({{"XDG_DATA_HOME", folder.Make("file", "") + "/below"}});
    EXPECT_FALSE(shell.GetFolderPath(KnownFolder::localAppData, true));
    EXPECT_FALSE(shell.GetFolderPath(KnownFolder::windows, true));
}

TEST_F(Shell, CopiesIntoFoldersWithoutOverwriting)
{
    fs::create_directories(folder.Path("a/Sample/sub"));
    folder.Make("a/Sample/1", "new");
    folder.Make("a/Sample/2", "new");
    folder.Make("a/Sample/sub/3", "new");
    fs::create_symlink("1", folder.Path("a/Sample/link"));
    fs::create_symlink("nowhere", folder.Path("a/Sample/dangling"));
    fs::create_directories(folder.Path("b/Sample"));
    folder.Make("b/Sample/2", "old");
    fs::create_directories(folder.Path("c"));

    EXPECT_TRUE(Do(FileOperation::copy, folder.Path("a/Sample/"), folder.Path("c"), true));
    EXPECT_FALSE(Do(FileOperation::copy, folder.Path("a/Sample"), folder.Path("b")));
    EXPECT_FALSE(Do(FileOperation::copy, folder.Path("a"), folder.Path("a/Sample")));
    EXPECT_FALSE(Do(FileOperation::copy, folder.Path("a/none"), folder.Path("b")));

    EXPECT_THAT(Tree(folder.Path("c")),
                UnorderedElementsAre("./Sample/", "Sample/1", "Sample/2", "Sample/link", "Sample/dangling@"));
    EXPECT_THAT(Tree(folder.Path("b")),
                UnorderedElementsAre("./Sample/", "Sample/1", "Sample/2", "Sample/link", "Sample/dangling@",
                                     "Sample/sub/", "Sample/sub/3"));
    EXPECT_EQ(ReadBytes(folder.Path("b/Sample/2")), "old");
    EXPECT_EQ(fs::last_write_time(folder.Path("c/Sample/1")), fs::last_write_time(folder.Path("a/Sample/1")));
}

TEST_F(Shell, RemovesWholeFoldersButNothingBehindALink)
{
    fs::create_directories(folder.Path("kept"));
    folder.Make("kept/file", "x");
    fs::create_directories(folder.Path("gone/deep/-er"));
    fs::create_directory_symlink("../kept", folder.Path("gone/link"));
    fs::create_directory_symlink("kept", folder.Path("link"));

    EXPECT_TRUE(Do(FileOperation::remove, folder.Path("gone")));
    EXPECT_TRUE(Do(FileOperation::remove, folder.Path("link/")));
    for (const char* wrong : {"none", "kept/.", "kept/.."})
        EXPECT_FALSE(Do(FileOperation::remove, folder.Path(wrong))) << wrong;

    EXPECT_THAT(Tree(folder.Path()), UnorderedElementsAre("./kept/", "kept/file"));
}

TEST_F(Shell, MovesAndRenamesOntoFreeNamesOnlyAlsoToOtherFileSystems)
{
    const support::CTempFolder other("/dev/shm");
    fs::create_directories(folder.Path("a/sub"));
    folder.Make("a/sub/1", "A");
    fs::create_symlink("sub/1", folder.Path("a/link"));
    folder.Make("b", "B");
    fs::create_directory(other.Path("taken"));

    EXPECT_FALSE(Do(FileOperation::rename, folder.Path("b"), folder.Path("a/sub/1")));
    EXPECT_TRUE(Do(FileOperation::rename, folder.Path("b"), folder.Path("a/B")));
    EXPECT_TRUE(Do(FileOperation::move, folder.Path("a"), other.Path()));
    EXPECT_FALSE(Do(FileOperation::rename, other.Path("a/B"), folder.Path("none/b")));
    EXPECT_FALSE(Do(FileOperation::rename, folder.Make("c", "C"), other.Path("taken")));

    EXPECT_THAT(Tree(other.Path()),
                UnorderedElementsAre("./a/", "a/sub/", "a/sub/1", "a/link@", "a/B", "./taken/"));
    EXPECT_THAT(Tree(folder.Path()), UnorderedElementsAre("./c"));
}

TEST_F(Shell, PutsFilesIntoTheTrashOfTheirVolume)
{
    const tests::CEnvironment environment({{"XDG_DATA_HOME", folder.Path("data")}});
    const std::string longName(255, 'n');
    const std::string odd = folder.Make("a b%\xC3\xA9", "first");

    const bool first = Do(FileOperation::trash, odd);
    folder.Make("a b%\xC3\xA9", "second");
    const bool second = Do(FileOperation::trash, odd);
    const bool cut = Do(FileOperation::trash, folder.Make(longName, "x"));
    fs::create_directories(folder.Path("d/e"));
    fs::create_symlink("d", folder.Path("to-d"));
    const bool folders =
        Do(FileOperation::trash, folder.Path("to-d/e")) && Do(FileOperation::trash, folder.Path("to-d"));

    EXPECT_TRUE(first && second && cut && folders);
    EXPECT_FALSE(Do(FileOperation::trash, odd));
    const std::string trash = folder.Path("data/Trash");
    EXPECT_EQ(ReadBytes(trash + "/files/a b%\xC3\xA9"), "first");
    EXPECT_EQ(ReadBytes(trash + "/files/a b%\xC3\xA9.2"), "second");
    EXPECT_THAT(ReadBytes(trash + "/info/a b%\xC3\xA9.2.trashinfo"),
                testing::MatchesRegex("\\[Trash Info\\]\nPath=" + folder.Path() +
                                      "/a%20b%25%C3%A9\nDeletionDate=....-..-..T..:..:..\n"));
    EXPECT_TRUE(fs::is_directory(trash + "/files/e") && fs::is_symlink(trash + "/files/to-d"));
    EXPECT_THAT(ReadBytes(trash + "/info/e.trashinfo"), testing::HasSubstr("Path=" + folder.Path("d/e\n")));
    EXPECT_THAT(Tree(folder.Path()), testing::Not(testing::Contains("./d/e")));
}

TEST_F(Shell, UsesTheTrashAtTheTopOfAnotherVolume)
{
    const std::string user = std::to_string(geteuid());
    const std::optional<int> result = tests::RunOnSmallDisk([&](const std::string& disk) {
        support::WriteBytes(disk + "/a b", "x");
        fs::create_directories(disk + "/.Trash");
        const bool own =
            Do(FileOperation::trash, disk + "/a b") && fs::exists(disk + "/.Trash-" + user + "/files/a b");
        const std::string info = ReadBytes(disk + "/.Trash-" + user + "/info/a b.trashinfo");
        support::WriteBytes(disk + "/c", "x");
        chmod((disk + "/.Trash").c_str(), 01777);
        const bool shared =
            Do(FileOperation::trash, disk + "/c") && fs::exists(disk + "/.Trash/" + user + "/files/c");
        return (own ? 0 : 1) + (info.find("\nPath=a%20b\n") != info.npos ? 0 : 2) + (shared ? 0 : 4);
    });
    EXPECT_EQ(result.value_or(0), 0);
}

TEST(Launch, DividesACommandIntoWords)
{
    using platform_linux::SplitCommand;
    EXPECT_THAT(SplitCommand("  prog /load:1\t\"a b\" c\"d e\"f \"\" $x\\ "),
                ElementsAre("prog", "/load:1", "a b", "cd ef", "", "$x\\"));
    EXPECT_THAT(SplitCommand("\"/odd dir/prog"), ElementsAre("/odd dir/prog"));
    EXPECT_THAT(SplitCommand("  "), ElementsAre());
}

TEST_F(Shell, StartsProgramsDetachedAndSaysWhenThereIsNone)
{
    const std::string pipe = folder.Path("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    fs::create_directory(folder.Path("bin"));
    folder.Make("bin/xdg-open", "#!/bin/sh\necho \"opened $1\" > " + pipe + "\n");
    chmod(folder.Path("bin/xdg-open").c_str(), 0700);
    const tests::CEnvironment environment({{"PATH", folder.Path("bin") + ":" + std::getenv("PATH")}});

    EXPECT_TRUE(shell.WinExec("sh -c \"cut -d' ' -f6 /proc/self/stat > " + pipe + "\""));
    const pid_t session = std::atoi(ReadBytes(pipe).c_str());
    EXPECT_TRUE(shell.ShellExecute("-a \"b\""));
    const std::string opened = ReadBytes(pipe);

    EXPECT_NE(session, getsid(0));
    EXPECT_EQ(opened, "opened ./-a \"b\"\n");
    EXPECT_TRUE(waitpid(-1, nullptr, WNOHANG) == -1 && errno == ECHILD);
    for (const char* wrong : {"", "\"\"", "kelvo-no-such-program x", "/tmp"})
        EXPECT_FALSE(shell.WinExec(wrong)) << wrong;
}

TEST(Volumes, AreTheMountsThatHoldFiles)
{
    struct Case {
        const char* line;
        const char* mountPoint;
        bool holdsFiles;
    };
    for (const Case& c :
         {Case{"22 1 8:1 / / rw - ext4 /dev/sda1 rw", "/", true},
          Case{"22 1 0:30 / / rw - overlay overlay rw,lowerdir=x", "/", true},
          Case{"23 22 0:5 / /proc rw shared:5 - proc proc rw", "/proc", false},
          Case{"24 22 0:6 / /tmp rw shared:6 - tmpfs tmpfs rw", "/tmp", false},
          Case{"25 22 8:3 /@home /home rw shared:7 master:1 - btrfs /dev/sda3 rw", "/home", true},
          Case{"26 22 8:2 / /boot/efi rw - vfat /dev/sda2 rw", "/boot/efi", false},
          Case{"27 22 7:1 / /snap/x/1 ro - squashfs /dev/loop1 ro", "/snap/x/1", false},
          Case{"28 22 8:17 / /media/u/MY\\040CARD\\134 rw - vfat /dev/sdb1 rw", "/media/u/MY CARD\\", true},
          Case{"29 22 0:44 / /srv/share rw - nfs4 host:/x rw", "/srv/share", true},
          Case{"30 22 0:50 / /run/user/1000/gvfs rw - fuse.gvfsd-fuse gvfsd-fuse rw", "/run/user/1000/gvfs",
               false},
          Case{"31 22 0:51 / /mnt/phone rw - fuse.jmtpfs jmtpfs rw", "/mnt/phone", true}}) {
        const auto entries =
            platform_linux::ParseMountTable(std::string("nonsense\n") + c.line + "\n31 22 8:1 /\n");

        ASSERT_EQ(entries.size(), 1U) << c.line;
        EXPECT_EQ(entries[0].mountPoint, c.mountPoint);
        EXPECT_EQ(platform_linux::HoldsFiles(entries[0]), c.holdsFiles) << c.line;
    }
    // What this machine has is not known; it may be a root without a mount of its own.
    for (const platform::Volume& volume : platform_linux::MountedVolumes())
        EXPECT_TRUE(volume.mountPoint.starts_with('/') && !volume.label.empty()) << volume.mountPoint;
}

}  // namespace
