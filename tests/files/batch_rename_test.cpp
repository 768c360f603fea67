// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/batch_rename.h"

#include "photo/rename_pattern.h"
#include "photo_fixture.h"

#include <fmt/format.h>
#include <gmock/gmock.h>

#include <algorithm>

using browser::FileTask;
using browser::JournalState;
using testing::ElementsAre;

namespace
{

class BatchRename : public CPhotoFixture
{
protected:
    std::vector<std::string> Planned(const std::vector<std::string>& names, const std::string& pattern)
    {
        std::vector<std::string> paths;
        for (const std::string& name : names)
            paths.push_back(Path(name));
        std::vector<std::string> planned;
        for (const auto& rename : photo::PlanBatchRename(paths, pattern))
            planned.push_back((rename.to.empty() ? "" : rename.to.substr(Path("").size())) +
                              (rename.hasClash ? " !" : ""));
        return planned;
    }
    browser::FileJobReport Rename(const std::vector<std::string>& paths)
    {
        return Run(photo::BatchRenameJob(photo::PlanBatchRename(paths, "Photo%04d"), {}));
    }
    // Leaves the journal as a process that was killed in the middle of this work would.
    void WriteJournal(JournalState state, const browser::UndoRecord& record)
    {
        journal.Begin(record)->Write(state, record);
    }
};

}  // namespace

TEST(RenamePattern, IsMadeCheckedAndFilled)
{
    const struct {
        std::string prefix, digits, preview;
        photo::RenameObjection objection;
        std::string digitsAfter;
    } kCases[] = {
        {"Photo", "4", "Photo0001", photo::RenameObjection::none, "4"},
        {"100%d", "2", "100%d01", photo::RenameObjection::none, "2"},
        {"", "16", "0000000000000001", photo::RenameObjection::none, "16"},
        {"a:b", "4", "a:b0001", photo::RenameObjection::badCharacter, "4"},
        {"Photo", "0", "Photo0001", photo::RenameObjection::badDigits, "4"},
        {"Photo", "17", "Photo0000000000000001", photo::RenameObjection::badDigits, "4"},
        {"Photo", "4x", "Photo0001", photo::RenameObjection::badDigits, "4"},
        {std::string(248, 'n'), "4", std::string(248, 'n') + "0001", photo::RenameObjection::tooLong, "4"},
    };
    for (const auto& test : kCases) {
        photo::CRenameFields fields;
        fields.prefix = test.prefix;
        fields.digits = test.digits;

        EXPECT_EQ(fields.Preview(), test.preview);
        EXPECT_EQ(fields.Check("/p"), test.objection) << test.preview;
        EXPECT_EQ(fields.digits, test.digitsAfter);
    }
    photo::CRenameFields deep;
    EXPECT_EQ(deep.Check(std::string(246, 'f')), photo::RenameObjection::none);  // 260 with the sample name
    EXPECT_EQ(deep.Check(std::string(247, 'f')), photo::RenameObjection::tooLong);
    EXPECT_EQ(photo::FormatPattern("%d%%%04d%x%", 7), "7%0007%x%");
}

TEST_F(BatchRename, PlansNamesAsIfTheRenamesBeforeHadBeenDone)
{
    std::filesystem::create_directories(Path("Photo0004.jpg"));
    MakeAll({"a.jpg", "b.JPG", "c.jpg", "d.lnk", "e", "Photo0001.jpg", "Photo0005.jpg"});

    EXPECT_THAT(Planned({"a.jpg", "b.JPG", "c.jpg"}, "N%02d"), ElementsAre("N01.jpg", "N02.jpg", "N03.jpg"));
    EXPECT_THAT(Planned({"a.jpg", "d.lnk", "e"}, "N%d"), ElementsAre("N1.jpg", "", "N2"));
    // The first's name is a file's, the fourth's a folder's, and the fifth's has become free.
    EXPECT_THAT(Planned({"Photo0005.jpg", "Photo0001.jpg", "a.jpg", "b.JPG", "c.jpg"}, "Photo%04d"),
                ElementsAre("Photo0001-1.jpg !", "Photo0002.jpg", "Photo0003.jpg", "Photo0002-2.jpg !",
                            "Photo0005.jpg"));
    // A number that a rename gives up is free again.
    MakeAll({"P1.jpg", "P2.jpg", "P3.jpg", "P1-1.jpg"});
    EXPECT_THAT(Planned({"a.jpg", "P1-1.jpg", "b.JPG"}, "P%d"),
                ElementsAre("P2-2.jpg !", "P3-3.jpg !", "P1-1.jpg !"));
    EXPECT_TRUE(Planned({"a.jpg"}, "").empty());
}

