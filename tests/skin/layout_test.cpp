// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What is read from the skin's files, and what of it is left out.
#include "browser/ini_reader.h"
#include "skin_test_base.h"

#include <algorithm>
#include <set>
#include <tuple>

using app::ButtonState;
using app::ElementKind;
using platform::Rect;
using support::SkinTest;

TEST_F(SkinTest, ALayoutFileGivesWhatItNamesAndLeavesThePresets)
{
    Layout("[Button Font]\nfont_size=9\nfont_size_button=14\nfont_size_radio=12\nfont_name=\"DejaVu Sans\"\n"
           "font_color_down=0,0,255\nfont_color_gray=1,2\n"
           "[start]\nrect=8,8,96,36\nimage_left=a.png\nimage_center=b.png\nimage_right=c.png\npart_width=8\n"
           "[pick]\nrect=1,1,2,2\nrect_radio=8,40,96,60\nimage_radio=r.png\nimage=wrong.png\n"
           "[screen]\nrectPlay=0,0,176,144\ncolor=10,20,30\n[star]\nrect_2=4,4,20,20\n"
           "[panel]\ncolor=243,245,246\nrect=0,0,400,300\n");
    app::WindowLayout layout;
    layout.font.colours[3] = 77;
    layout.elements = {{.name = "start", .kind = ElementKind::button},
                       {.name = "pick", .kind = ElementKind::radioButton},
                       {.name = "screen"},
                       {.name = "star", .number = 2},
                       {.name = "none", .rect = Rect{1, 2, 3, 4}, .image = "kept.png", .color = 5}};

    app::ReadLayout(Skin(), "test.ini", layout);

    EXPECT_EQ(layout.font.faceName, "DejaVu Sans");
    EXPECT_EQ(layout.font.size, 14);
    EXPECT_EQ(layout.font.radioSize, 12);
    EXPECT_EQ(layout.font.colours[std::size_t(ButtonState::down)], 0xFF0000U);
    EXPECT_EQ(layout.font.colours[std::size_t(ButtonState::gray)], 77U);
    const auto& [start, pick, screen, star, none] = std::tie(
        layout.elements[0], layout.elements[1], layout.elements[2], layout.elements[3], layout.elements[4]);
    EXPECT_EQ(start.rect, (Rect{8, 8, 96, 36}));
    EXPECT_EQ(start.imageLeft + start.imageCenter + start.imageRight, "a.pngb.pngc.png");
    EXPECT_EQ(start.partWidth, 8);
    EXPECT_EQ(pick.rect, (Rect{8, 40, 96, 60}));
    EXPECT_EQ(pick.image, "r.png");
    EXPECT_EQ(screen.rect, (Rect{0, 0, 176, 144}));
    EXPECT_EQ(screen.color, 0x1E140AU);
    EXPECT_EQ(star.rect, (Rect{4, 4, 20, 20}));
    EXPECT_EQ(none.rect, (Rect{1, 2, 3, 4}));
    EXPECT_EQ(none.image, "kept.png");
    EXPECT_EQ(layout.panelColor, 0xF6F5F3U);
}

TEST_F(SkinTest, HostileLayoutFilesChangeNothing)
{
    const Rect preset{8, 8, 96, 36};
    for (const std::string& text :
         {std::string("[start]\nrect=-8,0,40,40\ncolor=256,0,0\npart_width=-1\n"),
          std::string("[start]\nrect=0,0,2147483648,10\ncolor=1,2,3,4\npart_width=99999999999\n"),
          std::string("[start]\nrect=0,0,2147483647,2147483647\n"), std::string("[start]\nrect=40,40,8,8\n"),
          std::string("[start\0\nrect=\xFF\xFE\0\0", 20), std::string("\xFF\xFE[\0s\0", 6), std::string(),
          std::string("[start]\nrect=16,16,80,40\npart_width=9\n")}) {
        Layout(text);
        if (text.ends_with("=9\n"))
            std::filesystem::resize_file(folder.Path("skin/default/Manager/test.ini"), 100 << 20);
        app::WindowLayout layout;
        layout.elements = {{.name = "start", .kind = ElementKind::button, .rect = preset, .partWidth = 4}};

        app::ReadLayout(Skin(), "test.ini", layout);

        EXPECT_TRUE(layout.elements[0].rect == preset && layout.elements[0].partWidth == 4 &&
                    !layout.elements[0].color)
            << text.substr(0, 60);
    }
}

TEST_F(SkinTest, NamesNeverLeadOutOfTheSkin)
{
    for (const char* name : {"", "/etc/passwd", "..", "../x.png", "Manager/../../x.png",
                             "Manager\\..\\..\\x.png", "\\x.png", "Manager/.."}) {
        EXPECT_EQ(app::SkinFilePath("/s/", name), "") << name;
    }
    for (const char* name : {"x.png", "Manager\\x..y.png", "...", "Manager/screen saver.png"})
        EXPECT_TRUE(app::SkinFilePath("/s/", name).starts_with("/s/")) << name;

    const auto files = app::StateImageFiles("/s", "Manager/screen saver.png");

    EXPECT_EQ(files[0] + files[1], "/s/Manager/screen saver_normal.png/s/Manager/screen saver_down.png");
    EXPECT_EQ(files[2] + files[3], "/s/Manager/screen saver_hl.png/s/Manager/screen saver_gray.png");
}

