// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The frame's commands and dialogs in the real window: what they show, start, write and leave alone.
#include "platform/devices.h"
#include "ui/dialogs/options_dialog.h"
#include "ui/dialogs/properties_dialog.h"
#include "ui/dialogs/select_source_dialog.h"
#include "ui/viewer/slide_show.h"
#include "ui/words.h"
#include "window_test_base.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDialogButtonBox>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QThreadPool>

#include <gmock/gmock.h>

#include <set>

using app::CommandId;

namespace
{

class CTestScreen : public platform::CScreen
{
public:
    bool hasWindow = true;
    platform::BitmapHandle picture = std::make_shared<platform::Bitmap>(platform::Bitmap{4, 3, {}});
    std::function<void()> whileTaken;
    bool ChooseWindow() override { return hasWindow; }
    void Capture(Taken taken) override
    {
        whileTaken();
        taken(picture);
    }
};

class CTestDevices : public platform::CDevices
{
public:
    Handler handler;
    void Watch(Handler changed) override { handler = std::move(changed); }
    void WatchPorts(std::function<void()>) override {}
};

class CTestPorts : public platform::CSerialPorts
{
public:
    std::vector<platform::SerialPort> Ports() override { return {{"/dev/ttyACM0", "Handset", -1}}; }
};

class CTestSources : public platform::CPictureSources
{
public:
    std::optional<std::vector<platform::PictureSource>> sources;
    std::optional<std::vector<platform::PictureSource>> Sources() override { return sources; }
};

class CStartingShell : public support::CNotingShell
{
public:
    bool starts = true;
    std::vector<platform::Volume> volumes;
    bool WinExec(const std::string& command) override
    {
        log.push_back(command);
        return starts;
    }
    bool SHFileOperation(const platform::FileOperationRequest& request) override
    {
        const std::filesystem::path source = request.sources.at(0);
        std::filesystem::copy_file(source, request.target / source.filename());
        return std::filesystem::remove(source);
    }
    std::vector<platform::Volume> Volumes() override { return volumes; }
};

class CommandsTest : public support::WindowTest
{
protected:
    CommandsTest()
    {
        frame.reset();
        starting.base = shell.base;
        platform::Services all = platform::Os();
        all.shell = &starting;
        all.screen = &screen;
        all.devices = &devices;
        all.serialPorts = &ports;
        all.pictureSources = &sources;
        platform::Os() = all;
        frame = std::make_unique<ui::CMainFrame>(application, dataFolders);
        frame->resize(1000, 700);
        frame->show();
    }
    ~CommandsTest() override { QThreadPool::globalInstance()->waitForDone(); }

    // The text of the message on show, which is then closed; empty for none.
    std::string TakeMessage()
    {
        auto* box = frame->findChild<QMessageBox*>();
        if (!box)
            return {};
        const std::string text = (box->windowTitle() + "|" + box->text() +
                                  (box->informativeText().isEmpty() ? "" : "|" + box->informativeText()))
                                     .toStdString();
        box->accept();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return text;
    }
    template <typename Dialog> Dialog& Opened(CommandId id)
    {
        Run(id);
        return *frame->findChild<Dialog*>();
    }
    void Install(const std::string& program)
    {
        support::WriteBytes(services.utility.programFolder + "/" + program, "");
    }

    CStartingShell starting;
    CTestScreen screen;
    CTestDevices devices;
    CTestPorts ports;
    CTestSources sources;
};

}  // namespace

