// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>
#include <QLocale>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Texts with numbers and dates are the same whoever runs the tests.
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
