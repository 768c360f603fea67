// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What stays after a failure at any step, and what one process sees of another's changes.
#include "archive_fixture.h"
#include "support/faulty_file_system.h"

#include <filesystem>

using archive::CPackageArchive;
using support::CFaultyFileSystem;
using support::Fault;
using support::ReadBytes;
using support::WriteBytes;

namespace
{

class ArchiveState : public CArchiveFixture
{
protected:
    struct Change {
        const char* title;
        std::function<bool(CPackageArchive&)> run;
        std::string after;
    };
    const std::string before = "a=helloold b=hello ";
    const std::string source = folder.Make("c", "hello");
    const std::string bigSource = folder.Make("d", Noise(200'000));
    const std::vector<Change> changes = {
        {"add", [this](CPackageArchive& target) { return target.AddFile(source, {}); }, before + "c=hello "},
        {"add large", [this](CPackageArchive& target) { return target.AddFile(bigSource, {}); },
         before + "d=" + Noise(200'000) + ' '},
        {"remove", [](CPackageArchive& target) { return target.Remove(0); }, "b=hello "},
        {"compact",
         [](CPackageArchive& target) {
             return target.SetTexts(0, "new", std::nullopt, std::nullopt) && target.Close(true);
         },
         "a=hellonew b=hello "},
    };

    // With the note that a first addition leaves, by which the next process adds, or without.
    void MakeArchive(bool noted = false)
    {
        std::filesystem::remove(path);
        WriteBytes(path, HandMadeHeader(2) + HandMade{.name = "a", .caption = "old"}.Bytes() +
                             HandMade{.name = "b"}.Bytes());
        if (noted)
            Note(2);
    }
    void Note(std::uint32_t count)
    {
        const auto file = files.Open(path, platform::OpenMode::readWrite);
        const auto stamp = file->Stamp();
        file->KeepNote("archive-tail", std::to_string(stamp->size) + ' ' +
                                           std::to_string(stamp->modifiedNanoseconds) + ' ' +
                                           std::to_string(count));
    }
    // Runs the change on a fresh archive; whether it said that it succeeded.
    bool Run(const Change& change, CFaultyFileSystem& faulty, bool noted = false)
    {
        MakeArchive(noted);
        const support::CServicesGuard failing(faulty);
        CPackageArchive target;
        return target.Open(path, Mode::readWrite) && change.run(target);
    }
};

}  // namespace

TEST_F(ArchiveState, AFaultAtAnyStepLeavesTheOldStateOrTheNewOne)
{
    for (const Change& change : changes) {
        for (const Fault fault : {Fault::fail, Fault::cutShort, Fault::stop}) {
            // Every other round goes by a note; each step is met both ways.
            for (std::size_t round = 0, step = 0;; step = ++round / 2) {
                CFaultyFileSystem faulty(files);
                faulty.faultyStep = step;
                faulty.fault = fault;

                const bool done = Run(change, faulty, round % 2 == 1);

                const std::string contents = Contents();
                EXPECT_TRUE(contents == change.after || (!done && contents == before))
                    << change.title << " at step " << step << ": " << contents.substr(0, 100);
                EXPECT_FALSE(std::filesystem::exists(path + ".new"));
                if (faulty.steps <= step) {
                    EXPECT_TRUE(done);
                    break;
                }
            }
        }
    }
}

TEST_F(ArchiveState, AFullDiskAtAnyByteLeavesTheOldStateOrTheNewOne)
{
    for (const Change& change : changes) {
        for (std::uint64_t room = 0;; room += room < 300 ? 1 : 4001) {
            CFaultyFileSystem faulty(files);
            faulty.room = room;

            const bool done = Run(change, faulty);

            EXPECT_TRUE(Contents() == (done ? change.after : before)) << change.title << " with " << room;
            if (done)
                break;
        }
    }
}

TEST_F(ArchiveState, AFailedAddIsForgottenAndTheNextOneStands)
{
    MakeArchive();
    CFaultyFileSystem faulty(files);
    const support::CServicesGuard failing(faulty);
    CPackageArchive target;
    ASSERT_TRUE(target.Open(path, Mode::readWrite));
    const std::string bytes = ReadBytes(path);
    faulty.room = 100'000;

    EXPECT_FALSE(target.AddFile(bigSource, {}));
    EXPECT_EQ(ReadBytes(path), bytes);
    EXPECT_FALSE(target.Find("d"));
    faulty.room = 1'000'000;
    EXPECT_TRUE(target.AddFile(source, {}));

    EXPECT_EQ(Contents(), "cannot be opened");
    target.Close(false);
    EXPECT_EQ(Contents(), before + "c=hello ");
}

TEST_F(ArchiveState, ExtractionThatFailsLeavesNoFile)
{
    WriteBytes(path, HandMadeHeader(1) + HandMade().Bytes());
    for (std::size_t step = 0; step < 3; ++step) {
        CFaultyFileSystem faulty(files);
        faulty.faultyStep = step;
        const support::CServicesGuard failing(faulty);
        CPackageArchive target;
        ASSERT_TRUE(target.Open(path, Mode::read));

        EXPECT_FALSE(target.ExtractToFolder(0, files.GetTempPath()));

        EXPECT_TRUE(std::filesystem::is_empty(files.GetTempPath()));
    }
}

TEST_F(ArchiveState, OpeningAgainReadsNoRecordsAndSeesEveryChange)
{
    CFaultyFileSystem counting(files);
    const support::CServicesGuard counted(counting);
    CPackageArchive target;
    ASSERT_TRUE(target.Open(path, Mode::create));
    for (int i = 0; i < 50; ++i)
        ASSERT_TRUE(AddText(target, std::to_string(i), "hello"));
    target.Close(false);
    const auto readsOf = [&](const std::string& name) {
        const std::size_t reads = counting.reads;
        EXPECT_TRUE(target.Open(path, Mode::readWrite));
        EXPECT_TRUE(target.Find(name)) << name;
        return counting.reads - reads;
    };

    EXPECT_EQ(readsOf("49"), 0U);
    EXPECT_TRUE(target.Remove(7) && target.Close(true));
    EXPECT_EQ(readsOf("8"), 0U);
    EXPECT_EQ(target.Count(), 49U);
    EXPECT_EQ(target.Find("7"), std::nullopt);
    EXPECT_TRUE(AddText(target, "more", "hello"));
    EXPECT_EQ(readsOf("more"), 0U);
    target.Close(false);

    // Another program deletes a member, which changes two bytes, and a third one replaces the file.
    {
        const auto file = files.Open(path, platform::OpenMode::readWrite);
        ASSERT_TRUE(file->WriteAt(16 + 46, std::as_bytes(std::span("\x01", 1))) && file->MarkChanged());
    }
    EXPECT_GT(readsOf("1"), 0U);
    EXPECT_EQ(target.Find("0"), std::nullopt);
    target.Close(false);
    WriteBytes(path, HandMadeHeader(1) + HandMade{.name = "other"}.Bytes());
    EXPECT_GT(readsOf("other"), 0U);
    EXPECT_EQ(target.Count(), 1U);
}

TEST_F(ArchiveState, AnotherProcessAddsByTheNoteIfItFitsTheFileAndNeverOverAMember)
{
    const std::string member = HandMade{.name = "a"}.Bytes();
    const std::string damaged = HandMade{.claimedSize = 0xffffffff}.Bytes();
    struct Case {
        const char* title;
        std::string bytes;
        std::uint32_t noted;
        std::size_t reads;  // of the header, the records and the source
        std::string after, afterSecond;
    };
    const Case cases[] = {
        {"true", HandMadeHeader(1) + member, 1, 2, "a=hello c=hello ", "a=hello c=hello c=hello "},
        {"too few", HandMadeHeader(2) + member + member, 1, 3, "a=hello a=hello c=hello ",
         "a=hello a=hello c=hello c=hello "},
        {"too many", HandMadeHeader(1) + member, 2, 3, "a=hello c=hello ", "a=hello c=hello c=hello "},
        {"silent on damage", HandMadeHeader(2) + member + damaged, 2, 2, "a=hello ", "a=hello c=hello "},
    };
    for (const Case& now : cases) {
        WriteBytes(path, now.bytes);
        Note(now.noted);
        CFaultyFileSystem counting(files);
        const support::CServicesGuard counted(counting);
        CPackageArchive target;

        EXPECT_TRUE(target.Open(FreshPath(), Mode::readWrite) && target.AddFile(source, {}));
        EXPECT_EQ(counting.reads, now.reads) << now.title;
        EXPECT_EQ(ReadBytes(path).substr(8, now.bytes.size() - 8), now.bytes.substr(8)) << now.title;
        EXPECT_EQ(target.Find("c").has_value(), now.after.ends_with("c=hello ")) << now.title;
        target.Close(false);
        EXPECT_EQ(Contents(), now.after) << now.title;
        EXPECT_TRUE(target.Open(FreshPath(), Mode::readWrite) && target.AddFile(source, {}));
        target.Close(false);
        EXPECT_EQ(Contents(), now.afterSecond) << now.title;
    }
}

TEST_F(ArchiveState, AnArchiveReplacedWhileItWasAwaitedIsOpenedAnew)
{
    // The file system replaces the archive just as it is locked.
    class CReplacing : public CFaultyFileSystem
    {
    public:
        using CFaultyFileSystem::CFaultyFileSystem;
        std::function<void()> onOpen;
        std::unique_ptr<platform::CFile> Open(const std::string& name, platform::OpenMode mode) override
        {
            auto file = CFaultyFileSystem::Open(name, mode);
            if (const auto once = std::exchange(onOpen, nullptr))
                once();
            return file;
        }
    } replacing(files);
    const support::CServicesGuard guarded(replacing);
    for (const Mode mode : {Mode::read, Mode::readWrite, Mode::create}) {
        MakeArchive();
        replacing.onOpen = [&] {
            std::filesystem::remove(path);
            WriteBytes(path, HandMadeHeader(1) + HandMade{.name = "z"}.Bytes());
        };
        CPackageArchive target;

        ASSERT_TRUE(target.Open(path, mode));

        EXPECT_EQ(target.Find("z").has_value(), mode != Mode::create);
        EXPECT_EQ(target.Find("a"), std::nullopt);
        EXPECT_TRUE(target.Close(false));
        EXPECT_EQ(Contents(), mode == Mode::create ? "" : "z=hello ");
    }
}

TEST_F(ArchiveState, CompactionInTwoPartsGivesWayToWhoeverComesBetween)
{
    for (const bool isChanged : {false, true}) {
        std::filesystem::remove(path);
        CPackageArchive writer;
        ASSERT_TRUE(writer.Open(path, Mode::create) && AddText(writer, "a", "1") && writer.Close(false));
        CPackageArchive renamed;
        ASSERT_TRUE(renamed.Open(path, Mode::read) && renamed.SetName(0, "b"));

        ASSERT_TRUE(renamed.PrepareCompaction());
        writer.SetPatience(0);
        ASSERT_TRUE(writer.Open(path, Mode::readWrite)) << "the lock is let go of";
        ASSERT_TRUE(!isChanged || AddText(writer, "c", "2"));
        ASSERT_TRUE(writer.Close(false));

        EXPECT_EQ(renamed.CommitCompaction(), !isChanged);
        EXPECT_EQ(Contents(), isChanged ? "a=1 c=2 " : "b=1 ");
        EXPECT_FALSE(renamed.CommitCompaction());
    }
}
