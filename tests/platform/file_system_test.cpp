// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What every file system promises: one suite over the real one and the one that other tests use.
#include "platform_linux/linux_file_system.h"
#include "support/test_file_system.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

using platform::LockKind;
using platform::OpenMode;
using platform::Presence;
using support::ReadBytes;
using testing::UnorderedElementsAre;

std::span<const std::byte> Bytes(std::string_view text)
{
    return std::as_bytes(std::span(text));
}

template <class T> class FileSystem : public testing::Test
{
protected:
    support::CTempFolder folder;
    T files;

    std::string Read(platform::CFile& file, std::uint64_t offset, std::size_t length)
    {
        std::string text(length, '?');
        text.resize(file.ReadAt(offset, std::as_writable_bytes(std::span(text))));
        return text;
    }
};
using Implementations = testing::Types<platform_linux::CLinuxFileSystem, support::CTestFileSystem>;
TYPED_TEST_SUITE(FileSystem, Implementations);

TYPED_TEST(FileSystem, ReadsBackWhatWasWrittenAtAnyOffset)
{
    const auto file = this->files.Open(this->folder.Path("file"), OpenMode::createNew);
    ASSERT_TRUE(file);

    EXPECT_TRUE(file->WriteAt(3, Bytes("defg")) && file->WriteAt(0, Bytes("abc")));
    EXPECT_EQ(this->Read(*file, 2, 3), "cde");
    EXPECT_EQ(this->Read(*file, 5, 100), "fg");
    EXPECT_EQ(this->Read(*file, 7, 1), "");
    EXPECT_TRUE(file->Truncate(2) && file->Truncate(4));
    EXPECT_EQ(this->Read(*file, 0, 9), std::string("ab\0\0", 4));
}

TYPED_TEST(FileSystem, KeepsANoteWithTheFileThatChangesNeitherBytesNorStamp)
{
    const std::string path = this->folder.Make("file", "bytes");
    const auto file = this->files.Open(path, OpenMode::readWrite);
    const auto stamp = file->Stamp();

    EXPECT_EQ(file->Note("a-note"), "");
    const bool kept = file->KeepNote("a-note", "longer") && file->KeepNote("a-note", "text");
    EXPECT_EQ(this->files.Open(path, OpenMode::read)->Note("a-note"), kept ? "text" : "");
    EXPECT_EQ(file->Stamp(), stamp);
}

TYPED_TEST(FileSystem, OpensOnlyWhatTheModeAllows)
{
    struct Case {
        const char* name;
        OpenMode mode;
        bool opens;
        const char* contentAfter;
    };
    for (const Case& c :
         {Case{"old", OpenMode::read, true, "old"}, Case{"old", OpenMode::readWrite, true, "old"},
          Case{"old", OpenMode::createNew, false, "old"}, Case{"old", OpenMode::create, true, ""},
          Case{"new", OpenMode::read, false, ""}, Case{"new", OpenMode::readWrite, false, ""},
          Case{"pipe", OpenMode::read, false, nullptr}, Case{"pipe", OpenMode::create, false, nullptr},
          Case{"folder", OpenMode::read, false, nullptr}}) {
        const support::CTempFolder place;
        place.Make("old", "old");
        ASSERT_EQ(mkfifo(place.Path("pipe").c_str(), 0600) | mkdir(place.Path("folder").c_str(), 0700), 0);

        EXPECT_EQ(this->files.Open(place.Path(c.name), c.mode) != nullptr, c.opens) << c.name << int(c.mode);

        if (c.contentAfter) {
            EXPECT_EQ(ReadBytes(place.Path(c.name)), c.contentAfter) << c.name << int(c.mode);
        }
    }
}

TYPED_TEST(FileSystem, MarkChangedAlwaysGivesALaterStamp)
{
    const std::string path = this->folder.Make("file", "x");
    const platform::FileTime farAhead = 200'000'000'000'000'000;
    ASSERT_TRUE(this->files.SetFileTime(path, 0, farAhead));
    const auto file = this->files.Open(path, OpenMode::readWrite);

    std::vector<std::int64_t> times;
    for (int i = 0; i < 50; ++i) {
        times.push_back(file->Stamp()->modifiedNanoseconds);
        ASSERT_TRUE(file->MarkChanged());
    }

    EXPECT_TRUE(std::is_sorted(times.begin(), times.end(), std::less_equal<>()));
    EXPECT_GE(this->files.FindFirstFile(path)->lastWriteTime, farAhead);
}

