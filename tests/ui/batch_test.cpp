// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Names and time stamps of several files at once, in the real window on real files.
#include "photo/exif_builder.h"
#include "real_files_test.h"
#include "ui/photo/rename_dialog.h"
#include "ui/photo/time_stamp_dialog.h"
#include "ui/words.h"

#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>

#include <gmock/gmock.h>

using app::CommandId;
using testing::ElementsAre;

namespace
{

namespace fs = std::filesystem;

class BatchTest : public support::RealFilesTest<>
{
protected:
    void Finish()
    {
        ASSERT_TRUE(QTest::qWaitFor([this] { return !frame->Files()->Jobs().IsBusy(); }, 30'000));
        Settle();
    }
    // The dialog that is open, once it knows what it was looking for.
    template <typename Dialog> Dialog& Wait(bool (Dialog::*isBusy)() const)
    {
        const auto all = frame->findChildren<Dialog*>();
        const auto open = std::ranges::find_if(all, &QWidget::isVisible);
        if (open == all.end())
            throw std::runtime_error("no dialog");
        EXPECT_TRUE(QTest::qWaitFor([&] { return !((*open)->*isBusy)(); }, 30'000));
        return **open;
    }
    ui::CRenameDialog& Renaming() { return Wait(&ui::CRenameDialog::IsPlanning); }
    ui::CTimeStampDialog& Stamping() { return Wait(&ui::CTimeStampDialog::IsLooking); }
    template <typename Part> static Part& In(QDialog& dialog, const char* name)
    {
        return *dialog.findChild<Part*>(QLatin1String(name));
    }
    static std::vector<std::string> Rows(QDialog& dialog)
    {
        const QAbstractItemModel& model = *In<QTreeView>(dialog, "plan").model();
        std::vector<std::string> rows;
        for (int row = 0; row < model.rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < model.columnCount(); ++column)
                cells.append(model.index(row, column).data().toString());
            rows.push_back(cells.join(QLatin1Char('|')).toStdString());
        }
        return rows;
    }
    static void Type(QDialog& dialog, const char* field, const QString& text)
    {
        In<QLineEdit>(dialog, field).setText(text);
    }
    QDateTime Modified(const std::string& name) const
    {
        return QFileInfo(QString::fromStdString(folder + "/" + name)).lastModified();
    }
};

}  // namespace

TEST_F(BatchTest, SeveralFilesGetTheNamesThatTheDialogShowsAndGiveThemBack)
{
    for (const char* name : {"a.jpg", "b.JPG", "c.png", "s.lnk", "Photo0002.jpg"})
        Add(name);
    Run(CommandId::filterAllFiles);
    Open();
    Select({"a.jpg", "b.JPG", "c.png", "s.lnk"});
    QTest::keyClick(&View(), Qt::Key_F2);
    ui::CRenameDialog& dialog = Renaming();

    EXPECT_THAT(Rows(dialog),
                ElementsAre("a.jpg|Photo0001.jpg|", "b.JPG|Photo0001-1.jpg|Taken: another number",
                            "c.png|Photo0003.png|", "s.lnk|s.lnk|Keeps its name"));
    EXPECT_EQ(In<QLabel>(dialog, "counts").text(),
              "4 files, 1 gets another number because the name is taken, 1 keeps its name");
    In<QCheckBox>(dialog, "only_taken").click();
    EXPECT_EQ(Rows(dialog).size(), 1U);

    // OK right behind the last letter waits for the list of that name.
    Type(dialog, "digits", QStringLiteral("2"));
    Type(dialog, "prefix", QStringLiteral("100% é "));
    QTest::keyClick(&In<QLineEdit>(dialog, "prefix"), Qt::Key_Return);
    const QPointer<QDialog> open(&dialog);
    ASSERT_TRUE(QTest::qWaitFor([&] { return open.isNull(); }));
    Finish();
    EXPECT_THAT(SelectedNames(), ElementsAre("100% é 01.jpg", "100% é 02.jpg", "100% é 03.png"));

    Run(CommandId::undo);
    Finish();
    EXPECT_THAT(Names(), ElementsAre("a.jpg", "b.JPG", "c.png", "Photo0002.jpg", "s.lnk"));
    Select({"a.jpg", "c.png"});
    Run(CommandId::rename);
    EXPECT_THAT(Rows(Renaming()), ElementsAre("a.jpg|100% é 01.jpg|", "c.png|100% é 02.png|"));
    EXPECT_EQ(In<QPushButton>(Renaming(), "ok").text(), "&Rename 2 Files");
}

TEST_F(BatchTest, ANameOrANumberOfDigitsThatCannotBeKeepsTheRenameDialogOpen)
{
    AddMany(2);
    Open();
    List().SelectAll();
    Run(CommandId::rename);
    const struct {
        QString prefix;
        const char* digits;
        ui::StringId message;  // none: the digits are set back
        const char* sample;
    } rows[] = {{QStringLiteral("a:b"), "4", ui::StringId::renameBadCharacters, "a:b0001"},
                {QString(250, QLatin1Char('n')), "4", ui::StringId::renameTooLong, nullptr},
                {QStringLiteral("a/b"), "0", ui::StringId::renameBadCharacters, "a/b0001"},
                {QStringLiteral("Photo"), "0", ui::StringId::none, "Photo0001"},
                {QStringLiteral("Photo"), "17", ui::StringId::none, "Photo0000000000000001"},
                {QStringLiteral("Photo"), "x", ui::StringId::none, "Photo0001"}};
    for (const auto& row : rows) {
        ui::CRenameDialog& dialog = Renaming();
        Type(dialog, "prefix", row.prefix);
        Type(dialog, "digits", QLatin1String(row.digits));
        if (row.sample) {
            EXPECT_EQ(In<QLabel>(dialog, "preview").text(), QStringLiteral("Sample: ") + row.sample);
        }
        QTest::keyClick(&In<QLineEdit>(dialog, "prefix"), Qt::Key_Return);

        auto* box = dialog.findChild<QMessageBox*>();
        ASSERT_EQ(box != nullptr, row.message != ui::StringId::none) << row.digits;
        if (box) {
            EXPECT_EQ(box->text(), ui::Text(row.message));
            delete box;
            EXPECT_TRUE(Rows(Renaming()).empty());
        } else {
            EXPECT_EQ(In<QLineEdit>(dialog, "digits").selectedText(), "4");
            EXPECT_EQ(dialog.focusWidget(), &In<QLineEdit>(dialog, "digits"));
        }
        EXPECT_TRUE(dialog.isVisible());
    }
    EXPECT_THAT(Names(), ElementsAre("photo0.jpg", "photo1.jpg"));
}

TEST_F(BatchTest, TimeStampsAreSetAsTheDialogSaysAndWhatFailsIsToldOnce)
{
    const CExifBuilder builder(true);
    Add("dated.jpg", builder.File({builder.Text(0x9003, std::string("2004:07:15 10:20:30\0", 20))}));
    for (const char* name : {"gone.jpg", "plain.jpg"})
        Add(name, "not a picture");
    fs::create_directories(folder + "/inner");
    Open();
    const QDateTime before = Modified("plain.jpg");
    Run(CommandId::changeTimeStamp);
    EXPECT_EQ(frame->findChild<QMessageBox*>()->text(), ui::Text(ui::StringId::stampNothing));
    delete frame->findChild<QMessageBox*>();
    List().SelectAll();

    Run(CommandId::changeTimeStamp);
    ui::CTimeStampDialog& dialog = Stamping();
    auto& apply = In<QPushButton>(dialog, "Btn_Ok");
    auto& creation = In<QCheckBox>(dialog, "Check_CreateTime");
    EXPECT_TRUE(In<QRadioButton>(dialog, "Radio_EXIF_Time").isChecked());
    EXPECT_FALSE(apply.isEnabled());
    In<QCheckBox>(dialog, "Check_LastTime").click();
    EXPECT_EQ(In<QLabel>(dialog, "summary").text(),
              "The modification time of 1 file becomes the EXIF date of each.\n"
              "2 files have no EXIF date and are left as they are.");
    creation.click();
    In<QRadioButton>(dialog, "Radio_CreateTime").click();
    EXPECT_FALSE(creation.isEnabled() || creation.isChecked());
    EXPECT_FALSE(In<QDateEdit>(dialog, "date_picker").isEnabled());
    In<QRadioButton>(dialog, "Radio_PickTime").click();
    EXPECT_TRUE(creation.isEnabled() && apply.isEnabled());
    const QDateTime picked(QDate(2004, 2, 29), QTime(23, 59, 58));
    In<QDateEdit>(dialog, "date_picker").setDate(picked.date());
    In<QTimeEdit>(dialog, "time_picker").setTime(picked.time());
    const QString summary = In<QLabel>(dialog, "summary").text();
    EXPECT_TRUE(summary.contains(QStringLiteral("3 files")) && summary.contains(QStringLiteral(":59:58")));
    fs::remove(folder + "/gone.jpg");
    apply.click();
    Finish();

    EXPECT_EQ(Modified("plain.jpg"), picked);
    EXPECT_EQ(Modified("dated.jpg"), picked);
    EXPECT_EQ(frame->findChild<QMessageBox*>()->text(), "The read-only file can not be processed.");
    EXPECT_EQ(frame->Menu()->Action(CommandId::undo)->text(), "Undo Time Stamps of 3 Items");
    Run(CommandId::undo);
    Finish();
    EXPECT_EQ(Modified("plain.jpg"), before);
}
