// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What is offered when cards and phones come and go.
#include "app/notices.h"

#include "app/port_list.h"
#include "support/test_services.h"

#include <gmock/gmock.h>

namespace
{

using app::CNotices;
using app::NoticeKind;
using platform::MsdSurvey;
using platform::StringId;
using Ports = std::vector<platform::SerialPort>;

const MsdSurvey kCard{"/media/EOS", "EOS", 231, 0, false};
const platform::SerialPort kBuiltIn{"/dev/ttyS0", "", 0};
const platform::SerialPort kModem{"/dev/ttyUSB0", "Modem", -1};
const platform::SerialPort kPhone{"/dev/ttyACM0", "Handset", -1};
const platform::SerialPort kPhoneToo{"/dev/ttyACM1", "Handset", -1};

class Notices : public testing::Test
{
protected:
    // "EOS 231", "ttyACM0" or "" for what is offered now.
    std::string Offered() const
    {
        const app::Notice* notice = notices.Current();
        if (!notice)
            return {};
        return notice->kind == NoticeKind::card ? notice->name + ' ' + std::to_string(notice->count)
                                                : notice->line;
    }

    support::TestServices services;
    CNotices notices;
};

}  // namespace

TEST_F(Notices, ACardIsOfferedUntilItIsAnsweredOrGoesAndAgainWhenItComesBack)
{
    EXPECT_EQ(Offered(), "");
    notices.SetCard(kCard);
    EXPECT_EQ(Offered(), "EOS 231");
    notices.SetCard(MsdSurvey{"/media/EOS", "EOS", 232, 0, false});
    EXPECT_EQ(Offered(), "EOS 232");
    notices.AnswerCurrent();
    notices.SetCard(kCard);
    EXPECT_EQ(Offered(), "") << "closed once for this arrival";
    notices.SetCard(MsdSurvey{"/media/LUMIX", "LUMIX", 5, 0, false});
    EXPECT_EQ(Offered(), "LUMIX 5");

    notices.SetCard(std::nullopt);
    EXPECT_EQ(Offered(), "");
    notices.SetCard(kCard);
    EXPECT_EQ(Offered(), "EOS 231");
    notices.VolumeLeft("/media/EO");
    EXPECT_EQ(Offered(), "EOS 231");
    notices.AnswerCurrent();
    notices.VolumeLeft("/media");
    notices.SetCard(kCard);
    EXPECT_EQ(Offered(), "EOS 231");
}

TEST_F(Notices, TheSentenceTellsPhotosFromClips)
{
    const struct {
        int photos;
        int clips;
        bool isCut;
        StringId sentence;
    } rows[] = {{1, 0, false, StringId::noticePhotos},
                {0, 3, false, StringId::noticeClips},
                {2, 3, false, StringId::noticeBoth},
                {9000, 1000, true, StringId::noticeMany}};
    for (const auto& row : rows) {
        notices.SetCard(MsdSurvey{"/media/a", "a", row.photos, row.clips, row.isCut});
        EXPECT_EQ(notices.Current()->sentence, row.sentence);
        EXPECT_EQ(notices.Current()->count, row.photos + row.clips);
    }
}

TEST_F(Notices, OnlyAnAdapterThatComesLaterIsAPhoneAndItsFirstLineIsOffered)
{
    notices.SetPorts({kModem});
    EXPECT_EQ(Offered(), "");
    notices.SetPorts({kBuiltIn, kModem, kPhone, kPhoneToo});
    EXPECT_EQ(Offered(), "ttyACM0");
    notices.SetPorts({kBuiltIn, kModem, kPhone, kPhoneToo});
    notices.Answer(NoticeKind::card);
    EXPECT_EQ(Offered(), "ttyACM0");
    notices.Answer(NoticeKind::phone);
    notices.SetPorts({kModem, kPhone, kPhoneToo});
    EXPECT_EQ(Offered(), "");

    notices.SetPorts({kModem});
    notices.SetPorts({kModem, kPhone});
    EXPECT_EQ(Offered(), "ttyACM0");
    notices.SetPorts({});
    EXPECT_EQ(Offered(), "");
}

TEST_F(Notices, TheLatestArrivalComesFirstAndTheOneBeforeItNext)
{
    notices.SetCard(kCard);
    notices.SetPorts({});
    notices.SetPorts({kPhone});
    notices.SetCard(kCard);

    EXPECT_EQ(Offered(), "ttyACM0");
    notices.AnswerCurrent();
    EXPECT_EQ(Offered(), "EOS 231");
    notices.AnswerCurrent();
    EXPECT_EQ(Offered(), "");
}

TEST_F(Notices, TheLineThatIsOfferedBecomesTheHandsetsPort)
{
    services.profiles.values = {{"Port/com", "1"}};

    EXPECT_FALSE(app::UseLine("/p", {kBuiltIn, kPhone}, "/dev/ttyUSB7"));
    EXPECT_TRUE(app::UseLine("/p", {kBuiltIn, kPhone}, "/dev/ttyS0"));
    EXPECT_THAT(services.profiles.written, testing::IsEmpty());
    EXPECT_TRUE(app::UseLine("/p", {kBuiltIn, kPhone}, "/dev/ttyACM0"));
    EXPECT_EQ(services.profiles.values["Map/2"], "/dev/ttyACM0");
    EXPECT_EQ(services.profiles.values["Port/com"], "2");
}
