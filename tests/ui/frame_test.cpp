// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The frame and the left pane: tabs, trees, commands, and the folder that both panes agree on.
#include "window_test_base.h"

#include "ui/words.h"

#include <QSlider>

#include <gmock/gmock.h>

#include <set>

using app::CommandId;

namespace
{

class FrameTest : public support::WindowTest
{
protected:
    void Click(int tab) { QTest::mouseClick(frame->LeftView()->Tabs()->Button(tab), Qt::LeftButton); }
    const std::string& Shown() { return List().List().Folder(); }
};

}  // namespace

TEST_F(FrameTest, TheFolderSelectedInTheVisibleTreeIsTheOneListed)
{
    ui::CLeftView& left = *frame->LeftView();
    const std::string favourite = dataFolders.FolderPath(app::DataFolderKind::ring);
    const std::string ring = favourite.substr(0, favourite.size() - 1);
    EXPECT_EQ(left.Mode(), app::TabMode::device);

    frame->GoToStart();
    EXPECT_TRUE(Shown().ends_with("/My Favorite/Photo"));
    frame->GoTo(ring);
    EXPECT_EQ(left.Mode(), app::TabMode::device);
    EXPECT_EQ(Shown(), ring);

    // The device tree does not lead here, so the folder tree takes over.
    frame->GoTo(folder);
    EXPECT_EQ(left.Mode(), app::TabMode::folder);
    EXPECT_EQ(left.Folder(), folder);

    Click(app::kDeviceTab);
    EXPECT_EQ(Shown(), ring);
    Click(app::kSearchTab);
    EXPECT_EQ(left.Mode(), app::TabMode::search);
    EXPECT_EQ(Shown(), ring);
    Click(app::kFolderTab);
    EXPECT_EQ(Shown(), folder);
    EXPECT_TRUE(left.Tabs()->Button(app::kFolderTab)->isChecked());
    EXPECT_FALSE(left.Tabs()->Button(app::kDeviceTab)->isChecked());
}

TEST_F(FrameTest, FoldersAreEnteredAndLeftWithTheKeyboard)
{
    const std::string inner = folder + "/caf\xE9/deep";
    std::filesystem::create_directories(inner);
    Run(CommandId::includeFolder);
    Open();

    for (const std::string& step : {folder + "/caf\xE9", inner}) {
        QTest::keyClick(&View(), Qt::Key_Home);
        QTest::keyClick(&View(), Qt::Key_Return);
        Settle();
        EXPECT_EQ(Shown(), step);
        EXPECT_EQ(frame->LeftView()->Folder(), step);
    }
    frame->ListView()->UpAction()->trigger();
    Settle();
    EXPECT_EQ(Shown(), folder + "/caf\xE9");
    EXPECT_EQ(SelectedNames(), std::vector<std::string>{"deep"});
}

TEST_F(FrameTest, TheTreeReadsAFolderWhenItIsOpenedAndAgainTheNextTime)
{
    for (const char* name : {"b10", "b9", "A", ".hidden"})
        std::filesystem::create_directories(folder + "/" + name);
    Add("file.jpg");
    ui::CFolderTreeModel model({{app::PlaceKind::folder, "place", folder, true, {}}});
    const QModelIndex place = model.index(0, 0);
    const auto read = [&] {
        model.Read(place);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !model.IsReading(); }));
        QStringList names;
        for (int row = 0; row < model.rowCount(place); ++row)
            names.append(model.index(row, 0, place).data().toString());
        return names.join(QLatin1Char(' ')).toStdString();
    };

    EXPECT_TRUE(model.hasChildren(place));
    EXPECT_EQ(model.rowCount(place), 0);
    const QPersistentModelIndex revealed = model.Reveal(folder + "/.hidden/x/y");
    EXPECT_EQ(model.Path(revealed), folder + "/.hidden/x/y");
    EXPECT_EQ(read(), ".hidden A b9 b10");
    EXPECT_EQ(model.Path(revealed), folder + "/.hidden/x/y");
    EXPECT_FALSE(model.Reveal(services.folder.Path()).isValid());

    std::filesystem::remove(folder + "/b9");
    std::filesystem::create_directories(folder + "/B1");
    EXPECT_EQ(read(), ".hidden A B1 b10");

    std::filesystem::remove_all(folder);
    EXPECT_EQ(read(), "");
    EXPECT_FALSE(model.hasChildren(place));
}