TEST_F(SkinTest, StateImagesAreSharpWhereTheSkinHasThemAndMissingWhereItCannotBe)
{
    ui::UseSkin(Skin());
    Picture("Manager/a_normal.png", Qt::red);
    Picture("Manager/a_normal@2x.png", Qt::yellow, 32);
    Picture("Manager/a_down.png", Qt::green);
    Picture("Manager/a_hl.png", Qt::blue, 1025);
    folder.Make("skin/default/Manager/a_gray.png", "\x89PNG\r\n\x1A\n and no more");
    Picture("Manager/plain.png", Qt::cyan);

    const ui::StatePixmaps coarse = ui::SkinStates("Manager/a.png", 1);
    const ui::StatePixmaps fine = ui::SkinStates("Manager/a.png", 2);

    EXPECT_EQ(Middle(coarse[0]), QColor(Qt::red));
    EXPECT_EQ(Middle(fine[0]), QColor(Qt::yellow));
    EXPECT_EQ(fine[0].deviceIndependentSize(), QSizeF(16, 16));
    EXPECT_EQ(Middle(fine[1]), QColor(Qt::green));
    EXPECT_TRUE(coarse[2].isNull() && coarse[3].isNull());
    EXPECT_EQ(Middle(ui::SkinStates("Manager/plain.png", 1)[0]), QColor(Qt::cyan));
    EXPECT_TRUE(ui::SkinStates("../../a.png", 1)[0].isNull());
}

TEST_F(SkinTest, ManyLargePicturesStayWithinABound)
{
    ui::UseSkin(Skin());
    Picture("Manager/big.png", Qt::red, 1024);
    for (int i = 0; i < 40; ++i)
        std::filesystem::copy(Skin() + "Manager/big.png",
                              Skin() + "Manager/big" + std::to_string(i) + ".png");

    qsizetype kept = 0;
    for (int i = 0; i < 40; ++i)
        kept += ui::SkinPicture(QString("Manager/big%1.png").arg(i), 1).isNull() ? 0 : 4 << 20;

    EXPECT_EQ(kept, 32 << 20);
}

TEST_F(SkinTest, TheHookLibraryTakesTheColoursInItsOrderAndDialogsTakeTheirs)
{
    struct CNotes : platform::CSkinHook {
        std::string text;
        void SkinMgr_SetColor(int number, platform::ColorRef colour) override
        {
            text += std::to_string(number) + "=" + std::to_string(colour) + " ";
        }
        platform::ColorRef GetSysColor(int number) override { return platform::ColorRef(number * 1000); }
    } notes;
    folder.Make("skin/default/config.ini", "[PropertyDlg]\n3DFace=1,0,0\n3DLight=2,0,0\n3DShadow=red\n");
    platform::Os().skinHook = &notes;
    app::SetPropertyDialogColours(Skin());
    platform::Os().skinHook = &hook;

    ui::UseSkin(Skin());
    QCoreApplication::processEvents();

    EXPECT_EQ(notes.text, "15=1 16=16000 21=21000 20=20000 22=2 ");
    EXPECT_EQ(QApplication::palette("QDialog").color(QPalette::Window), QColor(1, 0, 0));
    EXPECT_EQ(QApplication::palette("QDialog").color(QPalette::WindowText), QColor(Qt::white));
    EXPECT_NE(QApplication::palette().color(QPalette::Window), QColor(1, 0, 0));
}

// Every text and picture of the skins that are shipped, as the windows will ask for them.
TEST_F(SkinTest, TheShippedSkinsAreWholeAndTheDarkOneOnlyDiffersInColours)
{
    const auto names = [](const std::string& skin) {
        std::set<std::string> found;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(skin)) {
            if (entry.is_regular_file())
                found.insert(entry.path().lexically_relative(skin));
        }
        return found;
    };
    const std::set<std::string> files = names(KELVO_SKINS "/default");
    EXPECT_EQ(files, names(KELVO_SKINS "/dark"));
    for (const std::string& file : files) {
        if (!file.ends_with(".ini"))
            continue;
        const std::string text = support::ReadBytes(KELVO_SKINS "/default/" + file);
        for (std::size_t at = text.find("image"); at != std::string::npos; at = text.find("image", at + 1)) {
            const std::size_t begin = text.find('=', at) + 1;
            const std::string image = text.substr(begin, text.find('\n', begin) - begin);
            for (const char* skin : {KELVO_SKINS "/default", KELVO_SKINS "/dark"})
                EXPECT_TRUE(app::LoadStateImages(skin, image, true)[0].bitmap) << file << ": " << image;
        }
    }
    EXPECT_GE(std::ranges::count_if(files, [](const auto& name) { return name.ends_with(".ini"); }), 20);
    for (const char* tool : {"favorite", "folder", "search", "whiteboard", "photo_trim", "email", "resize",
                             "photo", "ring", "screen saver"}) {
        for (const char* state : {"", "_normal", "_down", "_hl", "_gray"})
            EXPECT_TRUE(files.contains(std::string("Manager/") + tool + state + "@2x.png")) << tool << state;
    }
}

TEST(IniReader, ACopySharesTheListsAndOutlivesItsOriginal)
{
    auto first = std::make_unique<browser::CIniReader>("a.ini");
    browser::CIniReader copy;
    copy = *first;

    for (int i = 0; i < 11; ++i)
        first->keys->Add("k" + std::to_string(i));
    first.reset();

    EXPECT_EQ(copy.fileName, "a.ini");
    EXPECT_EQ(copy.keys->All().size(), 11U);
    EXPECT_EQ(copy.keys->All().capacity(), 20U);
}
