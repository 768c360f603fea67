// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The program's own dialogs and Qt's controls, dressed by the skin.
#include "skin_test_base.h"
#include "ui/controls/button_ex.h"
#include "ui/controls/dialog_skin.h"
#include "ui/controls/message_box.h"
#include "ui/controls/panel.h"
#include "ui/dialogs/options_dialog.h"
#include "ui/dialogs/properties_dialog.h"
#include "ui/dialogs/select_source_dialog.h"
#include "ui/files/clash_dialog.h"
#include "ui/files/job_dialog.h"
#include "ui/files/new_folder_dialog.h"
#include "ui/photo/rename_dialog.h"
#include "ui/photo/time_stamp_dialog.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QThreadPool>
#include <QToolButton>
#include <QVBoxLayout>

using support::SkinTest;

namespace
{

constexpr const char* kPieces =
    "image_left=Manager/a.png\nimage_center=Manager/a.png\nimage_right=Manager/a.png\n";

std::vector<std::unique_ptr<QDialog>> AllDialogs(const std::string& folder)
{
    std::vector<std::unique_ptr<QDialog>> all;
    all.push_back(std::make_unique<ui::CNewFolderDialog>(folder, nullptr));
    all.push_back(std::make_unique<ui::CClashDialog>(browser::Clash{folder, folder, true}, nullptr));
    all.push_back(std::make_unique<ui::CJobDialog>(nullptr));
    all.push_back(std::make_unique<ui::COptionsDialog>(folder, nullptr));
    all.push_back(std::make_unique<ui::CPropertiesDialog>(std::vector{folder}, nullptr));
    all.push_back(std::make_unique<ui::CSelectSourceDialog>(nullptr));
    all.push_back(std::make_unique<ui::CRenameDialog>(std::vector{folder}, photo::CRenameFields(), nullptr));
    all.push_back(std::make_unique<ui::CTimeStampDialog>(std::vector{folder}, nullptr));
    all.push_back(std::make_unique<ui::CMessageBox>(ui::CMessageBox::Warning, "Kelvo", "Text", nullptr));
    for (const auto& dialog : all)
        dialog->setAttribute(Qt::WA_DeleteOnClose, false);
    static_cast<ui::CMessageBox&>(*all.back()).Add(ui::CMessageBox::Ok);
    return all;
}

QColor At(QWidget& widget, QPoint point)
{
    return widget.grab().toImage().pixelColor(point);
}

}  // namespace

TEST_F(SkinTest, EveryDialogTakesItsGroundAndItsButtonsFromTheFileOfItsName)
{
    Picture("Manager/a_normal.png", Qt::red);
    Picture("Manager/a_gray.png", Qt::red);
    for (const char* name : {"NewFolderDlg", "ClashDlg", "JobDlg", "OptionsDlg", "PropertiesDlg",
                             "SelectSourceDlg", "RenameDlg", "TimestampDlg", "dialog"}) {
        std::string text = "[panel]\ncolor=250,240,230\n";
        for (const char* button : {"ok", "cancel", "merge", "keep_both", "replace", "skip", "stop", "close",
                                   "Btn_Ok", "Btn_Cancel"})
            text += "[" + std::string(button) + "]\n" + kPieces;
        folder.Make("skin/default/Manager/" + std::string(name) + ".ini", text);
    }
    for (const bool dressed : {true, false}) {
        ui::UseSkin(dressed ? Skin() : folder.Path("none/"));
        for (const auto& dialog : AllDialogs(folder.Path())) {
            dialog->show();
            QCoreApplication::processEvents();

            const char* name = dialog->metaObject()->className();
            EXPECT_EQ(dialog->palette().color(QPalette::Window) == QColor(250, 240, 230), dressed) << name;
            const auto buttons = dialog->findChildren<ui::CButtonEx*>();
            EXPECT_FALSE(buttons.isEmpty()) << name;
            for (ui::CButtonEx* button : buttons) {
                EXPECT_EQ(At(*button, {5, 5}) == QColor(Qt::red), dressed)
                    << name << button->objectName().toStdString();
                EXPECT_GE(button->width(), button->sizeHint().width());
            }
        }
        QThreadPool::globalInstance()->waitForDone();
    }
}