TEST_F(FrameTest, CommandsWithoutTheirSubsystemAreDisabledAndSayWhy)
{
    for (const app::Command& command : app::Commands()) {
        const QAction& action = *frame->Menu()->Action(command.id);
        const QString name = action.text();
        if (command.id == CommandId::undo)
            continue;  // nothing has been done that could be taken back
        EXPECT_EQ(action.isEnabled(), command.missing == ui::StringId::none) << name.toStdString();
        EXPECT_EQ(frame->Router().Has(command.id), action.isEnabled()) << name.toStdString();
        EXPECT_TRUE(action.isEnabled() || action.toolTip() == ui::Text(command.missing));
        EXPECT_EQ(action.shortcut().isEmpty(), command.shortcut.empty()) << name.toStdString();
    }
}

TEST_F(FrameTest, TheThumbnailSizeControlAndItsCommandsFollowEachOther)
{
    auto& control = *frame->findChild<QSlider*>();
    const struct {
        CommandId command;
        int side;
    } rows[] = {{CommandId::sizeLarge, 180}, {CommandId::sizeSmall, 80}, {CommandId::sizeMedium, 120}};
    for (const auto& row : rows) {
        Run(row.command);
        EXPECT_EQ(List().Thumbnails()->ThumbnailSide(), row.side);
    }
    control.setValue(control.maximum());
    EXPECT_TRUE(frame->Menu()->Action(CommandId::sizeLarge)->isChecked());

    Run(CommandId::details);
    EXPECT_FALSE(control.isEnabled());
    Run(CommandId::thumbnails);
    EXPECT_TRUE(control.isEnabled());
}

TEST_F(FrameTest, TheTitleIsTheCaptionWhereThereIsOne)
{
    EXPECT_EQ(frame->windowTitle(), QStringLiteral("Vellum"));

    services.profiles.values["Manager/caption"] = "My pictures";
    const ui::CMainFrame other(application, dataFolders);
    EXPECT_EQ(other.windowTitle(), QStringLiteral("My pictures"));
}

TEST_F(FrameTest, TheSettingsLiveAsLongAsTheWindow)
{
    ASSERT_NE(app::CurrentSettings(), nullptr);
    EXPECT_EQ(app::CurrentSettings()->fileName, services.utility.programFolder + "/Kelvo.ini");
    app::CurrentSettings()->sort = 5;
    services.profiles.written.clear();

    frame.reset();

    EXPECT_EQ(app::CurrentSettings(), nullptr);
    EXPECT_THAT(services.profiles.written, testing::Contains("Setting/Sort=5"));
}

TEST_F(FrameTest, EveryControlHasANameAndF6GoesFromPaneToPane)
{
    for (const QWidget* widget : frame->findChildren<QWidget*>()) {
        const bool reached = widget->focusPolicy() != Qt::NoFocus && !widget->focusProxy();
        if (reached && widget->isVisible() && !widget->accessibleName().isEmpty())
            continue;
        EXPECT_FALSE(reached && widget->isVisible() && !widget->inherits("QMenuBar"))
            << widget->metaObject()->className();
    }

    Click(app::kFolderTab);
    frame->ListView()->setFocus();
    QTest::keyClick(frame.get(), Qt::Key_F6);
    EXPECT_EQ(frame->focusWidget(), frame->LeftView()->Tree());
    QTest::keyClick(frame.get(), Qt::Key_F6);
    EXPECT_EQ(frame->focusWidget(), &View());
}

TEST_F(FrameTest, TheTabKeyStopsAtEveryControlThatTakesIt)
{
    Add("a.jpg");
    Open();
    std::set<QWidget*> wanted;
    for (auto* control : frame->findChildren<QWidget*>()) {
        const bool isStop = (control->focusPolicy() & Qt::TabFocus) != 0 && !control->focusProxy();
        if (isStop && control->isVisible() && control->isEnabled())
            wanted.insert(control);
    }

    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) {
        std::set<QWidget*> reached;
        for (std::size_t i = 0; i < wanted.size(); ++i) {
            QTest::keyClick(frame->focusWidget(), key);
            reached.insert(frame->focusWidget());
        }
        EXPECT_EQ(reached, wanted);
    }
}

TEST_F(FrameTest, AMenuOffersOnlyTheWorkOnFilesThatItsPaneCanDo)
{
    Add("a.jpg");
    Open();
    List().SelectNone();
    const auto* menus = frame->Menu();
    QMenu* edit = menus->Menu(app::MenuId::edit);
    for (const bool chosen : {false, true}) {
        if (chosen)
            Select({"a.jpg"});
        Q_EMIT edit->aboutToShow();
        for (const CommandId id : {CommandId::copy, CommandId::cut, CommandId::remove, CommandId::rename})
            EXPECT_EQ(menus->Action(id)->isEnabled(), chosen);
        EXPECT_TRUE(menus->Action(CommandId::newFolder)->isEnabled());

        Q_EMIT edit->aboutToHide();
        EXPECT_TRUE(menus->Action(CommandId::copy)->isEnabled());
    }
}
