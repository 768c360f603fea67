// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/date_taken.h"
#include "browser/media_file_list.h"
#include "support/test_services.h"

#include <gtest/gtest.h>

using namespace browser;

namespace
{

constexpr platform::FileTime kNoon = 127'292'256'000'000'000;  // some day in 2004

class ListOrder : public testing::Test
{
protected:
    ListOrder() { std::filesystem::create_directories(place); }
    void Make(const std::string& name, const std::string& content, platform::FileTime modified = kNoon) const
    {
        support::WriteBytes(place + "/" + name, content);
        platform::Os().files->SetFileTime(place + "/" + name, 0, modified);
    }
    std::string Names() const
    {
        std::string names;
        for (int i = 0; i < list.Count(); ++i) {
            names += (i == 0 ? "" : " ") + list.Item(i).name;
        }
        return names;
    }
    // Asks the files what there is to ask and sorts, as the window does.
    void Order(SortOrder order)
    {
        list.SetOrder(order);
        while (list.FactsStep(100)) {
        }
        if (list.SortIsDue()) {
            list.Sort();
        }
    }

    support::TestServices services;
    const std::string place = services.folder.Path("photos");
    CMediaFileList list;
};

// Every file costs time.
class CSlowFiles : public support::CTestFileSystem
{
public:
    explicit CSlowFiles(support::CTestUtility& clock) : utility(clock) {}
    std::optional<platform::FileFacts> FindFirstFile(const std::string& path) override
    {
        utility.now += 100;
        return CTestFileSystem::FindFirstFile(path);
    }
    support::CTestUtility& utility;
};

}  // namespace

TEST_F(ListOrder, EachColumnSortsBothWaysWithFoldersFirstAndTiesByName)
{
    std::filesystem::create_directories(place + "/B");
    std::filesystem::create_directories(place + "/a10");
    std::filesystem::create_directories(place + "/a9");
    Make("x10.JPG", "640x480 2004:05:17 10:22:31", kNoon + 1);
    Make("x9.jpg", "640x480 2004:05:17 10:22:30", kNoon + 2);
    Make("b.png", "1x1", kNoon + 2);
    Make("a.png", "1x2", kNoon + 2);
    Make("c.jpg", "not a picture", kNoon);
    Make("d", "");
    list.SetFilter(kFilterAllFiles, 1);
    list.Fill(place);
    const std::string folders = "a9 a10 B ";
    const struct {
        SortOrder order;
        std::string names;
    } rows[] = {
        {{SortKey::name, false}, folders + "a.png b.png c.jpg d x9.jpg x10.JPG"},
        {{SortKey::name, true}, "B a10 a9 x10.JPG x9.jpg d c.jpg b.png a.png"},
        {{SortKey::size, false}, folders + "d a.png b.png c.jpg x9.jpg x10.JPG"},
        {{SortKey::size, true}, folders + "x9.jpg x10.JPG c.jpg a.png b.png d"},
        {{SortKey::type, false}, folders + "d c.jpg x9.jpg x10.JPG a.png b.png"},
        {{SortKey::type, true}, folders + "a.png b.png c.jpg x9.jpg x10.JPG d"},
        {{SortKey::dateTaken, false}, folders + "x9.jpg x10.JPG a.png b.png c.jpg d"},
        {{SortKey::dateTaken, true}, folders + "x10.JPG x9.jpg a.png b.png c.jpg d"},
    };
    for (const auto& row : rows) {
        for (const bool filledAnew : {false, true}) {
            Order(row.order);
            if (filledAnew) {
                list.Fill(place);
            }

            EXPECT_EQ(Names(), row.names) << static_cast<int>(row.order.key) << row.order.descending;
            EXPECT_FALSE(list.IsUnsorted());
        }
    }
    std::filesystem::remove_all(place + "/B");
    std::filesystem::remove_all(place + "/a9");
    std::filesystem::remove_all(place + "/a10");
    list.Fill(place);
    Order({SortKey::modified, true});
    EXPECT_EQ(Names(), "a.png b.png x9.jpg x10.JPG c.jpg d");
}

TEST_F(ListOrder, AListTooSlowToReadIsShownAsItIsAndSortedLater)
{
    for (int i = 0; i < 600; ++i) {
        Make("f" + std::to_string(i) + ".mid", std::string(static_cast<std::size_t>(600 - i), 'x'));
    }
    CSlowFiles slow(services.utility);
    const support::CServicesGuard guard(slow);
    list.SetOrder({SortKey::size, false});

    list.Fill(place);

    EXPECT_TRUE(list.IsUnsorted());
    EXPECT_FALSE(list.SortIsDue());
    EXPECT_EQ(list.Count(), 600);
    Order({SortKey::size, false});
    EXPECT_EQ(list.Item(0).name, "f599.mid");

    // Read again, it stands as it stood while its files are asked anew.
    list.Fill(place);
    EXPECT_TRUE(list.IsUnsorted());
    EXPECT_EQ(list.Item(0).name, "f599.mid");
    EXPECT_EQ(list.Item(599).name, "f0.mid");
}

TEST_F(ListOrder, ThumbnailsStayWithTheirFilesWhenTheOrderChanges)
{
    for (const char* name : {"a.jpg", "b.jpg", "c.jpg"}) {
        Make(name, "640x480");
    }
    list.Fill(place);
    list.CreateThumbnail(0);
    list.InvalidateThumbnail(1);

    list.SetOrder({SortKey::name, true});

    EXPECT_TRUE(list.Item(2).thumbnail);
    EXPECT_EQ(list.ThumbnailStep(true, VisibleRange{1, 2}).redraw, 1) << "b.jpg, which was to be made anew";
    EXPECT_EQ(list.ThumbnailStep(true, VisibleRange{2, 2}).redraw, 0);
    list.LetGoAllBitmaps();
    EXPECT_FALSE(list.Item(2).thumbnail);
}

TEST_F(ListOrder, ADateTakenIsReadOncePerStateOfItsFile)
{
    Make("a.jpg", "640x480 2004:05:17 10:22:31");
    Make("b.jpg", "640x480 2004:05:17 10:22:30");
    Make("clip.avi", "640x480 2004:05:17 10:22:30");
    Order({SortKey::dateTaken, false});
    list.Fill(place);
    EXPECT_EQ(services.images.opened.size(), 2U);

    Make("b.jpg", "640x480 2005:05:17 10:22:30 ");
    list.Fill(place);

    EXPECT_EQ(services.images.opened.size(), 3U);
    EXPECT_EQ(Names(), "a.jpg b.jpg clip.avi");
}

TEST(DateTaken, IsTheMomentWrittenAndNothingElse)
{
    constexpr platform::FileTime kSecond = 10'000'000;
    const struct {
        const char* text;
        platform::FileTime moment;
    } rows[] = {
        {"1970:01:01 00:00:00", 11'644'473'600 * kSecond},
        {"1970:01:02 00:00:01", 11'644'560'001 * kSecond},
        {"2004:02:30 10:22:31", 0},
        {"0000:00:00 00:00:00", 0},
        {"    :  :     :  :  ", 0},
        {"2004:05:17 24:00:00", 0},
        {"2004:05:17", 0},
        {"-004:05:17 10:22:31", 0},
        {"2004:05:17 10:-1:31", 0},
        {"", 0},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(ParseDateTaken(row.text), row.moment) << row.text;
    }
}
