// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Texts that the user reads, and what they are made from.
#include "support/test_services.h"
#include "ui/display_text.h"
#include "ui/printer_defaults.h"
#include "ui/words.h"

#include <QDateTime>
#include <QLocale>

#include <gtest/gtest.h>

TEST(DisplayText, NamesAreShownOnOneLineWhateverTheirBytes)
{
    const struct {
        std::string bytes;
        QString shown;
    } rows[] = {
        {"plain.jpg", QStringLiteral("plain.jpg")},
        {"na\xC3\xAFve", QStringLiteral("na\u00efve")},
        {"caf\xE9.jpg", QStringLiteral("caf\ufffd.jpg")},
        {"a\nb\tc\x7F", QStringLiteral("a\u240ab\u2409c\u2421")},
        {"", QString()},
    };
    for (const auto& row : rows)
        EXPECT_EQ(ui::Shown(row.bytes), row.shown) << row.bytes;
}

TEST(DisplayText, SizesTimesAndCountsAreInTheUsersWords)
{
    EXPECT_EQ(ui::SizeText(1), QStringLiteral("1 byte"));
    EXPECT_EQ(ui::SizeText(4'404'019), QStringLiteral("4.2 MB"));
    EXPECT_EQ(ui::Counted(ui::StringId::statusFiles, 1), QStringLiteral("1 file"));
    EXPECT_EQ(ui::Counted(ui::StringId::statusFiles, 0), QStringLiteral("0 files"));

    // 2004-05-17 12:00 UTC, shown as local time.
    const platform::FileTime noon = (1'084'795'200ULL + 11'644'473'600ULL) * 10'000'000;
    const QDateTime local = QDateTime::fromSecsSinceEpoch(1'084'795'200);
    EXPECT_EQ(ui::TimeText(noon), QLocale().toString(local, QLocale::ShortFormat));
    EXPECT_TRUE(ui::TimeText(0).isEmpty());
}

TEST(PrinterDefaults, AUsersOptionsFileNamesThePrinter)
{
    support::TestServices services;
    services.shell.base = services.folder.Path("user");
    const std::string home = *services.shell.GetFolderPath(platform::KnownFolder::home, true);
    std::filesystem::create_directories(home + "/.cups");
    for (const char* name : {"LPDEST", "PRINTER"})
        unsetenv(name);
    const int machine = std::filesystem::exists("/etc/cups/lpoptions") ? ui::ReadPrinterDefaults() : 0;
    const struct {
        const char* options;
        int found;
    } rows[] = {
        {"Dest office\nDefault home sides=two\n", 1}, {"Default x\n", 1}, {"Dest Default\n", machine}};
    for (const auto& row : rows) {
        support::WriteBytes(home + "/.cups/lpoptions", row.options);
        EXPECT_EQ(ui::ReadPrinterDefaults(), row.found) << row.options;
    }
    setenv("PRINTER", "any", 1);
    EXPECT_EQ(ui::ReadPrinterDefaults(), 1);
    unsetenv("PRINTER");
}
