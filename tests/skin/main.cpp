// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("KELVO_MODULE_FOLDER", KELVO_MODULES);
    qputenv("KELVO_THEME", "light");
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
