// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The list's order and layout: sorting, columns, sizes, typing names, and how it comes back.
#include "window_test_base.h"

#include <QElapsedTimer>
#include <QHeaderView>
#include <QScrollBar>
#include <QToolButton>
#include <QWheelEvent>

using app::CommandId;

namespace
{

using Texts = std::vector<std::string>;

class ListLayoutTest : public support::WindowTest
{
protected:
    QHeaderView& Header() { return *List().Details()->header(); }
    void ClickHeader(int column)
    {
        const QPoint place(Header().sectionViewportPosition(column) + 20, Header().height() / 2);
        QTest::mouseClick(Header().viewport(), Qt::LeftButton, {}, place);
        WaitForOrder();
    }
    void WaitForOrder()
    {
        ASSERT_TRUE(QTest::qWaitFor([this] { return !List().List().IsUnsorted(); }, 30'000));
    }
    QRect Row(int row) { return View().visualRect(View().model()->index(row, 0)); }
    void Drag(const QPoint& from, const QPoint& to)
    {
        QTest::mousePress(View().viewport(), Qt::LeftButton, {}, from);
        QTest::mouseMove(View().viewport(), (from + to) / 2);
        QTest::mouseMove(View().viewport(), to);
        QTest::mouseRelease(View().viewport(), Qt::LeftButton, {}, to);
    }
    void Type(const char* text)
    {
        // The first letter begins anew, as it comes late; the others belong to it.
        QApplication::setKeyboardInputInterval(0);
        QElapsedTimer sinceLast;
        sinceLast.start();
        ASSERT_TRUE(QTest::qWaitFor([&sinceLast] { return sinceLast.hasExpired(2); }));
        QTest::keyClick(&View(), *text);
        QApplication::setKeyboardInputInterval(60'000);
        QTest::keyClicks(&View(), QLatin1String(text + 1));
    }
    std::string Current() { return Names().at(static_cast<std::size_t>(View().currentIndex().row())); }
    bool IsOn(CommandId id) const { return frame->Menu()->Action(id)->isChecked(); }
    // Ends the window and opens a new one on the same folder; `settings` are put into the file in between.
    void Restart(const std::map<std::string, std::string>& settings = {})
    {
        frame.reset();
        for (const auto& [key, value] : settings)
            services.profiles.values["Files\\ListView/" + key] = value;
        frame = std::make_unique<ui::CMainFrame>(application, dataFolders);
        frame->resize(1000, 700);
        frame->show();
        Open();
    }
};

}  // namespace

TEST_F(ListLayoutTest, HeaderAndMenuSortAlikeAndKeepTheSelection)
{
    Add("a.mid", "333");
    Add("b.mid", "1");
    Add("c.mid", "22");
    Run(CommandId::details);
    Open();
    Select({"a.mid", "b.mid"});

    ClickHeader(ui::CMediaListModel::sizeColumn);

    EXPECT_EQ(Names(), (Texts{"b.mid", "c.mid", "a.mid"}));
    EXPECT_EQ(SelectedNames(), (Texts{"b.mid", "a.mid"}));
    EXPECT_TRUE(IsOn(CommandId::sortBySize) && IsOn(CommandId::sortAscending));
    ClickHeader(ui::CMediaListModel::sizeColumn);
    EXPECT_EQ(Names(), (Texts{"a.mid", "c.mid", "b.mid"}));
    EXPECT_TRUE(IsOn(CommandId::sortBySize) && IsOn(CommandId::sortDescending));
    EXPECT_FALSE(IsOn(CommandId::sortByName) || IsOn(CommandId::sortAscending));
    Run(CommandId::thumbnails);
    Run(CommandId::sortByName);
    EXPECT_EQ(Names(), (Texts{"c.mid", "b.mid", "a.mid"}));
    EXPECT_EQ(Current(), "b.mid");
    EXPECT_EQ(Header().sortIndicatorSection(), 0);
    EXPECT_EQ(Header().sortIndicatorOrder(), Qt::DescendingOrder);
}

TEST_F(ListLayoutTest, TheCurrentItemStaysWhereItIsSeenWhenTheOrderChanges)
{
    for (int i = 0; i < 300; ++i)
        Add("f" + std::to_string(i) + ".mid", std::string(static_cast<std::size_t>((i * 7 + 40) % 300), 'x'));
    Open();
    for (const CommandId view : {CommandId::thumbnails, CommandId::details}) {
        Run(view);
        Run(CommandId::sortByName);
        Select({"f150.mid"});
        View().scrollTo(View().currentIndex(), QAbstractItemView::PositionAtCenter);
        const int top = Row(View().currentIndex().row()).top();

        Run(CommandId::sortBySize);
        WaitForOrder();

        EXPECT_EQ(SelectedNames(), Texts{"f150.mid"});
        EXPECT_NE(View().currentIndex().row(), 150);
        EXPECT_NEAR(Row(View().currentIndex().row()).top(), top, 1);
    }
}

TEST_F(ListLayoutTest, TheListComesBackAsItWasLeft)
{
    Add("a.jpg", "640x480 2005:01:01 00:00:00");
    Add("b.jpg", "640x480 2004:01:01 00:00:00");
    Add("c.avi");
    std::filesystem::create_directories(folder + "/Sub");
    Open();
    Run(CommandId::details);
    Run(CommandId::dateTakenColumn);
    Run(CommandId::sortByDateTaken);
    Run(CommandId::includeFolder);
    Run(CommandId::filterPhoto);
    Run(CommandId::sizeLarge);
    Header().moveSection(0, 2);
    Header().resizeSection(ui::CMediaListModel::typeColumn, 333);

    Restart();

    EXPECT_EQ(Names(), (Texts{"Sub", "b.jpg", "a.jpg"}));
    EXPECT_EQ(List().Style(), ui::ViewStyle::details);
    EXPECT_EQ(List().Thumbnails()->ThumbnailSide(), 180);
    EXPECT_TRUE(IsOn(CommandId::dateTakenColumn) && IsOn(CommandId::filterPhoto));
    EXPECT_EQ(Header().visualIndex(0), 2);
    EXPECT_EQ(Header().sectionSize(ui::CMediaListModel::typeColumn), 333);
    EXPECT_EQ(services.profiles.values["Files\\ListView/Headings"], "Name|Size|Type|Modified|Date Taken");
    EXPECT_EQ(services.profiles.values["Files\\ListView/ColumnWidths1"], "0") << "it takes what is left";
    ASSERT_TRUE(QTest::qWaitFor([this] { return List().List().AllRead(); }, 30'000));
    const QModelIndex date = View().model()->index(1, ui::CMediaListModel::dateTakenColumn);
    EXPECT_TRUE(date.data().toString().contains(QStringLiteral("2004")));
    Run(CommandId::dateTakenColumn);
    Restart();
    EXPECT_FALSE(List().Details()->IsDateTakenShown());
}

TEST_F(ListLayoutTest, EachViewShowsTheSameFilesKeepsTheSelectionAndComesBack)
{
    AddMany(40, ".mid");
    Open();
    Select({"photo3.mid", "photo7.mid"});
    for (const CommandId view :
         {CommandId::smallIcons, CommandId::list, CommandId::details, CommandId::thumbnails}) {
        Run(view);

        EXPECT_EQ(SelectedNames(), (Texts{"photo3.mid", "photo7.mid"}));
        EXPECT_TRUE(View().isVisible() && IsOn(view));
        QTest::keyClick(&View(), Qt::Key_Home);
        QTest::keyClicks(&View(), QStringLiteral("photo39"));
        EXPECT_EQ(SelectedNames(), Texts{"photo39.mid"});
        QTest::mouseClick(View().viewport(), Qt::LeftButton, {},
                          View().visualRect(View().model()->index(39, 0)).center());
        EXPECT_EQ(SelectedNames(), Texts{"photo39.mid"}) << "it has been scrolled to";
        Restart();
        EXPECT_TRUE(IsOn(view));
        Select({"photo3.mid", "photo7.mid"});
    }
}

TEST_F(ListLayoutTest, OddSettingsGiveAWindowThatCanBeUsed)
{
    AddMany(3, ".mid");
    std::map<std::string, std::string> odd = {{"Headings", "|||||||Mine||"}};
    for (const char* key :
         {"Style", "RowSelection", "ViewType", "ColumnSizing", "SortColumn", "ThumbSize", "Columns",
          "ColumnOrder1", "ColumnOrder2", "ColumnWidths1", "ColumnWidths2", "IncludeFolder", "Filter"})
        odd[key] = "2147483647";

    Restart(odd);

    EXPECT_EQ(Names(), (Texts{"photo0.mid", "photo1.mid", "photo2.mid"}));
    for (int column = 0; column < 4; ++column) {
        EXPECT_GE(Header().sectionSize(column), 24);
        EXPECT_LE(Header().sectionSize(column), 4000);
        EXPECT_FALSE(View().model()->headerData(column, Qt::Horizontal).toString().isEmpty());
    }
}

TEST_F(ListLayoutTest, TypingFindsNamesWhateverTheirCase)
{
    for (const char* name : {"alpha.mid", "Beta 1.mid", "beta 2.mid", "Gamma.mid"})
        Add(name);
    Open();
    for (const CommandId view : {CommandId::thumbnails, CommandId::details}) {
        Run(view);
        View().setFocus();
        View().setCurrentIndex(View().model()->index(0, 0));
        const struct {
            const char* typed;
            const char* found;
        } rows[] = {{"b", "Beta 1.mid"},
                    {"BETA 2", "beta 2.mid"},
                    {"g", "Gamma.mid"},
                    {"bb", "beta 2.mid"},
                    {"zz", "beta 2.mid"}};
        for (const auto& row : rows) {
            Type(row.typed);
            EXPECT_EQ(Current(), row.found) << row.typed;
        }
    }
}

TEST_F(ListLayoutTest, ABandOverTheDetailsSelectsRowsAndANameIsNoPlaceForOne)
{
    AddMany(30, ".mid");
    Run(CommandId::details);
    Open();
    const int side = View().viewport()->width() - 10;

    Drag({side, Row(2).center().y()}, {side - 40, Row(5).center().y()});

    EXPECT_EQ(SelectedNames(), (Texts{"photo2.mid", "photo3.mid", "photo4.mid", "photo5.mid"}));
    Run(CommandId::filterVideo);
    Run(CommandId::filterMedia);
    Settle();
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
    AddMany(3, ".mid");
    Run(CommandId::refresh);
    Settle();
    Drag({side, Row(2).bottom() + 60}, {side - 40, Row(1).center().y()});
    EXPECT_EQ(SelectedNames(), (Texts{"photo1.mid", "photo2.mid"}));
}

TEST_F(ListLayoutTest, WithoutRowSelectionOnlyTheNameTakesAClick)
{
    AddMany(3, ".mid");
    Restart({{"RowSelection", "0"}, {"ViewType", "1"}});
    const QPoint aside(View().viewport()->width() - 10, Row(1).center().y());

    QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, aside);
    EXPECT_TRUE(SelectedNames().empty());
    QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, Row(1).center());
    EXPECT_EQ(SelectedNames(), Texts{"photo1.mid"});
    List().Details()->SetRowSelection(true);
    QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, aside + QPoint(0, Row(0).height()));
    EXPECT_EQ(SelectedNames(), Texts{"photo2.mid"});
}

TEST_F(ListLayoutTest, WheelKeysSliderAndMenuAgreeOnTheThumbnailSize)
{
    AddMany(3, ".mid");
    Open();
    const auto turn = [this](int by) {
        QWheelEvent event({50, 50}, View().mapToGlobal(QPointF(50, 50)), {}, {0, by}, Qt::NoButton,
                          Qt::ControlModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(View().viewport(), &event);
    };
    const auto* slider = frame->findChild<QSlider*>();
    Run(CommandId::sizeMedium);

    turn(60);
    EXPECT_EQ(List().Thumbnails()->ThumbnailSide(), 120);
    turn(60);
    EXPECT_EQ(List().Thumbnails()->ThumbnailSide(), 140);
    EXPECT_EQ(slider->value() * 20, 140);
    EXPECT_FALSE(IsOn(CommandId::sizeMedium) || IsOn(CommandId::sizeLarge));
    turn(120 * 50);
    EXPECT_TRUE(IsOn(CommandId::sizeLarge));
    turn(-120 * 50);
    EXPECT_EQ(List().Thumbnails()->ThumbnailSide(), 60);
    Run(CommandId::sizeSmall);
    EXPECT_EQ(slider->value() * 20, 80);
}
