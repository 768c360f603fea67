// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The skinned controls and dialogs as the user meets them.
#include "app/left_pane.h"
#include "skin_test_base.h"
#include "ui/controls/button_ex.h"
#include "ui/controls/dialog_skin.h"
#include "ui/controls/panel.h"
#include "ui/tab_window.h"

#include <QAccessible>
#include <QDialog>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>

using support::SkinTest;

namespace
{

// A dialog with one element of each kind.
struct SampleDialog : QDialog {
    ui::CStaticEx* text = new ui::CStaticEx("Name:", this);
    QLineEdit* name = new QLineEdit(this);
    QRadioButton* pick = new QRadioButton("Pick", this);
    ui::CButtonEx* start = new ui::CButtonEx("Start", this);

    SampleDialog()
    {
        auto* column = new QVBoxLayout(this);
        for (const auto& [widget, called] : std::initializer_list<std::pair<QWidget*, const char*>>{
                 {text, "text"}, {name, "name"}, {pick, "pick"}, {start, "start"}}) {
            widget->setObjectName(called);
            column->addWidget(widget);
        }
    }
    bool ShowsAll() const
    {
        return text->isVisible() && text->width() >= text->sizeHint().width() &&
               start->width() >= start->sizeHint().width() && start->height() >= start->sizeHint().height() &&
               rect().contains(start->geometry()) && rect().contains(pick->geometry());
    }
};

constexpr const char* kWhole =
    "[button font]\nfont_color_normal=0,0,200\n[text]\nrect=16,16,116,44\n[name]\nrect=124,16,284,48\n"
    "[pick]\nrect_radio=16,56,284,84\n[start]\nrect=184,96,284,128\nimage=Manager/a.png\n"
    "[panel]\nrect=0,0,300,144\ncolor=250,240,230\n";

}  // namespace

TEST_F(SkinTest, AButtonShowsTheImageOfItsState)
{
    ui::UseSkin(Skin());
    Picture("Manager/a_normal.png", Qt::red);
    Picture("Manager/a_down.png", Qt::green);
    Picture("Manager/a_gray.png", Qt::blue);
    ui::CRescaleButton button;
    button.setCheckable(true);
    button.SetImage("Manager/a.png");
    button.resize(60, 40);
    const auto shown = [&] { return button.grab().toImage().pixelColor(50, 30); };

    const QColor normal = shown();
    button.setChecked(true);
    const QColor down = shown();
    button.setEnabled(false);
    const QColor gray = shown();
    button.setEnabled(true);
    button.setChecked(false);
    QTest::mouseMove(&button, {30, 20});
    // Without an image of its own the state shows the normal one.
    const QColor hovered = shown();

    EXPECT_EQ(normal, QColor(Qt::red));
    EXPECT_EQ(down, QColor(Qt::green));
    EXPECT_EQ(gray, QColor(Qt::blue));
    EXPECT_EQ(hovered, QColor(Qt::red));
}

TEST_F(SkinTest, PiecesCoverTheButtonAndAMissingOneLeavesItPlain)
{
    ui::UseSkin(Skin());
    for (const auto& [part, colour] :
         {std::pair{"l", Qt::red}, std::pair{"c", Qt::green}, std::pair{"r", Qt::blue}})
        Picture("Manager/" + std::string(part) + "_normal.png", colour, 8);
    ui::CButtonEx button;
    button.resize(60, 30);
    button.SetPieces("Manager/l.png", "Manager/c.png", "Manager/r.png", 20);
    const QImage whole = button.grab().toImage();
    button.SetPieces("Manager/l.png", "Manager/none.png", "Manager/r.png", 20);
    const QImage plain = button.grab().toImage();

    EXPECT_EQ(whole.pixelColor(18, 15), QColor(Qt::red));
    EXPECT_EQ(whole.pixelColor(22, 15), QColor(Qt::green));
    EXPECT_EQ(whole.pixelColor(42, 15), QColor(Qt::blue));
    EXPECT_NE(plain.pixelColor(10, 15), QColor(Qt::red));
}