TEST_F(SkinTest, ADialogIsPlacedWithItsBoxOfButtonsAndWhatTheFileAdds)
{
    ui::UseSkin(Skin());
    Picture("Manager/a_normal.png", Qt::red);
    Picture("Manager/a_gray.png", Qt::blue);
    folder.Make("skin/default/Manager/NewFolderDlg.ini",
                "[text]\nrect=16,16,400,48\n[name]\nrect=16,56,400,96\n[message]\nrect=16,104,400,136\n"
                "[ok]\nrect=16,200,200,240\n[cancel]\nrect=300,150,400,190\n"
                "[panel]\nrect=0,0,500,260\nadd=name, ground,close,again , nowhere\n"
                "[ground]\nrect=8,8,420,140\ncolor=0,0,90\n"
                "[close]\nrect=440,8,480,48\nimage=Manager/a.png\npress=cancel\n"
                "[again]\nrect=440,60,480,100\nimage=Manager/a.png\npress=ok\n");
    ui::CNewFolderDialog dialog(folder.Path(), nullptr);
    dialog.setAttribute(Qt::WA_DeleteOnClose, false);
    dialog.show();

    const auto geometry = [&](const char* name) {
        auto* widget = dialog.findChild<QWidget*>(name);
        return QRect(widget->mapTo(&dialog, QPoint()), widget->size());
    };
    EXPECT_EQ(dialog.size(), QSize(500, 260));
    EXPECT_EQ(geometry("ok"), QRect(16, 200, 184, 40));
    EXPECT_EQ(geometry("cancel"), QRect(300, 150, 100, 40));
    EXPECT_EQ(geometry("name"), QRect(16, 56, 384, 40));
    EXPECT_EQ(At(dialog, {10, 100}), QColor(0, 0, 90));
    EXPECT_EQ(dialog.childAt(100, 70)->objectName(), "name");

    EXPECT_EQ(At(dialog, {460, 80}), QColor(Qt::red));
    dialog.findChild<QLineEdit*>("name")->clear();
    EXPECT_EQ(At(dialog, {460, 80}), QColor(Qt::blue));
    QTest::mouseClick(dialog.childAt(460, 28), Qt::LeftButton);
    EXPECT_FALSE(dialog.isVisible());

    // What no longer fits is left to the layout, without the additions.
    dialog.show();
    dialog.findChild<QAbstractButton*>("cancel")->setText(QString(60, 'w'));
    QCoreApplication::processEvents();
    EXPECT_EQ(dialog.findChild<ui::CRescaleButton*>()->isVisible(), false);
    EXPECT_GE(geometry("cancel").left(), 0);
    EXPECT_LE(geometry("cancel").right(), dialog.width());
}

TEST_F(SkinTest, AMessageHasTheSignOfItsKindAndItsQuotedTextAlone)
{
    ui::UseSkin(Skin());
    Picture("Manager/i.png", Qt::green, 32);
    folder.Make("skin/default/Manager/dialog.ini", "[warning]\nimage=Manager/i.png\n[more]\ncolor=0,0,200\n");
    for (const auto& [icon, hasSign] :
         {std::pair{ui::CMessageBox::Warning, true}, std::pair{ui::CMessageBox::Information, false}}) {
        ui::CMessageBox box(icon, "Kelvo", "Launch PIM Error", nullptr);
        box.setInformativeText("Why.");
        box.Add(ui::CMessageBox::Ok);
        box.show();

        EXPECT_EQ(Middle(box.iconPixmap()) == QColor(Qt::green), hasSign);
        EXPECT_EQ(box.text(), "Launch PIM Error");
        EXPECT_EQ(box.findChild<QLabel*>("more")->palette().color(QPalette::WindowText), QColor(0, 0, 200));
        EXPECT_TRUE(box.defaultButton() || box.buttons().size() == 1);
    }
}

