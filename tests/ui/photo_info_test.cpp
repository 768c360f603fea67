// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The photo information in its window and in the pane, with real files and a real thumbnail store.
#include "real_files_test.h"
#include "ui/controls/message_box.h"
#include "ui/dialogs/properties_dialog.h"
#include "ui/photo/photo_facts_page.h"
#include "ui/photo/photo_info_dialog.h"

#include <QTabWidget>

#include <gmock/gmock.h>

using app::CommandId;
using photo::PhotoTexts;
using platform::StringId;
using testing::ElementsAre;
using testing::HasSubstr;

namespace
{

class CSilentHost : public browser::CFileJobHost
{
    browser::ClashReply AskAboutClash(const browser::Clash&) override { return {}; }
    bool Progress(const browser::FileJobProgress&) override { return true; }
};

class PhotoInfoTest : public support::RealFilesTest<>
{
protected:
    PhotoTexts TextsOf(const std::string& name)
    {
        browser::CThumbDbMgr manager(application.DbFolder());
        manager.Load();
        return photo::CCaptionStore(manager).Get(folder + "/" + name);
    }
    void Give(const std::string& name, const photo::TextChange& change)
    {
        browser::CThumbDbMgr manager(application.DbFolder());
        manager.Load();
        CSilentHost host;
        ASSERT_EQ(photo::CCaptionStore(manager).Set({folder + "/" + name}, change, host).stored, 1U);
    }
    // Waits for the jobs, and for what is read for `view`.
    void Finish(const ui::CPhotoInfoView* view = nullptr)
    {
        ASSERT_TRUE(QTest::qWaitFor([&] {
            return !frame->Files()->Jobs().IsBusy() && !List().IsReading() && !(view && view->IsReading());
        }));
    }
    // The window about these files, when everything is read.
    ui::CPhotoInfoDialog* OpenWindow(const std::vector<std::string>& names)
    {
        Select(names);
        Run(CommandId::properties);
        auto* dialog = frame->findChildren<ui::CPhotoInfoDialog*>().constLast();
        Finish(dialog->View());
        return dialog;
    }
    // Selects, and waits until the pane shows it.
    void SelectInPane(const std::vector<std::string>& names)
    {
        Select(names);
        std::vector<std::string> paths;
        for (const std::string& name : names)
            paths.push_back(folder + "/" + name);
        ASSERT_TRUE(QTest::qWaitFor([&] { return Pane().Paths() == paths; }));
        Finish(&Pane());
    }
    ui::CPhotoInfoView& Pane() { return *frame->PhotoInfo()->View(); }
    template <typename Widget> static Widget* Field(const ui::CPhotoInfoView& view, const char* name)
    {
        return view.findChild<Widget*>(QString::fromLatin1(name));
    }
    static void Type(QLineEdit* field, const QString& text)
    {
        field->selectAll();
        QTest::keyClick(field, Qt::Key_Backspace);
        QTest::keyClicks(field, text);
    }
    static void TypeCaption(const ui::CPhotoInfoView& view, const QString& text)
    {
        Type(Field<QComboBox>(view, "caption")->lineEdit(), text);
    }
    static std::string Note(const ui::CPhotoInfoView& view) { return view.Captions()->Note().toStdString(); }
    void Press(ui::CMessageBox* box, const QString& text)
    {
        for (QAbstractButton* button : box->buttons()) {
            if (button->text().remove(QLatin1Char('&')) == text)
                return button->click();
        }
        ADD_FAILURE() << "no button " << text.toStdString();
    }
};

}  // namespace

