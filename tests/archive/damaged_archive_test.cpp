// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive_fixture.h"

#include <filesystem>
#include <zlib.h>

using archive::CPackageArchive;
using support::ReadBytes;
using support::WriteBytes;

namespace
{

class DamagedArchive : public CArchiveFixture
{
};

std::string Compressed(const std::string& data)
{
    uLongf size = compressBound(data.size());
    std::string stream(size, '\0');
    compress(reinterpret_cast<Bytef*>(stream.data()), &size, reinterpret_cast<const Bytef*>(data.data()),
             data.size());
    return stream.substr(0, size);
}

}  // namespace

TEST_F(DamagedArchive, CutAnywhereItKeepsTheMembersBeforeTheCutAndTakesNewOnes)
{
    const std::string records[] = {HandMade{.name = "a", .caption = "1"}.Bytes(),
                                   HandMade{.name = "b"}.Bytes(),
                                   HandMade{.name = "c", .second = "last"}.Bytes()};
    const std::string whole = HandMadeHeader(3) + records[0] + records[1] + records[2];
    const std::string source = folder.Make("new", "hello");

    for (std::size_t cut = 0; cut <= whole.size(); ++cut) {
        WriteBytes(path, whole.substr(0, cut));
        std::string expected;
        for (std::size_t i = 0, end = 16; i < 3 && (end += records[i].size()) <= cut; ++i)
            expected += std::string(1, "abc"[i]) + "=hello" + (i == 0 ? "1 " : " ");

        EXPECT_EQ(Contents(), expected) << cut;
        CPackageArchive target;
        ASSERT_TRUE(target.Open(path, Mode::readWrite));
        EXPECT_TRUE(target.AddFile(source, {})) << cut << target.Error();
        EXPECT_TRUE(target.Close(true));
        EXPECT_EQ(Contents(), expected + "new=hello ") << cut;
    }
}

TEST_F(DamagedArchive, FilesThatAreNoArchivesOpenEmptyAndStayAsTheyAre)
{
    const std::string source = folder.Make("new", "hello");
    for (const std::string& bytes :
         {std::string("JFIF"), std::string("*QRY"), std::string(100, '\0'), std::string("x"),
          "*QRX" + Number(1, 4) + Number(~0ULL, 8) + HandMade().Bytes()}) {
        WriteBytes(path, bytes);
        CPackageArchive target;

        EXPECT_TRUE(target.Open(path, Mode::readWrite)) << bytes;
        EXPECT_EQ(target.Count(), 0U);
        EXPECT_FALSE(target.AddFile(source, {}));
        EXPECT_FALSE(target.Close(true));

        EXPECT_EQ(ReadBytes(path), bytes);
    }
}

TEST_F(DamagedArchive, CountsAndLengthsThatLieEndTheList)
{
    const std::string good = HandMade{.name = "good"}.Bytes();
    std::string longName = HandMade().Bytes();
    longName.replace(0, 2, Number(0xffff, 2));
    struct Case {
        std::uint32_t count;
        std::string bytes;
        std::size_t readable;
    };
    const Case cases[] = {
        {0xffffffff, good + good, 2},
        {1, good + good, 1},
        {0, good, 0},
        {3, good + longName + good, 1},
        {2, good + HandMade{.claimedSize = 0xffffffff}.Bytes(), 1},
        {2, good + HandMade{.claimedSize = 14}.Bytes(), 1},
        {0xffffffff, std::string(48 * 1000 + 47, '\0'), 1000},
    };
    for (const Case& now : cases) {
        WriteBytes(path, HandMadeHeader(now.count) + now.bytes);
        CPackageArchive target;
        ASSERT_TRUE(target.Open(path, Mode::readWrite));

        EXPECT_EQ(target.Count(), now.readable);
        EXPECT_TRUE(now.readable == 0 || target.Remove(0));
        EXPECT_TRUE(target.Close(false));

        const std::uint64_t kept = now.readable == 0 ? now.count : now.readable;
        EXPECT_EQ(ReadBytes(path).substr(4, 4), Number(kept, 4));
    }
}