TEST_F(CommandsTest, PrintingDisablesTheWindowOnlyOnceTheProgramRunsAndUntilItsEnd)
{
    Add("a.jpg");
    Open();
    Run(CommandId::print);
    EXPECT_THAT(TakeMessage(), testing::HasSubstr("Select the pictures"));
    Select({"a.jpg"});
    Run(CommandId::print);
    EXPECT_THAT(TakeMessage(), testing::HasSubstr("not installed"));
    Install("Inkwell.EXE");
    starting.starts = false;
    Run(CommandId::print);
    EXPECT_THAT(TakeMessage(), testing::HasSubstr("not installed"));
    EXPECT_TRUE(frame->isEnabled());

    starting.starts = true;
    Run(CommandId::print);
    EXPECT_FALSE(frame->isEnabled());
    frame->State().OnAppletClose(2);
    EXPECT_FALSE(frame->isEnabled());
    frame->State().OnAppletClose(3);
    EXPECT_TRUE(frame->isEnabled());

    // One that never says that it ended.
    Run(CommandId::print);
    EXPECT_FALSE(frame->close());
    frame->findChild<QMessageBox*>()->buttons().front()->click();
    EXPECT_TRUE(frame->isEnabled() && frame->isVisible());
}

TEST_F(CommandsTest, ASlideShowIsOfThePicturesSelectedElseOfTheFolderAndNeverOfClips)
{
    const auto due = [&] {
        Run(CommandId::slideShow);
        auto* show = frame->findChild<ui::CSlideShow*>();
        const std::string path = show ? show->Due() : std::string();
        delete show;
        return path;
    };
    Open();
    EXPECT_EQ(due(), "");
    EXPECT_THAT(TakeMessage(), testing::HasSubstr("no pictures here"));
    for (const char* name : {"a.jpg", "b.jpg", "c.jpg", "d.mp4", "e.mpg"})
        Add(name);
    Open();
    List().Refresh();
    Settle();

    EXPECT_EQ(due(), folder + "/a.jpg");
    Select({"b.jpg"});
    EXPECT_EQ(due(), folder + "/b.jpg");
    Select({"c.jpg", "e.mpg"});
    EXPECT_EQ(due(), folder + "/c.jpg");
    Select({"a.jpg", "d.mp4"});
    EXPECT_EQ(due(), "");
    EXPECT_EQ(TakeMessage(), "Warning|Don't support AVI and ASF format.");
}

TEST_F(CommandsTest, TheSuitesButtonsSayWhatTheyLaunch)
{
    const struct {
        CommandId command;
        const char* text;
    } rows[] = {{CommandId::mms, "Vellum|Launch MMS"},
                {CommandId::sms, "Vellum|Launch SMS"},
                {CommandId::pim, "Vellum|Launch PIM Error|"},
                {CommandId::about, "About|Vellum 1.00"},
                {CommandId::videoTrim, "Vellum|Trimming videos needs"}};
    for (const auto& row : rows) {
        Run(row.command);
        EXPECT_THAT(TakeMessage(), testing::StartsWith(row.text));
    }
    services.messages.windows = {"QorvelMobile"};
    Run(CommandId::backToTaskPanel);
    EXPECT_EQ(TakeMessage(), "");
}

TEST_F(CommandsTest, ACaptureHidesTheWindowAndItsPictureShowsUpInTheList)
{
    bool wasHidden = false;
    screen.whileTaken = [&] { wasHidden = !frame->isVisible(); };
    frame->Tools().captureWait = 0;
    const auto capture = [&] {
        Run(CommandId::screenCapture);
        ASSERT_TRUE(QTest::qWaitFor([&] { return !frame->Tools().Capture().IsRunning(); }));
        Settle();
    };
    Open();

    capture();
    EXPECT_TRUE(wasHidden);
    EXPECT_TRUE(frame->isVisible());
    EXPECT_EQ(Names(), std::vector<std::string>{"ScreenCapture-0001.jpg"});

    screen.picture = nullptr;
    capture();
    screen.hasWindow = false;
    capture();
    EXPECT_THAT(TakeMessage(), testing::HasSubstr("no other window"));
    EXPECT_EQ(Names().size(), 1U);
}

