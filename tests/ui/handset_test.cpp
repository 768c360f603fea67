// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Sending to, fetching from and deleting on a handset in the window: the simulator at a real terminal.
#include "handset/record_file.h"
#include "handset_link/simulator.h"
#include "real_files_test.h"
#include "suite/handset/handset_library.h"
#include "ui/handset/fetch_dialog.h"
#include "ui/handset/send_dialog.h"
#include "ui/words.h"

#include <QCheckBox>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>

#include <gmock/gmock.h>

using app::CommandId;
using platform::StringId;
using testing::ElementsAre;
using ui::Counted;
using ui::Text;

namespace
{

class HandsetTest : public support::RealFilesTest<>
{
protected:
    HandsetTest()
        : library({[this](unsigned number) { return number == 3 ? simulator.Port() : std::string(); },
                   handset::AddHandsetRecord,
                   {}})
    {
        platform::Os().handset = &library;
        services.profiles.values["Port/com"] = "3";
    }
    ~HandsetTest() override { frame.reset(); }

    template <typename Dialog> Dialog* Find() const
    {
        for (Dialog* dialog : frame->findChildren<Dialog*>()) {
            if (dialog->isVisible())
                return dialog;
        }
        return nullptr;
    }
    template <typename Dialog> Dialog& Opened(CommandId command)
    {
        Run(command);
        return *Find<Dialog>();
    }
    ui::CSendDialog& OpenSending(const std::vector<std::string>& names)
    {
        Open();
        Select(names);
        auto& dialog = Opened<ui::CSendDialog>(CommandId::downloadToMobile);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !dialog.IsPlanning(); }));
        return dialog;
    }
    static QPushButton& Button(QDialog& dialog, const char* name)
    {
        return *dialog.findChild<QPushButton*>(QString::fromLatin1(name));
    }
    static void Click(QDialog& dialog, const char* name)
    {
        EXPECT_TRUE(QTest::qWaitFor([&] { return Button(dialog, name).isEnabled(); }, kPatience)) << name;
        Button(dialog, name).click();
    }
    static QString TextOf(const QDialog& dialog, const char* name)
    {
        return dialog.findChild<QLabel*>(QString::fromLatin1(name))->text();
    }
    // Waits for a message and agrees to it.
    QString Message()
    {
        EXPECT_TRUE(QTest::qWaitFor([&] { return Find<QMessageBox>() != nullptr; }, kPatience));
        auto* box = Find<QMessageBox>();
        const QString text = box ? box->text() : QString();
        if (box)
            box->accept();
        return text;
    }
    static QString Note(const ui::CSendDialog& dialog, int row)
    {
        const auto* table = dialog.findChild<ui::CSendTable*>();
        return table->topLevelItem(row)->text(table->columnCount() - 1);
    }
    std::string Content(const std::string& path) const
    {
        return support::ReadBytes(simulator.root.Path(path));
    }

    static constexpr int kPatience = 20'000;
    CSimulator simulator;
    suite::CHandsetLibrary library;
};

TEST_F(HandsetTest, TheSelectionIsShownAsWhatItBecomesAndSent)
{
    std::filesystem::create_directory(simulator.root.Path("Java"));
    Add("large.jpg", "200x100");
    Add("small.jpg", "20x10");
    Add("tune.mmf", "MMMD");
    Add("long.mmf", std::string(65'537, 'x'));
    ui::CSendDialog& dialog = OpenSending({"large.jpg", "small.jpg", "tune.mmf", "long.mmf"});
    EXPECT_EQ(Note(dialog, 0), Text(StringId::handsetFitted, QStringLiteral("128"), QStringLiteral("64")));
    EXPECT_EQ(Note(dialog, 1), Text(StringId::handsetTooLong, QLocale().toString(65'536)));
    EXPECT_EQ(TextOf(dialog, "summary").section(u'.', 0, 0) + u'.', Counted(StringId::handsetToSend, 3));

    Click(dialog, "start");

    EXPECT_EQ(Message(), Text(StringId::handsetSuccessful));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !dialog.IsRunning(); }));
    EXPECT_EQ(Content("My Album/large.jpg"), "128x64");
    EXPECT_EQ(Content("Ring/tune.mmf"), "MMMD");
    EXPECT_FALSE(std::filesystem::exists(simulator.root.Path("Ring/long.mmf")));
    EXPECT_EQ(Note(dialog, 3), Text(StringId::handsetIsSent));
    EXPECT_EQ(TextOf(dialog, "filename"), Counted(StringId::handsetSent, 3));
    Click(dialog, "close");
    EXPECT_EQ(Find<ui::CSendDialog>(), nullptr);
}

TEST_F(HandsetTest, WithoutAHandsetNothingCanBeStarted)
{
    Add("a.jpg");
    services.profiles.values["Port/com"] = "4";
    ui::CSendDialog& dialog = OpenSending({"a.jpg"});
    const auto status = [&] { return TextOf(dialog, "filename"); };
    EXPECT_TRUE(QTest::qWaitFor([&] { return status() == Text(StringId::handsetNoHandset); }, kPatience));
    EXPECT_FALSE(Button(dialog, "start").isEnabled());
    Click(dialog, "close");

    auto& fetching = Opened<ui::CFetchDialog>(CommandId::uploadRings);
    Click(fetching, "start");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !fetching.IsRunning(); }, kPatience));
    EXPECT_EQ(TextOf(fetching, "name"), Text(StringId::handsetNoHandset));
    EXPECT_FALSE(Button(fetching, "start").isEnabled());
}

