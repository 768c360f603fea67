// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What is drawn: colours, icons, cells.
#include "ui/folder_tree_model.h"
#include "ui/icons.h"
#include "ui/item_painter.h"
#include "ui/theme.h"

#include <QImage>

#include <gtest/gtest.h>

#include <cmath>

namespace
{

constexpr QRgb kPhotoColour = 0xFFFF00FF;
constexpr QRect kCell(40, 40, 136, 170);

browser::MediaItem Photo(int width, int height, std::size_t pixels)
{
    browser::MediaItem item;
    item.name = "photo.jpg";
    item.types = browser::kTypePicture;
    item.thumbnail = std::make_shared<platform::Bitmap>(
        platform::Bitmap{width, height, std::vector<std::uint32_t>(pixels, kPhotoColour)});
    return item;
}

QImage Drawn(const browser::MediaItem& item, qreal ratio,
             const ui::CellLook& look = {kCell, false, false, false})
{
    QImage canvas((QSizeF(220, 260) * ratio).toSize(), QImage::Format_ARGB32);
    canvas.setDevicePixelRatio(ratio);
    canvas.fill(Qt::white);
    QPainter painter(&canvas);
    ui::CItemPainter().Draw(painter, item, look);
    return canvas;
}

template <typename Test> QRect BoundsOf(const QImage& image, Test isPart)
{
    QRect bounds;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (isPart(image.pixel(x, y)))
                bounds |= QRect(x, y, 1, 1);
        }
    }
    return bounds;
}

// How far two colours stand apart, 1 to 21, as the web's accessibility guidelines count it.
double Contrast(const QColor& one, const QColor& other)
{
    const auto luminance = [](const QColor& colour) {
        const auto part = [](float value) {
            return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
    };
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

}  // namespace

TEST(Drawing, TextIsReadableOnEveryGroundOfBothThemes)
{
    for (const char* name : {"light", "dark"}) {
        qputenv("KELVO_THEME", name);
        const ui::CTheme theme;
        EXPECT_EQ(ui::CTheme::IsDark(), std::string(name) == "dark");
        const ui::ThemeColours& colours = ui::CTheme::Colours();
        for (const QColor& ground : {colours.window, colours.view, colours.selection, colours.hover}) {
            EXPECT_GE(Contrast(colours.text, ground), 7) << name << ground.name().toStdString();
            EXPECT_GE(Contrast(colours.accent, ground), 3) << name << ground.name().toStdString();
        }
        EXPECT_GE(Contrast(colours.dimText, colours.window), 4.5) << name;
        EXPECT_GE(Contrast(colours.dimText, colours.view), 4.5) << name;
    }
    qunsetenv("KELVO_THEME");
}

TEST(Drawing, EveryIconThatIsUsedIsThereInTheColourAskedFor)
{
    QStringList names;
    browser::MediaItem item;
    for (const unsigned types : {0U, 1U, 2U, 4U, 16U}) {
        item.types = static_cast<std::uint8_t>(types);
        names.append(ui::CItemPainter::IconName(item, ui::IconUse::thumbnail));
        names.append(ui::CItemPainter::IconName(item, ui::IconUse::kind));
    }
    item.isFolder = true;
    names.append(ui::CItemPainter::IconName(item, ui::IconUse::kind));
    for (const char* name :
         {"broken-picture", "up", "thumbnails", "details", "favourite", "search", "folder-open", "ring",
          "frame", "animation", "home", "computer", "drive", "removable-drive"})
        names.append(QString::fromLatin1(name));
    // One drawing is all accent.
    const QRgb accent = ui::CTheme::Colours().accent.rgb();
    for (const QString& name : names) {
        for (const int side : {16, 64}) {
            const QImage drawn = ui::IconPixmap(name, side, Qt::red, 2).toImage();
            EXPECT_EQ(drawn.width(), 2 * side);
            EXPECT_FALSE(
                BoundsOf(drawn, [accent](QRgb pixel) { return pixel == 0xFFFF0000 || pixel == accent; })
                    .isNull())
                << name.toStdString() << side;
        }
    }
}

TEST(Drawing, PicturesFillTheirCellButSmallOnesAreNotEnlarged)
{
    const struct {
        QSize bitmap;
        qreal ratio;
        QSize drawn;
    } rows[] = {
        {{180, 90}, 1, {120, 60}}, {{90, 180}, 1, {60, 120}},  {{60, 40}, 1, {60, 40}},
        {{180, 1}, 1, {120, 1}},   {{180, 90}, 2, {240, 120}}, {{60, 40}, 2, {120, 80}},
    };
    for (const auto& row : rows) {
        const auto pixels = static_cast<std::size_t>(row.bitmap.width() * row.bitmap.height());
        const QImage image = Drawn(Photo(row.bitmap.width(), row.bitmap.height(), pixels), row.ratio);

        const QRect photo = BoundsOf(image, [](QRgb pixel) { return pixel == kPhotoColour; });
        EXPECT_EQ(photo.size(), row.drawn) << row.bitmap.width() << " at " << row.ratio;
        const QPointF middle = QRectF(photo).center() / row.ratio;
        EXPECT_NEAR(middle.x(), QRectF(kCell).center().x(), 1);
    }
}

TEST(Drawing, ABitmapThatLiesAboutItsSizeIsNotRead)
{
    for (const auto& [width, height] : {std::pair{180, 180}, {0, 5}, {-3, 5}}) {
        EXPECT_TRUE(ui::ImageOf(Photo(width, height, 10).thumbnail).isNull());
        const QImage image = Drawn(Photo(width, height, 10), 1);
        EXPECT_TRUE(BoundsOf(image, [](QRgb pixel) { return pixel == kPhotoColour; }).isNull());
    }
}

TEST(Drawing, NothingIsDrawnOutsideOfTheCell)
{
    browser::MediaItem item = Photo(180, 180, 180UL * 180);
    for (const std::string& name : {std::string(255, 'W'), std::string(40, ' ') + "x",
                                    std::string("a b c d.jpg"), std::string("\xFF\xFE"), std::string()}) {
        item.name = name;
        const QImage image = Drawn(item, 1, {kCell, true, true, true});
        EXPECT_EQ(BoundsOf(image, [](QRgb pixel) { return pixel != 0xFFFFFFFF; }), kCell) << name;
    }
}
