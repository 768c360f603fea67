// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive_fixture.h"

#include <filesystem>

using archive::CPackageArchive;
using support::ReadBytes;
using support::WriteBytes;

namespace
{

class PackageArchive : public CArchiveFixture
{
};

// Notes what the archive reports, and stops it at a given percentage.
class CWatchedArchive : public CPackageArchive
{
public:
    std::vector<int> percents;
    std::vector<std::string> results;
    int abortAt = 101;

protected:
    void Progress(int percent) override
    {
        percents.push_back(percent);
        if (percent >= abortAt)
            Abort();
    }
    void Result(const std::string& text) override { results.push_back(text); }
};

}  // namespace

TEST_F(PackageArchive, AnArchiveWithoutMembersIsItsHeaderAlone)
{
    CPackageArchive empty;

    ASSERT_TRUE(empty.Open(path, Mode::create));
    ASSERT_TRUE(empty.Close(true));

    EXPECT_EQ(ReadBytes(path), HandMadeHeader(0));
}

TEST_F(PackageArchive, AMemberIsWrittenByteForByteAsTheFormatSays)
{
    const std::string source = folder.Make("hello.txt", "hello");
    const archive::AddOptions options{
        archive::SourceFacts{0x0102030405060708, 0x1112131415161718, 0xfffffffff}, 77, "2004/05/17"};
    archive::AddOptions whole;
    whole.keepFullName = true;
    files.SetFileTime(source, 123, 125'911'584'000'000'000);

    CPackageArchive made;
    ASSERT_TRUE(made.Open(path, Mode::create));
    ASSERT_TRUE(made.AddFile(source, options)) << made.Error();
    ASSERT_TRUE(made.AddFile(source, whole)) << made.Error();
    ASSERT_TRUE(made.Close(false));

    const HandMade first{"hello.txt",
                         "",
                         "",
                         "2004/05/17",
                         "",
                         0xfffffffff,
                         options.facts->creationTime,
                         options.facts->lastWriteTime,
                         77};
    const HandMade second{source, "", "", "", "", 5, 123, 125'911'584'000'000'000, 0};
    EXPECT_EQ(ReadBytes(path), HandMadeHeader(2) + first.Bytes() + second.Bytes());
}

TEST_F(PackageArchive, AHandMadeArchiveIsReadWithAllItsTexts)
{
    const HandMade one{"Photo1.jpg", "xx", "A cat", "2004/05/17", "later"};
    const std::string headerTexts = Number(1, 2) + Number(0, 4) + Number(2, 2) + "ABB";
    WriteBytes(path, "*QRX" + Number(2, 4) + headerTexts + HandMade{.name = "old", .deleted = 1}.Bytes() +
                         one.Bytes());

    CPackageArchive read;
    ASSERT_TRUE(read.Open(path, Mode::readWrite));
    const auto found = read.Find("photo1.JPG");
    ASSERT_TRUE(found);
    const archive::PackageMember member = read.Member(*found);
    std::string data;
    const bool extracted = read.ExtractToMemory(*found, data);
    const bool compacted = read.Close(true);

    EXPECT_EQ(member.name + member.extraText + member.caption + member.timeStampText + member.secondText,
              "Photo1.jpgxxA cat2004/05/17later");
    EXPECT_EQ(member.creationTime, one.created);
    EXPECT_EQ(member.recordPosition, 19 + 48 + 3 + 13);
    EXPECT_EQ(member.dataPosition, 19 + 48 + 3 + 13 + 48 + 32);
    EXPECT_TRUE(extracted);
    EXPECT_EQ(data, "hello");
    EXPECT_TRUE(compacted);
    EXPECT_EQ(ReadBytes(path), "*QRX" + Number(1, 4) + headerTexts + one.Bytes());
}

TEST_F(PackageArchive, DataOfAnyLengthComeBackAsTheyWere)
{
    const std::string contents[] = {"",          "x",         Noise(4095),    Noise(4096),
                                    Noise(4097), Noise(8192), Noise(300'000), std::string(1'000'000, 'a')};
    CPackageArchive target;
    ASSERT_TRUE(target.Open(path, Mode::create));

    for (std::size_t i = 0; i < std::size(contents); ++i)
        ASSERT_TRUE(AddText(target, std::to_string(i), contents[i])) << target.Error();

    ASSERT_TRUE(target.Open(path, Mode::read));
    for (std::size_t i = 0; i < std::size(contents); ++i) {
        std::string data;
        EXPECT_TRUE(target.ExtractToMemory(i, data));
        EXPECT_TRUE(data == contents[i]) << i;
        EXPECT_TRUE(target.ExtractToFolder(i, files.GetTempPath()));
        EXPECT_TRUE(ReadBytes(files.GetTempPath() + '/' + std::to_string(i)) == contents[i]) << i;
    }
}

TEST_F(PackageArchive, FindTakesTheFirstThatIsNotDeletedInTheCaseAskedFor)
{
    CPackageArchive target;
    ASSERT_TRUE(target.Open(path, Mode::create));
    for (const char* name : {"Photo1.jpg", "photo1.jpg", "\xc3\x84.jpg", "PHOTO1.JPG"})
        ASSERT_TRUE(AddText(target, name, name));
    for (int i = 0; i < 200; ++i)
        ASSERT_TRUE(AddText(target, std::to_string(i), ""));
    ASSERT_TRUE(target.Open(path, Mode::readWrite));

    EXPECT_EQ(target.Find("pHoto1.jpg"), 0U);
    EXPECT_EQ(target.FindExact("PHOTO1.JPG"), 3U);
    EXPECT_EQ(target.Find("\xc3\xa4.jpg"), std::nullopt);
    EXPECT_EQ(target.Find(""), std::nullopt);
    EXPECT_TRUE(target.Remove(0));
    EXPECT_TRUE(target.Remove(0));
    EXPECT_EQ(target.Find("Photo1.jpg"), 1U);
    EXPECT_EQ(target.FindExact("Photo1.jpg"), std::nullopt);
    EXPECT_TRUE(AddText(target, "Photo1.jpg", "new"));
    EXPECT_EQ(target.FindExact("Photo1.jpg"), 204U);
    EXPECT_EQ(target.Find("199"), 203U);
}

TEST_F(PackageArchive, RemovedMembersKeepTheirPlaceUntilCompaction)
{
    CPackageArchive target;
    ASSERT_TRUE(target.Open(path, Mode::create));
    for (const char* name : {"a", "b", "c", "d"})
        ASSERT_TRUE(AddText(target, name, Noise(9000) + name));
    ASSERT_TRUE(target.Open(path, Mode::readWrite));
    const std::string before = ReadBytes(path);
    const std::string data = Noise(9000) + "b";

    ASSERT_TRUE(target.Remove(0));
    ASSERT_TRUE(target.Remove(2));
    ASSERT_TRUE(target.Open(path, Mode::readWrite));
    EXPECT_EQ(target.Count(), 4U);
    EXPECT_EQ(target.Find("a"), std::nullopt);
    EXPECT_EQ(ReadBytes(path).size(), before.size());
    ASSERT_TRUE(target.Close(true));

    EXPECT_LT(ReadBytes(path).size(), before.size() / 2 + 100);
    EXPECT_EQ(Contents(), "b=" + data + " d=" + Noise(9000) + "d ");
    ASSERT_TRUE(target.Open(path, Mode::readWrite));
    EXPECT_EQ(target.Find("d"), 1U);
}

TEST_F(PackageArchive, TextsReachTheFileByCompactionAlone)
{
    CPackageArchive target;
    ASSERT_TRUE(target.Open(path, Mode::create));
    ASSERT_TRUE(AddText(target, "a", "hello"));
    ASSERT_TRUE(AddText(target, "b", "hello"));
    ASSERT_TRUE(target.Close(false));
    const std::string before = ReadBytes(path);

    for (const bool compact : {false, true}) {
        ASSERT_TRUE(target.Open(path, Mode::readWrite));
        ASSERT_TRUE(target.SetTexts(0, "Tom", std::nullopt, "2nd"));
        EXPECT_FALSE(target.SetTexts(1, std::string(65536, 'x'), "1", "2"));
        EXPECT_EQ(target.Member(0).caption, "Tom");
        ASSERT_TRUE(target.Close(compact));
        if (!compact) {
            EXPECT_EQ(ReadBytes(path), before);
            EXPECT_EQ(Contents(), "a=hello b=hello ");
        }
    }

    EXPECT_EQ(Contents(), "a=helloTom b=hello ");
    ASSERT_TRUE(target.Open(path, Mode::readWrite));
    EXPECT_EQ(target.Member(0).secondText, "2nd");
    ASSERT_TRUE(target.SetTexts(0, std::nullopt, std::nullopt, std::nullopt));
    ASSERT_TRUE(target.Close(true));
    EXPECT_EQ(ReadBytes(path), before);
}

TEST_F(PackageArchive, EachModeAllowsWhatItIsFor)
{
    WriteBytes(path, HandMadeHeader(1) + HandMade().Bytes());
    const std::string source = folder.Make("s", "x");
    struct Case {
        Mode mode;
        bool adds, removes, compacts;
    };
    for (const Case& now : {Case{Mode::read, false, false, false},
                            {Mode::readWrite, true, true, true},
                            {Mode::create, true, false, true}}) {
        CPackageArchive target;
        ASSERT_TRUE(target.Open(path, now.mode));

        EXPECT_EQ(target.AddFile(source, {}), now.adds);
        EXPECT_EQ(target.Remove(0), now.removes);
        EXPECT_EQ(target.Close(true), now.compacts);
        EXPECT_FALSE(target.AddFile(source, {}));
        EXPECT_FALSE(target.Remove(0));
        EXPECT_FALSE(target.Close(false));
    }
    CPackageArchive none;
    EXPECT_FALSE(none.Open("", Mode::create));
    EXPECT_FALSE(none.Open(folder.Path("missing"), Mode::readWrite));
    EXPECT_FALSE(none.Open(folder.Path(), Mode::read));
    EXPECT_FALSE(none.Open(folder.Path("missing/x"), Mode::create));
}

TEST_F(PackageArchive, ProgressAndResultAreToldAndAbortLeavesNothingBehind)
{
    CWatchedArchive target;
    ASSERT_TRUE(target.Open(path, Mode::create));
    ASSERT_TRUE(AddText(target, "a", Noise(16384)));
    EXPECT_EQ(target.percents, (std::vector<int>{25, 50, 75, 100, 100}));
    const std::string before = ReadBytes(path);
    target.abortAt = 50;

    EXPECT_FALSE(AddText(target, "b", Noise(1'000'000)));
    EXPECT_EQ(ReadBytes(path), before);
    ASSERT_TRUE(target.Open(path, Mode::read));
    target.abortAt = 20;
    EXPECT_FALSE(target.ExtractToFolder(0, folder.Path()));
    EXPECT_EQ(ReadBytes(folder.Path("a")), Noise(16384));
    std::string data;
    EXPECT_FALSE(target.ExtractToMemory(0, data));
    target.abortAt = 101;
    ASSERT_TRUE(target.Open(path, Mode::read));
    EXPECT_TRUE(target.ExtractToMemory(0, data));

    EXPECT_EQ(target.results,
              (std::vector<std::string>{"Success", "User Abort", "User Abort", "User Abort", "Success"}));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.Path()), {}), 3);
}

TEST_F(PackageArchive, SourcesThatCannotBeAddedChangeNothing)
{
    CPackageArchive target;
    ASSERT_TRUE(target.Open(path, Mode::create));
    ASSERT_TRUE(AddText(target, "a", "hello"));
    const std::string before = ReadBytes(path);
    const std::string source = folder.Make("s", "x");
    archive::AddOptions longText;
    longText.timeStampText.assign(65536, 'x');

    EXPECT_FALSE(target.AddFile(folder.Path("missing"), {}));
    EXPECT_FALSE(target.AddFile(folder.Path(), {}));
    EXPECT_FALSE(target.AddFile(source, longText));
    EXPECT_FALSE(target.AddFile(path, {}));

    EXPECT_EQ(ReadBytes(path), before);
}

TEST_F(PackageArchive, AnotherHoldersLockKeepsItOut)
{
    CPackageArchive first;
    CPackageArchive second;
    first.SetPatience(0);
    second.SetPatience(0);
    ASSERT_TRUE(first.Open(path, Mode::create));
    ASSERT_TRUE(AddText(first, "a", "hello"));
    const std::string before = ReadBytes(path);

    for (const Mode mode : {Mode::create, Mode::read, Mode::readWrite})
        EXPECT_FALSE(second.Open(path, mode));
    EXPECT_EQ(ReadBytes(path), before);

    ASSERT_TRUE(first.Open(path, Mode::read));
    EXPECT_TRUE(second.Open(path, Mode::read));
    EXPECT_FALSE(first.Open(path, Mode::readWrite));
}
