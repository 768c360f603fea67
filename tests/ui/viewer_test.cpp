// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The large view and the slide show in a real window.
#include "ui/empty_state.h"
#include "ui/viewer/picture_viewer.h"
#include "ui/viewer/slide_show.h"
#include "window_test_base.h"

#include <QSignalSpy>
#include <QToolButton>

using app::CommandId;

namespace
{

class ViewerTest : public support::WindowTest
{
protected:
    // Opens the large view with the Enter key.
    void Enter(const std::string& name)
    {
        Select({name});
        View().setFocus();
        QTest::keyClick(&View(), Qt::Key_Return);
        ASSERT_TRUE(frame->Pages()->IsViewing());
        Wait();
    }
    void Wait()
    {
        ASSERT_TRUE(QTest::qWaitFor([this] { return Viewer().IsComplete(); }, 30'000));
    }
    void Key(Qt::Key key) { QTest::keyClick(Viewer().focusProxy(), key); }
    ui::CPictureViewer& Viewer() { return *frame->Pages()->Viewer(); }
    const ui::CPictureCanvas& Canvas() { return Viewer().Canvas(); }
    std::string Name() { return Viewer().Name(); }
};

using Texts = std::vector<std::string>;

}  // namespace

TEST_F(ViewerTest, KeysGoThroughThePicturesAndBackToTheThumbnail)
{
    std::filesystem::create_directories(folder + "/Sub");
    for (const char* name : {"a.jpg", "b.txt", "c.png", "d.mid", "e.avi"})
        Add(name);
    AddMany(200);
    Run(CommandId::filterAllFiles);
    Run(CommandId::includeFolder);
    Open();
    Enter("a.jpg");

    const struct {
        Qt::Key key;
        const char* name;
    } rows[] = {
        {Qt::Key_Right, "c.png"},  {Qt::Key_Space, "e.avi"},      {Qt::Key_Backspace, "c.png"},
        {Qt::Key_Left, "a.jpg"},   {Qt::Key_Left, "a.jpg"},       {Qt::Key_PageDown, "photo7.jpg"},
        {Qt::Key_PageUp, "a.jpg"}, {Qt::Key_End, "photo199.jpg"}, {Qt::Key_Right, "photo199.jpg"},
        {Qt::Key_Home, "a.jpg"},   {Qt::Key_End, "photo199.jpg"},
    };
    for (const auto& row : rows) {
        Key(row.key);
        EXPECT_EQ(Name(), row.name);
        EXPECT_EQ(SelectedNames(), Texts{row.name});
    }
    Wait();
    EXPECT_EQ(Canvas().accessibleName(), QStringLiteral("photo199.jpg, 203 of 203"));
    EXPECT_TRUE(Viewer().Bar().FactsText().contains(QStringLiteral("640 \u00d7 480")));
    Key(Qt::Key_Escape);

    EXPECT_FALSE(frame->Pages()->IsViewing());
    EXPECT_EQ(View().currentIndex().row(), RowOf("photo199.jpg"));
    EXPECT_TRUE(View().viewport()->rect().contains(View().visualRect(View().currentIndex())));
    EXPECT_EQ(frame->focusWidget(), &View());
}

TEST_F(ViewerTest, AnUnbrokenWayPastABrokenPictureAndAClip)
{
    Add("a.jpg", "broken");
    const std::string clip = Add("b.avi");
    Add("c.avi", "broken");
    Add("d.jpg");
    Open();
    Enter("a.jpg");
    EXPECT_EQ(Viewer().Message().Heading(), QStringLiteral("This picture cannot be shown"));
    EXPECT_EQ(Canvas().accessibleName(), QStringLiteral("a.jpg, cannot be shown, 1 of 4"));
    EXPECT_FALSE(Viewer().PlayButton()->isVisible());

    Key(Qt::Key_Right);
    Wait();
    EXPECT_FALSE(Viewer().Message().isVisible());
    QTest::mouseClick(Viewer().PlayButton(), Qt::LeftButton);
    EXPECT_EQ(shell.opened, Texts{clip});

    Key(Qt::Key_Right);
    Wait();
    EXPECT_EQ(Viewer().Message().Heading(), QStringLiteral("There is no picture of this clip"));
    EXPECT_TRUE(Viewer().PlayButton()->isVisible());
    Key(Qt::Key_Right);
    Wait();
    EXPECT_FALSE(Viewer().Message().isVisible());
    EXPECT_FALSE(Viewer().PlayButton()->isVisible());
}

TEST_F(ViewerTest, ZoomingDecodesAsManyPixelsAsAreSeen)
{
    Add("a.jpg", "6000x4000");
    Add("b.jpg", "6000x4000");
    Open();
    Enter("a.jpg");
    const auto decoded = [this] { return Canvas().Wanted({}).box; };
    EXPECT_EQ(decoded(), (platform::Extent{Canvas().width(), Canvas().height()}));

    Key(Qt::Key_1);
    EXPECT_EQ(decoded(), (platform::Extent{6000, 4000}));
    EXPECT_FALSE(Canvas().IsSharp());
    Wait();
    Key(Qt::Key_Minus);
    EXPECT_EQ(decoded(), (platform::Extent{4800, 3200}));
    Wait();
    QTest::mouseDClick(const_cast<ui::CPictureCanvas*>(&Canvas()), Qt::LeftButton);
    EXPECT_TRUE(Canvas().Zoom().IsFit());
    EXPECT_TRUE(Canvas().IsSharp()) << "the whole picture is still held";

    Key(Qt::Key_1);
    Key(Qt::Key_Right);
    EXPECT_TRUE(Canvas().Zoom().IsFit());
    Wait();
    EXPECT_TRUE(Viewer().Bar().FactsText().contains(QStringLiteral("2 of 2")));
}

TEST_F(ViewerTest, TheListMayChangeUnderThePicture)
{
    for (const char* name : {"b.jpg", "c.jpg", "d.jpg"})
        Add(name);
    Open();
    Enter("c.jpg");
    const auto refresh = [this] {
        Run(CommandId::refresh);
        Settle();
        QCoreApplication::processEvents();
        Wait();
    };

    Add("a.jpg");
    refresh();
    EXPECT_EQ(Name(), "c.jpg");
    EXPECT_TRUE(Viewer().Bar().FactsText().startsWith(QStringLiteral("3 of 4")));

    Add("c.jpg", "320x200 2004:05:17");
    refresh();
    ASSERT_TRUE(QTest::qWaitFor([this] { return Canvas().OriginalSize().width == 320; }, 30'000));

    std::filesystem::remove(folder + "/c.jpg");
    refresh();
    EXPECT_EQ(Name(), "d.jpg");
    EXPECT_EQ(SelectedNames(), Texts{"d.jpg"});
    std::filesystem::remove(folder + "/d.jpg");
    refresh();
    EXPECT_EQ(Name(), "b.jpg");

    // What is selected behind the view's back does not stay so: Delete means the picture that is seen.
    Run(CommandId::selectAll);
    EXPECT_EQ(SelectedNames(), Texts{"b.jpg"});
    QSignalSpy commands(frame->Pages(), &ui::CViewerPages::CommandWanted);
    Key(Qt::Key_Delete);
    EXPECT_EQ(commands.size(), 1);

    Open(services.folder.Path("user"));
    QCoreApplication::processEvents();
    EXPECT_FALSE(frame->Pages()->IsViewing());
}

TEST_F(ViewerTest, FullScreenAndBackAreOneStepEach)
{
    AddMany(3);
    Open();
    Enter("photo1.jpg");
    Key(Qt::Key_F11);
    EXPECT_TRUE(Viewer().isWindow() && Viewer().isFullScreen());
    EXPECT_EQ(Canvas().height(), Viewer().height());
    Key(Qt::Key_Right);
    EXPECT_EQ(SelectedNames(), Texts{"photo2.jpg"});

    Key(Qt::Key_Escape);
    EXPECT_FALSE(Viewer().isWindow());
    EXPECT_TRUE(frame->Pages()->IsViewing());
    QTest::mouseClick(const_cast<ui::CPictureCanvas*>(&Canvas()), Qt::BackButton);
    EXPECT_FALSE(frame->Pages()->IsViewing());
}

TEST_F(ViewerTest, TheSlideShowGoesAroundPastFilesThatAreNoPictures)
{
    const std::string a = Add("a.jpg");
    const std::string b = Add("b.jpg", "broken");
    const std::string c = Add("c.jpg");
    EXPECT_EQ(ui::StartSlideShow({}, {}, frame.get()), nullptr);
    QPointer<ui::CSlideShow> show = ui::StartSlideShow({a, b, c}, c, frame.get());
    const auto shows = [&](const std::string& path) {
        return QTest::qWaitFor([&] { return show->IsShown() && show->Due() == path; }, 30'000);
    };
    ASSERT_TRUE(shows(c));

    QTest::keyClick(show, Qt::Key_Right);
    EXPECT_TRUE(shows(a));
    QTest::keyClick(show, Qt::Key_Right);
    EXPECT_TRUE(shows(c)) << "past the broken one";
    QTest::keyClick(show, Qt::Key_Left);
    EXPECT_TRUE(shows(a)) << "past it the other way";
    QTest::keyClick(show, Qt::Key_Space);
    EXPECT_TRUE(show->IsPaused());
    QTest::keyClick(show, Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([&] { return show.isNull(); }, 30'000));

    Open();
    const struct {
        Texts selected;
        std::string next;
    } rows[] = {{{"b.jpg", "c.jpg"}, c}, {{"c.jpg"}, a}};
    for (const auto& row : rows) {
        Select(row.selected);
        show = frame->Pages()->ShowSlides();
        EXPECT_TRUE(shows(c));
        QTest::keyClick(show, Qt::Key_Right);
        EXPECT_TRUE(shows(row.next));
        show->close();
    }
    show = ui::StartSlideShow({b}, {}, frame.get());
    EXPECT_TRUE(shows(b)) << "none can be shown: it says so";
}