TEST_F(SkinTest, QtsControlsTakeTheColoursAndThePictureOfTheSkin)
{
    ui::UseSkin(Skin());
    Picture("Manager/r_normal.png", Qt::red);
    Picture("Manager/r_down.png", Qt::green);
    Layout("[button font]\nfont_color_normal=200,0,0\nfont_color_gray=0,200,0\n"
           "[pick]\nimage_radio=Manager/r.png\n[text]\ncolor=0,0,200\n[page]\ncolor=250,240,230\n");
    QDialog dialog;
    auto* column = new QVBoxLayout(&dialog);
    auto* pick = new QRadioButton("WWW", &dialog);
    auto* check = new QCheckBox("WWW", &dialog);
    auto* text = new QLabel("Text", &dialog);
    auto* page = new ui::CPanel(&dialog);
    for (const auto& [widget, name] : std::initializer_list<std::pair<QWidget*, const char*>>{
             {pick, "pick"}, {check, "check"}, {text, "text"}, {page, "page"}}) {
        widget->setObjectName(name);
        column->addWidget(widget);
    }
    dialog.setObjectName("test");
    page->setFixedSize(20, 20);
    dialog.show();
    const auto hasPixel = [](QWidget& widget, const QColor& colour) {
        const QImage shown = widget.grab().toImage();
        for (int i = 0; i < shown.width() * shown.height(); ++i) {
            if (shown.pixelColor(i % shown.width(), i / shown.width()) == colour)
                return true;
        }
        return false;
    };

    EXPECT_TRUE(hasPixel(*pick, Qt::red));
    pick->setChecked(true);
    EXPECT_TRUE(hasPixel(*pick, Qt::green));
    EXPECT_TRUE(hasPixel(*check, QColor(200, 0, 0)));
    check->setEnabled(false);
    EXPECT_TRUE(hasPixel(*check, QColor(0, 200, 0)));
    EXPECT_EQ(text->palette().color(QPalette::WindowText), QColor(0, 0, 200));
    EXPECT_EQ(At(*page, {10, 10}), QColor(250, 240, 230));
}

TEST_F(SkinTest, APressedToolShowsItsPictureForThat)
{
    ui::UseSkin(Skin());
    Picture("Manager/a_normal.png", Qt::red);
    Picture("Manager/a_down.png", Qt::green);
    QToolButton button;
    button.setIcon(ui::SkinIcon("Manager/a.png", "up"));
    button.resize(32, 32);

    const QColor normal = At(button, {16, 16});
    button.setDown(true);

    EXPECT_EQ(normal, QColor(Qt::red));
    EXPECT_EQ(At(button, {16, 16}), QColor(Qt::green));
}

TEST_F(SkinTest, TheFontOfTheSkinInUseIsTheProgramsAndWhatItDoesNotNameIsTheDesktops)
{
    const QFont desktop = QApplication::font();
    folder.Make("skin/default/font.ini", "[Font]\ncharacterSet=1\n");
    folder.Make("skin/dark/font.ini", "[Font]\nfacename=DejaVu Sans Mono\nfontsize=20\n");
    ui::UseSkin(Skin());
    EXPECT_EQ(QApplication::font(), desktop);

    qputenv("KELVO_THEME", "dark");
    const ui::CTheme dark;
    EXPECT_EQ(QApplication::font().family(), "DejaVu Sans Mono");
    EXPECT_EQ(QApplication::font().pointSizeF(), 15);
    app::FontGroup large;
    large.size = 40;
    EXPECT_EQ(ui::SkinFont(large, QFont()).family(), "DejaVu Sans Mono");

    qputenv("KELVO_THEME", "light");
    const ui::CTheme light;
    EXPECT_EQ(QApplication::font().family(), desktop.family());
    EXPECT_EQ(QApplication::font().pointSizeF(), desktop.pointSizeF());

    folder.Make("skin/default/font.ini", "[Font]\nfacename=" + std::string(300, 'a') + "\n");
    app::ReadSkinFont(Skin());
    EXPECT_EQ(utility.ql_GetLogfont("", 0).faceName, std::string(260, 'a'));
}