TEST_F(DamagedArchive, StreamsThatLieFailAndLeaveNoFile)
{
    const std::string zeros(17 * 1024 * 1024, '\0');
    std::string flipped = kHelloStream;
    flipped[4] ^= 0x20;
    struct Case {
        std::string data;
        std::uint64_t originalSize;
        std::string expected;
    };
    const Case cases[] = {
        {kHelloStream, 0, "hello"},
        {kHelloStream + "more", 5, "hello"},
        {Compressed(zeros), zeros.size(), zeros},
        {Compressed(zeros), 5, "?"},
        {"", 5, "?"},
        {kHelloStream.substr(0, 12), 5, "?"},
        {kHelloStream.substr(0, 2), 5, "?"},
        {flipped, 5, "?"},
        {"\x78\xbb\x01\x02\x03\x04zz", 5, "?"},
        {std::string(5000, '\xff'), ~0ULL, "?"},
    };
    // Its first byte would complete the stream that lacks one.
    const HandMade next{.name = std::string(0x15, 'b')};
    for (const Case& now : cases) {
        const HandMade lying{.name = "out", .originalSize = now.originalSize, .data = now.data};
        WriteBytes(path, HandMadeHeader(2) + lying.Bytes() + next.Bytes());
        CPackageArchive target;
        ASSERT_TRUE(target.Open(path, Mode::read));
        std::string data;
        const bool fails = now.expected == "?";

        EXPECT_EQ(target.ExtractToFolder(0, folder.Path() + '/'), !fails);
        EXPECT_EQ(target.ExtractToMemory(0, data), !fails);
        EXPECT_TRUE(data == (fails ? "" : now.expected));
        EXPECT_TRUE(ReadBytes(folder.Path("out")) == data);
        EXPECT_TRUE(target.ExtractToMemory(1, data));
        EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.Path()), {}), fails ? 1 : 2);
        std::filesystem::remove(folder.Path("out"));
    }
}

TEST_F(DamagedArchive, NamesThatLeadOutOfTheFolderAreNotExtractedThere)
{
    const std::string names[] = {"..",
                                 ".",
                                 "",
                                 "../up",
                                 "/tmp/kelvo-absolute",
                                 "sub/x",
                                 "..\\up",
                                 "C:\\a.jpg",
                                 std::string("a\0b", 3)};
    std::string bytes = HandMadeHeader(static_cast<std::uint32_t>(std::size(names)));
    for (const std::string& name : names)
        bytes += HandMade{.name = name}.Bytes();
    WriteBytes(path, bytes);
    const std::string inner = folder.Path("sub");
    std::filesystem::create_directories(inner + "/sub");
    CPackageArchive target;
    ASSERT_TRUE(target.Open(path, Mode::read));

    for (std::size_t i = 0; i < std::size(names); ++i) {
        std::string data;
        EXPECT_FALSE(target.ExtractToFolder(i, inner)) << names[i];
        EXPECT_TRUE(target.ExtractToMemory(i, data));
    }

    EXPECT_EQ(std::distance(std::filesystem::recursive_directory_iterator(folder.Path()), {}), 3);
}

TEST_F(DamagedArchive, ExtractionReplacesALinkInsteadOfFollowingIt)
{
    WriteBytes(path, HandMadeHeader(1) + HandMade().Bytes());
    const std::string victim = folder.Make("victim", "precious");
    std::filesystem::create_symlink(victim, folder.Path("a.jpg"));
    CPackageArchive target;
    ASSERT_TRUE(target.Open(path, Mode::read));

    EXPECT_TRUE(target.ExtractToFolder(0, folder.Path()));

    EXPECT_EQ(ReadBytes(victim), "precious");
    EXPECT_EQ(ReadBytes(folder.Path("a.jpg")), "hello");
}
