// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "../photo/exif_builder.h"
#include "../platform/process.h"
#include "photo/local_time.h"
#include "photo/time_stamp_change.h"
#include "photo_fixture.h"

#include <ctime>

using photo::TimeSource;

namespace
{

constexpr platform::FileTime kSecond = 10'000'000;

std::string DatedJpeg(const std::string& date)
{
    const CExifBuilder builder(false);
    return builder.File({builder.Text(0x9003, date + std::string(1, '\0'))});
}

class TimeStamps : public CPhotoFixture
{
protected:
    TimeStamps() { tzset(); }
    ~TimeStamps() override { tzset(); }

    photo::TimeStampReport Change(TimeSource source, const std::vector<std::string>& paths,
                                  bool creation = false)
    {
        photo::TimeStampRequest request{
            paths, photo::FilesWithDate(paths), source, creation, true, {}, stores.journal};
        request.picked = Date(2004, 7, 15, 10, 20, 30);
        return photo::ChangeTimeStamps(request, host);
    }
    static photo::ExifDate Date(int year, int month, int day, int hour, int minute, int second)
    {
        photo::ExifDate date;
        date.year = year;
        date.month = month;
        date.day = day;
        date.hour = hour;
        date.minute = minute;
        date.second = second;
        return date;
    }
    platform::FileFacts Facts(const std::string& path) { return files.FindFirstFile(path).value(); }

    tests::CEnvironment zone{{{"TZ", "CET-1CEST,M3.5.0,M10.5.0/3"}}};
    const platform::FileTime july = 127'343'532'300'000'000;  // 2004-07-15 08:20:30 UTC
};

}  // namespace

TEST_F(TimeStamps, LocalTimesAreUnderTheSummerTimeOfTheirOwnDate)
{
    EXPECT_EQ(photo::LocalToFileTime(Date(2004, 7, 15, 10, 20, 30)), july);
    EXPECT_EQ(photo::LocalToFileTime(Date(2004, 1, 15, 9, 20, 30)), july - (182 * 86'400ULL) * kSecond);
    EXPECT_EQ(photo::FileTimeToLocal(july).hour, 10);
    for (const photo::ExifDate& none :
         {Date(2004, 13, 1, 0, 0, 0), Date(2003, 2, 29, 0, 0, 0), Date(0, 1, 1, 0, 0, 0),
          Date(2004, 7, 15, 24, 0, 0), Date(10'000, 1, 1, 0, 0, 0)})
        EXPECT_FALSE(photo::LocalToFileTime(none)) << none.year;
}

TEST_F(TimeStamps, TheDialogsControlsFollowTheSource)
{
    photo::CTimeStampChoice choice(false);
    EXPECT_TRUE(choice.CanPick() && !choice.CanApply() && !choice.OffersExif());

    choice.ToggleCreation();
    EXPECT_TRUE(choice.CanApply());
    choice.Choose(TimeSource::created);
    EXPECT_TRUE(!choice.CanApply() && !choice.CanChangeCreation() && !choice.CanPick());
    choice.ToggleCreation();
    EXPECT_FALSE(choice.ChangesCreation());
    choice.ToggleModified();
    choice.Choose(TimeSource::now);
    EXPECT_TRUE(choice.CanApply() && choice.CanChangeCreation());
}

TEST_F(TimeStamps, EachSourceGivesItsTimeAndCanBeTakenBack)
{
    const std::string photo = Make("a.jpg");
    const platform::FileTime before = Facts(photo).lastWriteTime;

    const auto picked = Change(TimeSource::picked, {photo}, true);

    EXPECT_EQ(picked.changed, 1U);
    EXPECT_EQ(Facts(photo).lastWriteTime, july);
    EXPECT_EQ(Facts(photo).creationTime, july);
    Change(TimeSource::now, {photo});
    EXPECT_EQ(Facts(photo).lastWriteTime, utility.ql_GetCurDate());
    Change(TimeSource::created, {photo});
    EXPECT_EQ(Facts(photo).lastWriteTime, july);
    EXPECT_EQ(journal.List().size(), 3U);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(Undo(journal.Latest()->record).done, 1U);
    EXPECT_EQ(Facts(photo).lastWriteTime, before);
    EXPECT_EQ(CaptionOf(photo), "");
}

TEST_F(TimeStamps, ThePhotographsOwnDateIsForThoseThatHaveOne)
{
    const std::string dated = Make("dated.jpg", DatedJpeg("2004:07:15 10:20:30"));
    const std::string odd = Make("odd.jpg", DatedJpeg("2004:13:15 10:20:30"));
    const std::string plain = Make("plain.jpg");

    const auto report = Change(TimeSource::exif, {dated, odd, plain});

    EXPECT_EQ(report.changed, 1U);
    EXPECT_EQ(report.skipped, 2U);
    EXPECT_FALSE(report.hasFailed);
    EXPECT_EQ(Facts(dated).lastWriteTime, july);
    EXPECT_NE(Facts(plain).lastWriteTime, july);
}

TEST_F(TimeStamps, WhatCannotBeOpenedIsToldAndTheRestIsDone)
{
    const std::string photo = Make("a.jpg");
    std::filesystem::create_directories(Path("folder.jpg"));

    const auto report = Change(TimeSource::picked, {Path("gone.jpg"), Path("folder.jpg"), photo});

    EXPECT_TRUE(report.hasFailed);
    EXPECT_EQ(report.changed, 1U);
    EXPECT_EQ(report.problems.size(), 2U);
    files.SetFileTime(photo, 0, july + kSecond);
    EXPECT_EQ(Undo(report.undo).problems.at(0).failure, platform::FileFailure::changed);
}