TEST_F(CommandsTest, AMenuOpensWhereItWasAskedForAndHoldsThePanesCommands)
{
    Add("a.jpg");
    Open();
    Select({"a.jpg"});
    QMenu& menu = *frame->ContextMenus().Menu(app::MenuPane::list);
    const QPoint place = View().viewport()->mapToGlobal(QPoint(40, 30));
    QContextMenuEvent byMouse(QContextMenuEvent::Mouse, {40, 30}, place);
    QApplication::sendEvent(View().viewport(), &byMouse);
    ASSERT_TRUE(menu.isVisible());
    EXPECT_EQ(menu.pos(), place);
    EXPECT_TRUE(menu.actions().contains(frame->Menu()->Action(CommandId::properties)));
    menu.close();

    View().setFocus();
    QTest::keyClick(&View(), Qt::Key_F10, Qt::ShiftModifier);
    ASSERT_TRUE(menu.isVisible());
    menu.close();

    frame->LeftView()->setFocus();
    QContextMenuEvent byKey(QContextMenuEvent::Keyboard, {}, {});
    QApplication::sendEvent(frame->LeftView()->Tree(), &byKey);
    EXPECT_TRUE(frame->ContextMenus().Menu(app::MenuPane::leftPane)->isVisible());
    EXPECT_FALSE(menu.isVisible());
}

TEST_F(CommandsTest, VolumesComeAndGoInTheTreeAndTheRestStays)
{
    const std::string card = services.folder.Path("card");
    std::filesystem::create_directories(card);
    const auto count = [&] {
        const QAbstractItemModel& model = *frame->LeftView()->Tree()->model();
        return model.rowCount(model.index(model.rowCount() - 1, 0));
    };
    services.utility.now = 70;
    const int before = count();
    starting.volumes = {{card, "Card", true}, {"/srv", "Disk", false}};
    devices.handler({platform::DeviceEvent::arrived, true, 0, 1, card});
    EXPECT_EQ(frame->Devices().LastDeviceChange(), 70U);
    ASSERT_TRUE(QTest::qWaitFor([&] { return count() == before + 1; }));
    Open(card);
    EXPECT_EQ(frame->LeftView()->Mode(), app::TabMode::device);

    std::filesystem::remove_all(card);
    starting.volumes.clear();
    devices.handler({platform::DeviceEvent::removed, true, 0, 1, card});
    ASSERT_TRUE(QTest::qWaitFor([&] { return count() == before; }));
    Settle();
    EXPECT_EQ(List().List().Folder(), card);
    EXPECT_FALSE(List().EmptyState()->Heading().isEmpty());
    EXPECT_EQ(frame->LeftView()->Folder(), "");
}

TEST_F(CommandsTest, OptionsShowAdaptersByNameAndWriteThePortChosen)
{
    services.profiles.values = {{"Setting/DelDscPhoto", "1"}, {"Port/com", "200"}};
    auto& dialog = Opened<ui::COptionsDialog>(CommandId::options);
    QListWidget& list = *dialog.Ports();
    ASSERT_TRUE(QTest::qWaitFor([&] { return list.item(0)->text().contains("Handset"); }));
    EXPECT_EQ(list.count(), 255);
    EXPECT_EQ(dialog.Port(), 199);
    EXPECT_TRUE(list.item(1)->isHidden());
    EXPECT_FALSE(list.item(199)->isHidden());
    dialog.findChild<QLineEdit*>()->setText("COM 44");
    EXPECT_FALSE(list.item(43)->isHidden());

    list.setCurrentRow(0);
    services.profiles.written.clear();
    dialog.accept();

    EXPECT_THAT(services.profiles.written,
                testing::ElementsAre("Map/1=/dev/ttyACM0", "Setting/DelDscPhoto=1", "Port/com=1"));
}

TEST_F(CommandsTest, OptionsThatCannotBeWrittenStayOnShow)
{
    services.profiles.error = 5;
    auto& dialog = Opened<ui::COptionsDialog>(CommandId::options);
    EXPECT_EQ(dialog.Port(), -1);
    dialog.accept();

    EXPECT_TRUE(dialog.isVisible());
    EXPECT_NE(dialog.findChild<QMessageBox*>(), nullptr);
}