TEST_F(BatchRename, CarriesThumbnailsAndCaptionsAlongAndBack)
{
    const auto photos = MakeAll({"a.jpg", "b.jpg", "c.jpg"});
    Caption({photos[0]}, "A");
    Caption({photos[2]}, "C");

    const auto report = Rename({photos[2], photos[0], photos[1]});

    EXPECT_EQ(report.done, 3U);
    EXPECT_EQ(CaptionOf(Path("Photo0001.jpg")) + CaptionOf(Path("Photo0002.jpg")), "CA");
    ASSERT_EQ(journal.List().size(), 1U);
    EXPECT_EQ(Undo(journal.Latest()->record).done, 3U);
    EXPECT_EQ(CaptionOf(photos[0]) + CaptionOf(photos[1]) + CaptionOf(photos[2]), "AC");
    EXPECT_TRUE(journal.List().empty());
}

// Whose members are written under their new names while the files get theirs.
TEST_F(BatchRename, AsManyAsPayForWorkAheadAreCarriedAsWell)
{
    std::vector<std::string> photos;
    for (int i = 0; i < 600; ++i)
        photos.push_back(Make(fmt::format("{:03}.jpg", i)));
    Caption({photos[0], photos[599]}, "A");

    EXPECT_EQ(Rename(photos).done, 600U);
    EXPECT_EQ(CaptionOf(Path("Photo0001.jpg")) + CaptionOf(Path("Photo0600.jpg")), "AA");
    EXPECT_EQ(Undo(journal.Latest()->record).done, 600U);

    // One file is gone, and a member is in the way.
    Caption({Make("Photo0300.jpg")}, "old");
    std::filesystem::remove(Path("Photo0300.jpg"));
    std::filesystem::remove(photos[1]);
    photos.push_back(Make("600.jpg"));
    EXPECT_EQ(Rename(photos).done, 600U);
    EXPECT_EQ(CaptionOf(Path("Photo0600.jpg")) + CaptionOf(Path("Photo0300.jpg")), "A");
}

TEST_F(BatchRename, RefusesToTakeBackWhatHasChangedSince)
{
    const auto photos = MakeAll({"a.jpg", "b.jpg", "c.jpg"});
    const auto report = Rename(photos);
    std::filesystem::remove(Path("Photo0001.jpg"));
    Make("b.jpg", "in the way");

    const auto undone = Undo(report.undo);

    EXPECT_EQ(undone.done, 1U);
    ASSERT_EQ(undone.problems.size(), 2U);
    EXPECT_EQ(undone.problems[0].failure, platform::FileFailure::nameTaken);
    EXPECT_EQ(undone.problems[1].failure, platform::FileFailure::missing);
    EXPECT_EQ(support::ReadBytes(Path("b.jpg")), "in the way");
    EXPECT_TRUE(std::filesystem::exists(Path("Photo0002.jpg")));
    EXPECT_EQ(Undo(report.undo).problems.size(), 1U) << "it is not in the journal any more";
    Rename({Make("z.jpg")});
    Undo(report.undo);
    EXPECT_EQ(journal.List().size(), 1U) << "its number is another change's by now";
}

