// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// A skin folder in a temporary place, read through the real services.
#pragma once

#include "platform_linux/services.h"
#include "suite/image/image_library.h"
#include "suite/utility/utility_library.h"
#include "support/services_guard.h"
#include "support/temp_folder.h"
#include "ui/controls/skin.h"
#include "ui/controls/skin_colours.h"
#include "ui/theme.h"

#include <QImage>
#include <QTest>

#include <gtest/gtest.h>

namespace support
{

class SkinTest : public testing::Test
{
protected:
    SkinTest()
    {
        os.Install();
        utility.Install();
        platform::Os().images = &images;
        platform::Os().skinHook = &hook;
        std::filesystem::create_directories(folder.Path("skin/default/Manager"));
        std::filesystem::create_directories(folder.Path("skin/dark/Manager"));
    }

    std::string Skin() const { return folder.Path("skin/default/"); }
    void Layout(const std::string& text) { folder.Make("skin/default/Manager/test.ini", text); }
    // A picture of one colour in the default skin.
    void Picture(const std::string& name, const QColor& colour, int side = 16)
    {
        QImage image(side, side, QImage::Format_ARGB32);
        image.fill(colour);
        ASSERT_TRUE(image.save(QString::fromStdString(Skin() + name)));
    }
    static QColor Middle(const QPixmap& pixmap)
    {
        return pixmap.isNull() ? QColor() : pixmap.toImage().pixelColor(pixmap.rect().center());
    }

    CTempFolder folder;
    CServicesGuard guard{platform::Services()};
    platform_linux::CLinuxServices os;
    suite::CUtilityLibrary utility{folder.Path()};
    suite::CSuiteImageLibrary images;
    ui::CSkinColours hook;
    ui::CTheme theme;
};

}  // namespace support