TYPED_TEST(FileSystem, LocksExcludeUntilTheirOwnerIsGone)
{
    const std::string path = this->folder.Make("file", "x");
    auto first = this->files.Open(path, OpenMode::readWrite);
    const auto second = this->files.Open(path, OpenMode::readWrite);
    auto lock = this->files.LockFile(this->folder.Path("lock"), 0);

    EXPECT_TRUE(first->Lock(LockKind::shared, 0) && second->Lock(LockKind::shared, 0));
    EXPECT_FALSE(second->Lock(LockKind::exclusive, 5));
    first.reset();
    EXPECT_TRUE(second->Lock(LockKind::exclusive, 0));
    EXPECT_TRUE(lock && !this->files.LockFile(this->folder.Path("lock"), 5));
    lock.reset();
    EXPECT_TRUE(this->files.LockFile(this->folder.Path("lock"), 0));
    EXPECT_FALSE(this->files.LockFile(this->folder.Path("no/folder"), 0));
}

TYPED_TEST(FileSystem, TellsWhetherAPathStillNamesTheOpenFile)
{
    const std::string path = this->folder.Make("file", "old");
    const auto file = this->files.Open(path, OpenMode::read);
    const bool before = file->IsStill(path);

    ASSERT_TRUE(this->files.ReplaceFile(path, Bytes("new")));

    EXPECT_TRUE(before);
    EXPECT_FALSE(file->IsStill(path));
    EXPECT_EQ(this->Read(*file, 0, 9), "old");
}

TYPED_TEST(FileSystem, FindsFactsAndSetsTimesOneByOne)
{
    const std::string path = this->folder.Make("file", "12345");
    constexpr platform::FileTime kCreation = 127'000'000'012'345'678;
    constexpr platform::FileTime kWrite = 128'000'000'098'765'432;

    ASSERT_TRUE(this->files.SetFileTime(path, kCreation, 0));
    const auto first = this->files.FindFirstFile(path);
    ASSERT_TRUE(this->files.SetFileTime(path, 0, kWrite));
    const auto second = this->files.FindFirstFile(path);
    const auto parent = this->files.FindFirstFile(this->folder.Path());

    EXPECT_TRUE(first->isRegular && !first->isFolder && first->size == 5);
    EXPECT_EQ(first->creationTime, kCreation);
    EXPECT_GT(first->lastWriteTime, kWrite);
    EXPECT_EQ(second->creationTime, kCreation);
    EXPECT_EQ(second->lastWriteTime, kWrite);
    EXPECT_TRUE(parent->isFolder && !parent->isRegular && parent->creationTime != 0);
    EXPECT_FALSE(this->files.FindFirstFile(this->folder.Path("none")));
    EXPECT_FALSE(this->files.SetFileTime(this->folder.Path("none"), 0, kWrite));
}

TYPED_TEST(FileSystem, ListsAFolderInPiecesAndLooksThroughLinks)
{
    const std::string odd = "-b\xFF d";
    this->folder.Make(odd, "");
    const auto at = [&](const char* name) { return this->folder.Path(name); };
    ASSERT_EQ(mkdir(at("sub").c_str(), 0700) | mkfifo(at("pipe").c_str(), 0600) |
                  symlink("sub", at("to-sub").c_str()) | symlink(odd.c_str(), at("to-file").c_str()) |
                  symlink("nowhere", at("dangling").c_str()),
              0);

    const auto reader = this->files.ReadFolder(this->folder.Path());
    std::vector<platform::FolderEntry> entries;
    ASSERT_TRUE(reader);
    for (std::size_t seen = 0; reader->Read(2, entries); seen = entries.size())
        EXPECT_LE(entries.size(), seen + 2);

    std::vector<std::string> lines;
    for (const auto& entry : entries)
        lines.push_back(entry.name + (entry.isFolder ? " folder" : "") + (entry.isRegular ? " file" : "") +
                        (entry.isLink ? " link" : ""));
    EXPECT_THAT(lines, UnorderedElementsAre(odd + " file", "sub folder", "pipe", "to-sub folder link",
                                            "to-file file link", "dangling link"));
    EXPECT_FALSE(this->files.ReadFolder(at("none")));
    EXPECT_FALSE(this->files.ReadFolder(at(odd.c_str())));
}