TEST_F(BatchRename, AJobThatStopsLeavesTheRestUntouched)
{
    const auto photos = MakeAll({"a.jpg", "b.jpg", "c.jpg"});
    host.itemsUntilStop = 1;

    const auto report = Rename(photos);

    EXPECT_TRUE(report.cancelled);
    EXPECT_EQ(report.undo.steps.size(), 1U);
    EXPECT_TRUE(std::filesystem::exists(Path("Photo0001.jpg")) && std::filesystem::exists(photos[1]));
    EXPECT_EQ(journal.Latest()->record.steps.size(), 1U);
}

TEST_F(BatchRename, NothingIsRenamedThatCannotBeWrittenDown)
{
    const auto photos = MakeAll({"a.jpg"});
    folder.Make("Journal", "a file in its place");

    EXPECT_EQ(Rename(photos).problems.size(), 1U);

    EXPECT_TRUE(std::filesystem::exists(photos[0]));
}

TEST_F(BatchRename, AKilledBatchIsSettledAtTheNextStart)
{
    const auto photos = MakeAll({"a.jpg", "b.jpg"});
    Caption(photos, "Beach");
    browser::UndoRecord record{FileTask::rename, 2, "a.jpg", {}};
    for (const std::string& path : photos)
        record.steps.push_back(
            {browser::UndoAction::moveBack, path + ".new", path, shell.FindEntry(path)->stamp});
    std::filesystem::rename(photos[0], photos[0] + ".new");
    WriteJournal(JournalState::begun, record);

    journal.Recover(Manager());
    journal.Recover(Manager());

    EXPECT_EQ(CaptionOf(photos[0] + ".new") + CaptionOf(photos[1]), "BeachBeach");
    ASSERT_EQ(journal.List().size(), 1U);
    EXPECT_EQ(journal.List()[0].state, JournalState::done);
    EXPECT_EQ(journal.List()[0].record.steps.size(), 1U);

    // And the way back, killed after the file had gone back.
    const auto entry = *journal.Latest();
    std::filesystem::rename(photos[0] + ".new", photos[0]);
    journal.Open(entry.number)->Write(JournalState::undone, entry.record);
    journal.Recover(Manager());

    EXPECT_EQ(CaptionOf(photos[0]), "Beach");
    EXPECT_TRUE(journal.List().empty());
}

TEST_F(BatchRename, CaptionsThatCouldNotFollowDoSoLater)
{
    const auto photos = MakeAll({"a.jpg"});
    Caption(photos, "Beach");
    const std::string archive = folder.Path("ThumbDB/Tmb0.db");
    std::filesystem::rename(archive, archive + ".away");
    std::filesystem::create_directories(archive);

    const auto report = Rename(photos);
    EXPECT_EQ(report.problems.size(), 1U);
    EXPECT_EQ(report.undo.steps.size(), 1U);
    std::filesystem::remove(archive);
    std::filesystem::rename(archive + ".away", archive);
    journal.Recover(Manager());

    EXPECT_EQ(CaptionOf(Path("Photo0001.jpg")), "Beach");
    EXPECT_EQ(journal.Latest()->state, JournalState::done);
}

TEST_F(BatchRename, TheJournalKeepsTheLatestHundredAndAnyName)
{
    const std::string odd = "a\tb\nc%41 \xFF\xFE.jpg";
    browser::UndoRecord record{FileTask::rename, 1, odd, {}};
    record.steps.push_back({browser::UndoAction::moveBack, Path(odd), Path("x"), {1, 2, 3, -4}});
    for (int i = 0; i < 105; ++i)
        journal.Begin(record)->Write(JournalState::done, record);
    const std::string latest = folder.Path("Journal/00000105.journal");
    const std::string bytes = support::ReadBytes(latest);

    EXPECT_EQ(journal.List().size(), 100U);
    auto read = journal.Latest()->record;
    EXPECT_EQ(std::exchange(read.journalNumber, 0), 105U);
    EXPECT_EQ(read, record);
    for (std::size_t cut = 0; cut < bytes.size(); ++cut) {
        support::WriteBytes(latest, bytes.substr(0, cut));
        EXPECT_EQ(journal.Latest()->number, 104U) << cut;
    }
}