TEST_F(CommandsTest, TheSourceIsChosenAmongThoseFoundAndNoManagerIsToldOfOnce)
{
    Run(CommandId::selectSource);
    ASSERT_TRUE(QTest::qWaitFor([&] { return frame->findChild<QMessageBox*>() != nullptr; }));
    EXPECT_THAT(TakeMessage(),
                testing::HasSubstr("An error occurred while trying to open TWAIN Data Source."));

    sources.sources = {{{"a", "First"}, {"w", "WIA-First"}, {"b", "Second"}}};
    auto& dialog = Opened<ui::CSelectSourceDialog>(CommandId::selectSource);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !dialog.IsLooking(); }));
    EXPECT_EQ(dialog.Sources()->count(), 2);
    EXPECT_EQ(dialog.Sources()->currentRow(), 0);
    dialog.Sources()->setCurrentRow(1);
    dialog.accept();
    EXPECT_EQ(services.registry.keys["Software/Qorvel/Vellum"]["PictureSource"], "b");
}

TEST_F(CommandsTest, PropertiesTellOfOneFileOfSeveralAndOfTheFolderWhenNoneIsSelected)
{
    Add("a.jpg", "640x480");
    Add("b.txt", "12x1");
    Open();
    Run(CommandId::filterAllFiles);
    Settle();
    const auto shown = [&](const std::vector<std::string>& names, const char* wanted) {
        Select(names);
        auto& dialog = Opened<ui::CPropertiesDialog>(CommandId::properties);
        const auto texts = [&] {
            QStringList all;
            for (const QLabel* label : dialog.findChildren<QLabel*>())
                all.append(label->text());
            return all.join(QLatin1Char('\n'));
        };
        EXPECT_TRUE(QTest::qWaitFor([&] { return texts().contains(QString::fromUtf8(wanted)); }))
            << texts().toStdString();
        delete &dialog;
    };

    shown({"a.jpg", "b.txt"}, "2 files");
    shown({}, "1 folder, 2 files");
    shown({"b.txt"}, "4 bytes");
}

TEST_F(CommandsTest, EveryEntryOfAMenuHasALetterOfItsOwnAndEveryDialogADefaultAndAWayOut)
{
    for (const QMenu* menu : frame->menuBar()->findChildren<QMenu*>()) {
        std::set<QString> letters;
        for (const QAction* action : menu->actions()) {
            const auto mark = action->text().indexOf(QLatin1Char('&'));
            if (mark >= 0) {
                EXPECT_TRUE(letters.insert(action->text().mid(mark + 1, 1).toUpper()).second)
                    << action->text().toStdString();
            }
        }
    }
    sources.sources.emplace();
    Open();
    for (const CommandId id : {CommandId::options, CommandId::selectSource, CommandId::properties}) {
        Run(id);
        auto* dialog = frame->findChild<QDialog*>();
        bool hasDefault = false;
        for (const QWidget* widget : dialog->findChildren<QWidget*>()) {
            const auto* button = qobject_cast<const QPushButton*>(widget);
            hasDefault = hasDefault || (button && button->isDefault());
            const bool reached = (widget->focusPolicy() & Qt::TabFocus) != 0 && !widget->focusProxy();
            const bool named = !widget->accessibleName().isEmpty() ||
                               qobject_cast<const QAbstractButton*>(widget) || widget->inherits("QLabel") ||
                               widget->inherits("QTabBar");
            EXPECT_TRUE(!reached || named) << widget->metaObject()->className();
        }
        EXPECT_TRUE(hasDefault);
        QTest::keyClick(dialog, Qt::Key_Escape);
        EXPECT_FALSE(dialog->isVisible());
        delete dialog;
    }
}