TEST_F(PhotoInfoTest, StoresForAllSelectedAndLeavesUntouchedFieldsToEach)
{
    for (const char* name : {"a.jpg", "b.jpg", "c.jpg"})
        Add(name);
    Open();
    Give("a.jpg", {{}, {}, "one"});
    Give("b.jpg", {"Old", "some day", "two"});

    ui::CPhotoInfoDialog* window = OpenWindow({"a.jpg", "b.jpg"});
    ASSERT_FALSE(window->View()->IsEdited());
    EXPECT_EQ(Field<QComboBox>(*window->View(), "caption")->lineEdit()->placeholderText(), "Several values");
    EXPECT_EQ(Field<QCheckBox>(*window->View(), "text2")->checkState(), Qt::PartiallyChecked);
    TypeCaption(*window->View(), QStringLiteral("Dunes"));
    EXPECT_THAT(Note(*window->View()), HasSubstr("Replaces the captions of 1 of the 2 files."));
    window->accept();
    Finish();
    EXPECT_EQ(TextsOf("a.jpg"), (PhotoTexts{"Dunes", "", "one"}));
    EXPECT_EQ(TextsOf("b.jpg"), (PhotoTexts{"Dunes", "some day", "two"}));
    EXPECT_EQ(TextsOf("c.jpg"), PhotoTexts());
    EXPECT_THAT(SelectedNames(), ElementsAre("a.jpg", "b.jpg"));
    const std::string history = application.DbFolder().substr(0, application.DbFolder().rfind('/'));
    EXPECT_EQ(support::ReadBytes(history + "/cap_db.ini"), "[caption]\nCount=1\n1=Dunes\n");

    services.profiles.values = {{"caption/Count", "2"}, {"caption/1", "Dunes"}, {"caption/2", "dunes"}};
    window = OpenWindow({"b.jpg"});
    auto* caption = Field<QComboBox>(*window->View(), "caption");
    EXPECT_EQ(caption->currentText(), "Dunes");
    EXPECT_EQ(caption->count(), 2);
    EXPECT_THAT(Note(*window->View()), HasSubstr("some day"));
    QTest::mouseClick(Field<QCheckBox>(*window->View(), "text2"), Qt::LeftButton, {}, QPoint(8, 8));
    Field<QDateEdit>(*window->View(), "TimeStamp")->setDate(QDate(2004, 5, 17));
    TypeCaption(*window->View(), {});
    window->accept();
    Finish();
    EXPECT_EQ(TextsOf("b.jpg"), (PhotoTexts{"", "2004/05/17", "two"}));
}

TEST_F(PhotoInfoTest, RefusesABadNameStoresNothingAndStaysOpen)
{
    Add("a.jpg");
    Add("taken.jpg");
    Open();
    ui::CPhotoInfoDialog* window = OpenWindow({"a.jpg"});
    auto* name = Field<QLineEdit>(*window->View(), "name");
    EXPECT_EQ(name->text(), "a");
    TypeCaption(*window->View(), QStringLiteral("Dunes"));
    const struct {
        QString name;
        std::string told;
    } rows[] = {
        {QStringLiteral("a:b"), "These characters cann't used in filename:\n/ \\ : * ? \"\" < > |"},
        {QString(300, QLatin1Char('x')), "Can't rename. The file name or file extension is too long."},
        {QString(250 - static_cast<int>(folder.size()) + 11, QLatin1Char('x')),
         "Can't rename. The file name or file extension is too long."},
        {QStringLiteral("taken"), "“taken.jpg” is already there"},
        {QString(), "Type a name"},
    };
    for (const auto& row : rows) {
        Type(name, row.name);
        window->accept();
        auto* box = window->findChild<ui::CMessageBox*>();
        ASSERT_NE(box, nullptr) << row.name.toStdString();
        if (!row.name.isEmpty()) {
            EXPECT_EQ(box->text().toStdString(), row.told);
        }
        EXPECT_TRUE(window->isVisible() && !frame->Files()->Jobs().IsBusy());
        delete box;
    }
    EXPECT_EQ(TextsOf("a.jpg"), PhotoTexts());

    Type(name, QStringLiteral("new name"));
    window->accept();
    Finish();
    EXPECT_THAT(Names(), ElementsAre("new name.jpg", "taken.jpg"));
    EXPECT_EQ(TextsOf("new name.jpg").caption, "Dunes");
}