TYPED_TEST(FileSystem, ReplacesAFileOnlyWhenWhatWasWrittenIsCommitted)
{
    const std::string path = this->folder.Make("file", "old");
    const std::string link = this->folder.Path("link");
    std::filesystem::create_symlink("file", link);
    const auto write = [&](bool commit) {
        const auto replacement = this->files.BeginReplacement(link);
        return replacement && replacement->File().WriteAt(0, Bytes("newer")) &&
               replacement->File().WriteAt(5, Bytes("!")) &&
               this->Read(replacement->File(), 0, 9) == "newer!" && ReadBytes(path) == "old" &&
               (!commit || replacement->Commit());
    };

    EXPECT_TRUE(write(false));
    EXPECT_EQ(ReadBytes(path), "old");
    EXPECT_TRUE(write(true));
    EXPECT_EQ(ReadBytes(path), "newer!");
    EXPECT_TRUE(std::filesystem::is_symlink(link));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(this->folder.Path()), {}), 2);
    EXPECT_FALSE(this->files.BeginReplacement(this->folder.Path("no/folder")));
}

TYPED_TEST(FileSystem, CopiesBytesAndTimeOverWhatWasThere)
{
    const std::string source = this->folder.Make("source", std::string(300'000, 'n'));
    const std::string target = this->folder.Make("target", "old");
    ASSERT_TRUE(this->files.SetFileTime(source, 0, 128'000'000'000'000'000));

    EXPECT_TRUE(this->files.CopyFile(source, target));
    EXPECT_FALSE(this->files.CopyFile(this->folder.Path("none"), target));
    EXPECT_FALSE(this->files.CopyFile(source, this->folder.Path("no/folder")));
    ASSERT_TRUE(this->files.CreateDirectory(this->folder.Path("sub")));
    EXPECT_FALSE(this->files.CopyFile(source, this->folder.Path("sub")));

    EXPECT_EQ(ReadBytes(target), ReadBytes(source));
    EXPECT_EQ(this->files.FindFirstFile(target)->lastWriteTime, 128'000'000'000'000'000);
}

TYPED_TEST(FileSystem, MovesAndDeletesFiles)
{
    const std::string a = this->folder.Make("a", "A");
    const std::string b = this->folder.Make("b", "B");

    EXPECT_FALSE(this->files.MoveFileNoReplace(a, b));
    EXPECT_EQ(ReadBytes(b), "B");
    EXPECT_TRUE(this->files.MoveFileNoReplace(b, this->folder.Path("c")));
    EXPECT_TRUE(this->files.MoveFile(a, this->folder.Path("c")));
    EXPECT_EQ(ReadBytes(this->folder.Path("c")), "A");
    EXPECT_EQ(this->files.FindPresence(a), Presence::missing);
    EXPECT_TRUE(this->files.DeleteFile(this->folder.Path("c")));
    EXPECT_FALSE(this->files.DeleteFile(this->folder.Path("c")));
    EXPECT_TRUE(this->files.CreateDirectory(this->folder.Path("d")));
    EXPECT_FALSE(this->files.CreateDirectory(this->folder.Path("d")));
    EXPECT_FALSE(this->files.DeleteFile(this->folder.Path("d")));
    EXPECT_FALSE(this->files.LastError().empty());
}

TYPED_TEST(FileSystem, ReplacesWhatALinkPointsTo)
{
    const std::string path = this->folder.Make("real", "a longer old text");
    const std::string link = this->folder.Path("link");
    ASSERT_EQ(symlink("real", link.c_str()) | symlink("circle", this->folder.Path("circle").c_str()), 0);

    EXPECT_TRUE(this->files.ReplaceFile(link, Bytes("new")));
    EXPECT_EQ(ReadBytes(path), "new");
    EXPECT_EQ(this->files.ResolveLink(link), this->files.ResolveLink(path));
    EXPECT_FALSE(this->files.ResolveLink(this->folder.Path("circle")));
    EXPECT_EQ(this->files.ReadWhole(link, 3), "new");
    EXPECT_FALSE(this->files.ReadWhole(link, 2));
    EXPECT_FALSE(this->files.ReadWhole(this->folder.Path("none"), 2));
}

TYPED_TEST(FileSystem, HasATemporaryFolderThatEndsWithIt)
{
    std::string path;
    {
        TypeParam another;
        path = another.GetTempPath();
        struct stat facts = {};

        ASSERT_EQ(stat(path.c_str(), &facts), 0);
        EXPECT_EQ(facts.st_mode & 0777, 0700);
        EXPECT_EQ(another.GetTempPath(), path);
        EXPECT_NE(this->files.GetTempPath(), path);
        support::WriteBytes(path + "/file", "x");
    }

    EXPECT_EQ(access(path.c_str(), F_OK), -1);
}

}  // namespace