TEST_F(SkinTest, ADialogStandsAsTheSkinHasItOnlyWhileEveryTextFits)
{
    ui::UseSkin(Skin());
    Layout(kWhole);
    SampleDialog dialog;
    dialog.name->setPlaceholderText("photo");
    const ui::CDialogSkin skin(dialog, "test.ini");
    dialog.show();

    EXPECT_TRUE(skin.IsPlaced());
    EXPECT_EQ(dialog.size(), QSize(300, 144));
    EXPECT_EQ(dialog.start->geometry(), QRect(184, 96, 100, 32));
    EXPECT_EQ(dialog.palette().color(QPalette::Window), QColor(250, 240, 230));

    dialog.setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(dialog.start->geometry(), QRect(16, 96, 100, 32));
    dialog.setLayoutDirection(Qt::LeftToRight);
    EXPECT_EQ(dialog.start->geometry(), QRect(184, 96, 100, 32));

    dialog.start->setText("Ausgewählte Bilder jetzt übertragen");
    QCoreApplication::processEvents();
    EXPECT_FALSE(skin.IsPlaced());
    EXPECT_TRUE(dialog.ShowsAll());

    dialog.start->setText("Start");
    QCoreApplication::processEvents();
    EXPECT_TRUE(skin.IsPlaced());
    QFont large = dialog.font();
    large.setPointSize(30);
    dialog.setFont(large);
    QCoreApplication::processEvents();
    EXPECT_FALSE(skin.IsPlaced());
    EXPECT_TRUE(dialog.ShowsAll());
}

TEST_F(SkinTest, EveryDialogOpensWholeWithAnEmptyOrBrokenSkin)
{
    for (const char* text :
         {"", "[start]\nrect=0,0,8000,8000\n", "[start]\nrect=1,1,2,2\n[text]\nrect=1,1,2,2\n",
          "[text]\nrect=16,16,116,44\n[name]\nrect=16,16,284,44\n[pick]\nrect=16,16,284,84\n[start]\nrect="
          "16,16,284,84\n",
          "[button font]\nfont_size=8000\nfont_name=\xFF\xFF\nfont_color_normal=250,250,250\n[panel]\n"
          "color=250,250,250\nrect=0,0,1,1\n[start]\nimage=../../../etc/passwd\nimage_center=/etc/"
          "passwd\n"}) {
        Layout(text);
        ui::UseSkin(Skin());
        SampleDialog dialog;
        const ui::CDialogSkin skin(dialog, "test.ini");
        dialog.show();
        QCoreApplication::processEvents();

        EXPECT_FALSE(skin.IsPlaced()) << text;
        EXPECT_TRUE(dialog.ShowsAll()) << text;
        EXPECT_FALSE(dialog.grab().isNull());
    }
    ui::UseSkin(folder.Path("no such skin/"));
    SampleDialog dialog;
    const ui::CDialogSkin skin(dialog, "none.ini");
    dialog.show();
    EXPECT_TRUE(dialog.ShowsAll());
}

TEST_F(SkinTest, AnOpenDialogFollowsTheThemeToTheDarkSkin)
{
    Layout("[panel]\ncolor=250,240,230\n");
    folder.Make("skin/dark/Manager/test.ini", "[panel]\ncolor=20,30,40\n");
    ui::UseSkin(Skin());
    SampleDialog dialog;
    const ui::CDialogSkin skin(dialog, "test.ini");
    dialog.show();

    qputenv("KELVO_THEME", "dark");
    const ui::CTheme dark;
    QCoreApplication::processEvents();
    const QColor ground = dialog.palette().color(QPalette::Window);
    qputenv("KELVO_THEME", "light");
    const ui::CTheme light;
    QCoreApplication::processEvents();

    EXPECT_EQ(ground, QColor(20, 30, 40));
    EXPECT_EQ(dialog.palette().color(QPalette::Window), QColor(250, 240, 230));
}

TEST_F(SkinTest, TabsAreWalkedWithTheArrowsAndToldToScreenReaders)
{
    app::CTabs tabs;
    ui::TabWindow bar(tabs);
    QObject::connect(&bar, &ui::TabWindow::Clicked, &bar, [&](int id) {
        tabs.Select(id);
        bar.Update();
    });
    bar.show();
    bar.Button(app::kDeviceTab)->setFocus();
    const auto press = [&](Qt::Key key) {
        QTest::keyClick(bar.focusWidget(), key);
        return int(tabs.Mode());
    };

    EXPECT_EQ(press(Qt::Key_Right), 1);
    EXPECT_EQ(press(Qt::Key_End), 2);
    EXPECT_EQ(press(Qt::Key_Right), 2);
    EXPECT_EQ(press(Qt::Key_Home), 0);
    tabs.Enable(app::kFolderTab, false);
    bar.Update();
    EXPECT_EQ(press(Qt::Key_Right), 2);
    bar.setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(press(Qt::Key_Right), 0);

    QAccessibleInterface* tab = QAccessible::queryAccessibleInterface(bar.Button(app::kDeviceTab));
    EXPECT_EQ(tab->role(), QAccessible::PageTab);
    EXPECT_TRUE(tab->state().selected && tab->state().selectable && !tab->text(QAccessible::Name).isEmpty());
    EXPECT_EQ(tab->parent()->role(), QAccessible::PageTabList);
    QAccessible::queryAccessibleInterface(bar.Button(app::kSearchTab))
        ->actionInterface()
        ->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(int(tabs.Mode()), 2);
}