TEST_F(PhotoInfoTest, ThePaneFollowsTheSelectionAndOffersTheExifPageWhereThereIsText)
{
    Add("a.jpg", "640x480 2004:05:17 10:22:31");
    Add("b.jpg", "30x20");
    Add("notes.txt", "x");
    Open();
    Select({"b.jpg"});
    Run(CommandId::photoInfo);
    EXPECT_TRUE(frame->Menu()->Action(CommandId::photoInfo)->isChecked());
    EXPECT_EQ(services.profiles.values["Frame/PhotoInfo"], "1");
    const auto offered = [&] {
        QStringList pages;
        for (int i = 0; i < Pane().Tabs()->count(); ++i) {
            if (Pane().Tabs()->isTabVisible(i))
                pages.append(Pane().Tabs()->tabText(i));
        }
        return pages.join(QLatin1Char(' '));
    };
    const auto value = [&](StringId name) { return Pane().Facts()->Value(name); };

    SelectInPane({"b.jpg"});
    EXPECT_EQ(offered(), "General Caption");
    EXPECT_EQ(value(StringId::infoPixels), "30 × 20 pixels");
    EXPECT_EQ(value(StringId::infoTaken), "");
    SelectInPane({"a.jpg"});
    EXPECT_EQ(offered(), "General Caption EXIF");
    EXPECT_THAT(value(StringId::infoTaken).toStdString(), HasSubstr("17/05/2004"));
    SelectInPane({"a.jpg", "b.jpg"});
    EXPECT_EQ(offered(), "General Caption");
    EXPECT_EQ(value(StringId::infoPixels), "Several values");
    View().clearSelection();
    EXPECT_TRUE(QTest::qWaitFor([&] { return Pane().Paths().empty() && Pane().currentIndex() == 0; }));

    frame->PhotoInfo()->setFocus();
    Pane().Tabs()->setFocus();
    Select({"a.jpg"});
    Run(CommandId::remove);
    EXPECT_FALSE(frame->Files()->Jobs().IsBusy()) << "keys in the pane are not for the files";
}

TEST_F(PhotoInfoTest, WhatWasTypedInThePaneIsStoredOrAskedAboutWhenTheSelectionGoes)
{
    for (const char* name : {"a.jpg", "b.jpg", "c.jpg"})
        Add(name);
    Open();
    Give("b.jpg", {"Old", {}, {}});
    Run(CommandId::photoInfo);

    SelectInPane({"a.jpg"});
    TypeCaption(Pane(), QStringLiteral("Dunes"));
    SelectInPane({"a.jpg", "b.jpg"});
    EXPECT_EQ(TextsOf("a.jpg").caption, "Dunes");

    for (const char* answer : {"Cancel", "Discard", "Store"}) {
        TypeCaption(Pane(), QStringLiteral("Both"));
        Select({"c.jpg"});
        ui::CMessageBox* box = nullptr;
        ASSERT_TRUE(QTest::qWaitFor([&] { return (box = frame->findChild<ui::CMessageBox*>()) != nullptr; }));
        Press(box, QLatin1String(answer));
        delete box;
        if (answer == std::string("Cancel")) {
            EXPECT_EQ(Pane().Paths().size(), 2U);
            EXPECT_TRUE(Pane().IsEdited());
            continue;
        }
        SelectInPane({"c.jpg"});
        EXPECT_EQ(TextsOf("b.jpg").caption, answer == std::string("Store") ? "Both" : "Old");
        SelectInPane({"a.jpg", "b.jpg"});
    }

    Type(Field<QLineEdit>(Pane(), "second"), QStringLiteral("last"));
    EXPECT_FALSE(frame->close()) << "before it is stored";
    EXPECT_TRUE(QTest::qWaitFor([&] { return !frame->isVisible(); }));
    EXPECT_EQ(TextsOf("b.jpg").secondText, "last");
}

TEST_F(PhotoInfoTest, WhatCouldNotBeStoredStandsInItsFieldsAgain)
{
    Add("a.jpg");
    Open();
    Give("a.jpg", {"Old", {}, {}});
    Run(CommandId::photoInfo);
    SelectInPane({"a.jpg"});
    const std::string store = application.DbFolder();
    std::filesystem::rename(store, store + "-away");
    std::ofstream(store) << "a file in its place";

    TypeCaption(Pane(), QStringLiteral("Dunes"));
    QTest::keyClick(Field<QComboBox>(Pane(), "caption")->lineEdit(), Qt::Key_Return);
    Finish(&Pane());
    EXPECT_TRUE(Pane().IsEdited());
    EXPECT_EQ(Pane().Captions()->Caption(), "Dunes");

    std::filesystem::remove(store);
    std::filesystem::rename(store + "-away", store);
    QTest::keyClick(Field<QComboBox>(Pane(), "caption")->lineEdit(), Qt::Key_Return);
    Finish(&Pane());
    EXPECT_EQ(TextsOf("a.jpg").caption, "Dunes");
}