TEST_F(HandsetTest, AfterAFaultTheNextTransferWorks)
{
    const std::pair<const char*, StringId> faults[] = {{"put:20000:unplug", StringId::handsetTransferFailed},
                                                       {"put:20000:0x60", StringId::handsetNoSpace}};
    Add("a.mmf", std::string(60'000, 'a'));
    ui::CSendDialog& dialog = OpenSending({"a.mmf"});
    for (const auto& [fault, message] : faults) {
        simulator.SetFaults(fault);
        Click(dialog, "start");
        EXPECT_EQ(Message(), Text(message));
        EXPECT_TRUE(QTest::qWaitFor([&] { return !dialog.IsRunning(); }, kPatience));
        EXPECT_EQ(Note(dialog, 0), Text(StringId::handsetIsNotSent));
        simulator.SetFaults("");
    }

    Click(dialog, "start");

    EXPECT_EQ(Message(), Text(StringId::handsetSuccessful));
    EXPECT_EQ(Content("Ring/a.mmf").size(), 60'000U);
}

TEST_F(HandsetTest, StopGivesTheTransferUpAndClosesTheDialog)
{
    simulator.SetFaults("slow:40000");
    Add("a.mmf", std::string(60'000, 'a'));
    const QPointer<ui::CSendDialog> dialog = &OpenSending({"a.mmf"});
    Click(*dialog, "start");
    auto* bar = dialog->findChild<QProgressBar*>(QStringLiteral("progress"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return bar->value() > 0; }, kPatience));
    EXPECT_FALSE(Button(*dialog, "close").isEnabled());

    Click(*dialog, "stop");

    EXPECT_EQ(Message(), Text(StringId::handsetCancelled));
    EXPECT_TRUE(QTest::qWaitFor([&] { return dialog.isNull(); }));
}

TEST_F(HandsetTest, TickedFoldersAreFetchedAndAFetchedFileGoesOnBothSides)
{
    for (const char* name : {"My Album/a.jpg", "My Album/b.jpg", "Main Wallpaper/w.jpg"})
        support::WriteBytes(simulator.root.Path(name), "20x10");
    Add("here.jpg");
    Open();
    auto& dialog = Opened<ui::CFetchDialog>(CommandId::uploadToPc);
    EXPECT_FALSE(Button(dialog, "start").isEnabled());
    dialog.findChild<QCheckBox*>(QStringLiteral("frame"))->click();
    Click(dialog, "start");
    EXPECT_EQ(Message(), Text(StringId::handsetNoItem));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !dialog.IsRunning(); }));
    dialog.findChild<QCheckBox*>(QStringLiteral("myalbum"))->click();
    Click(dialog, "start");
    EXPECT_EQ(Message(), Text(StringId::handsetSuccessful));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !dialog.IsRunning(); }));
    Click(dialog, "close");
    EXPECT_FALSE(std::filesystem::exists(folder + "/Main Wallpaper"));

    Open(folder + "/My Album");
    EXPECT_THAT(Names(), ElementsAre("a.jpg", "b.jpg"));
    Select({"a.jpg"});
    View().setFocus();
    Run(CommandId::remove);
    auto* question = Find<QMessageBox>();
    ASSERT_NE(question, nullptr);
    question->checkBox()->click();
    question->defaultButton()->click();

    EXPECT_TRUE(QTest::qWaitFor([&] { return Names() == std::vector<std::string>{"b.jpg"}; }, kPatience));
    EXPECT_FALSE(std::filesystem::exists(simulator.root.Path("My Album/a.jpg")));
    EXPECT_TRUE(std::filesystem::exists(simulator.root.Path("My Album/b.jpg")));
}

}  // namespace
