// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The string table, its resource library and the translations over it.
#include "app/string_table.h"
#include "platform_linux/dynamic_libraries.h"
#include "support/services_guard.h"
#include "support/temp_folder.h"
#include "ui/words.h"

#include <QGuiApplication>
#include <QLocale>
#include <QTranslator>

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace
{

using ui::StringId;

// Leaves the process with the language that it had.
class Words : public testing::Test
{
protected:
    ~Words() override
    {
        for (QTranslator* translator : qApp->findChildren<QTranslator*>())
            delete translator;
        QLocale::setDefault(before);
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
        qunsetenv("KELVO_LANGUAGE");
    }

    QLocale before;
};

}  // namespace

TEST_F(Words, CountsTakeTheFormsOfTheUsersLanguage)
{
    const struct {
        const char* language;
        qint64 number;
        QString text;
        Qt::LayoutDirection direction;
    } rows[] = {
        {"en_GB", 1, QStringLiteral("1 file"), Qt::LeftToRight},
        {"en_GB", 10'000, QStringLiteral("10,000 files"), Qt::LeftToRight},
        {"de_DE", 1, QStringLiteral("1 Datei"), Qt::LeftToRight},
        {"de_AT", 5'000'000'000, QStringLiteral("5\u00a0000\u00a0000\u00a0000 Dateien"), Qt::LeftToRight},
        {"ar_MA", 2, QStringLiteral("ملفان"), Qt::RightToLeft},
        {"ar_MA", 5, QStringLiteral("5 ملفات"), Qt::RightToLeft},
        {"tlh", 2, QStringLiteral("2 files"), Qt::RightToLeft},  // no such translation: nothing changes
    };
    for (const auto& row : rows) {
        for (QTranslator* translator : qApp->findChildren<QTranslator*>())
            delete translator;
        qputenv("KELVO_LANGUAGE", row.language);

        ui::InstallTranslations(QStringLiteral(KELVO_PROGRAM_FOLDER));

        EXPECT_EQ(ui::Counted(StringId::statusFiles, row.number), row.text) << row.language;
        // Has one form for all numbers.
        EXPECT_EQ(ui::Counted(StringId::statusSelected, row.number).endsWith(QStringLiteral("selected")),
                  row.text.contains(QStringLiteral("file")));
        EXPECT_EQ(QGuiApplication::layoutDirection(), row.direction) << row.language;
    }
}

TEST_F(Words, ABrokenTranslationLeavesTheProgramsOwnTexts)
{
    const support::CTempFolder folder;
    std::filesystem::create_directory(folder.Path() + "/translations");
    std::ofstream(folder.Path() + "/translations/kelvo_de.qm") << "no translation at all";
    qputenv("KELVO_LANGUAGE", "de");

    ui::InstallTranslations(QString::fromStdString(folder.Path()));

    EXPECT_EQ(ui::Text(StringId::tabFolder), QStringLiteral("Folder"));
}

TEST(StringTable, TheResourceLibraryServesWhatItHasAndTheProgramTheRest)
{
    platform_linux::CDynamicLibraries libraries;
    const support::CServicesGuard guard(platform::Services{.libraries = &libraries});
    const support::CTempFolder folder;
    std::ofstream(folder.Path() + "/broken.so") << "no library at all";
    const struct {
        std::string path;
        bool loads;
        std::string text;
    } rows[] = {
        {KELVO_MODULES "/qrxKelvo.dll", true, "Folder"},
        {KELVO_MODULES "/tests/other_words.DLL", true, "Somewhere"},
        {KELVO_MODULES "/kelvo-png.dll", false, "Folder"},  // a library without the entry point
        {folder.Path() + "/broken.dll", false, "Folder"},
        {"libc.so.6", false, "Folder"},
    };
    for (const auto& row : rows) {
        app::CStringTable table;

        EXPECT_EQ(table.LoadResourceLibrary(row.path), row.loads) << row.path;
        EXPECT_EQ(table.LoadString(StringId::tabFolder), row.text) << row.path;
        EXPECT_EQ(table.LoadString(StringId::tabDevice), "Device") << row.path;
        EXPECT_EQ(table.LoadSingular(StringId::tabDevice), "Device") << row.path;
    }
}
