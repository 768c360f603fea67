// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/words.h"

#include "app/string_table.h"

#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace ui
{

namespace
{

// Translations are found by the identifier's name.
QString Translated(StringId id, int number)
{
    const char* const name = app::CStringTable::Name(id);
    QString text = qtTrId(name, number);
    return text == QLatin1String(name) ? QString() : text;
}

bool Install(const QLocale& locale, const QString& name, const QString& folder)
{
    auto* translator = new QTranslator(qApp);
    if (translator->load(locale, name, QStringLiteral("_"), folder) &&
        QCoreApplication::installTranslator(translator))
        return true;
    delete translator;
    return false;
}

}  // namespace

QString Text(StringId id)
{
    const QString translated = Translated(id, -1);
    return translated.isEmpty() ? QString::fromStdString(app::Strings().LoadString(id)) : translated;
}

QString Shielded(const QString& value)
{
    constexpr QChar kFirstStrongIsolate(0x2068);
    constexpr QChar kPopIsolate(0x2069);
    return QGuiApplication::isRightToLeft() ? kFirstStrongIsolate + value + kPopIsolate : value;
}

QString Counted(StringId id, qint64 number)
{
    // The forms depend on small numbers and on the last digits of large ones.
    const int form = static_cast<int>(number < 1'000'000 ? number : 1'000'000 + number % 1'000'000);
    QString text = Translated(id, form);
    // A text that is the same for every number has one form only.
    if (text.isEmpty())
        text = Translated(id, -1);
    if (text.isEmpty()) {
        text = QString::fromStdString(number == 1 ? app::Strings().LoadSingular(id)
                                                  : app::Strings().LoadString(id));
    }
    return text.arg(QLocale().toString(number));
}

void InstallTranslations(const QString& programFolder)
{
    const QString wanted = qEnvironmentVariable("KELVO_LANGUAGE");
    const QLocale locale = wanted.isEmpty() ? QLocale() : QLocale(wanted);
    QLocale::setDefault(locale);
    if (!Install(locale, QStringLiteral("kelvo"), programFolder + QStringLiteral("/translations")))
        return;
    Install(locale, QStringLiteral("qtbase"), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    QGuiApplication::setLayoutDirection(locale.textDirection());
}

}  // namespace ui
