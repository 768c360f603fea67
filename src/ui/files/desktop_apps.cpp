// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/files/desktop_apps.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QMap>
#include <QMimeDatabase>
#include <QSet>
#include <QStandardPaths>

#include <algorithm>
#include <optional>

namespace ui
{

namespace
{

constexpr qint64 kMostBytes = 4 << 20;

using Section = QMap<QString, QString>;
using Sections = QMap<QString, Section>;

// Groups of "key=value" lines; the first value of a key counts.
Sections ReadGroups(const QString& path)
{
    Sections groups;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > kMostBytes)
        return groups;
    Section* group = nullptr;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    for (const QString& raw : lines) {
        const QString line = raw.trimmed();
        const qsizetype equals = line.indexOf(QLatin1Char('='));
        if (line.startsWith(QLatin1Char('[')) && line.endsWith(QLatin1Char(']'))) {
            group = &groups[line.mid(1, line.size() - 2)];
        } else if (group && equals > 0 && !line.startsWith(QLatin1Char('#'))) {
            const QString key = line.left(equals).trimmed();
            if (!group->contains(key))
                group->insert(key, line.mid(equals + 1).trimmed());
        }
    }
    return groups;
}

// The value with a desktop entry's escapes undone.
QString Unescaped(const QString& value)
{
    QString plain;
    for (qsizetype i = 0; i < value.size(); ++i) {
        if (value[i] != QLatin1Char('\\') || i + 1 == value.size()) {
            plain += value[i];
            continue;
        }
        const QChar code = value[++i];
        plain += code == QLatin1Char('s')   ? QLatin1Char(' ')
                 : code == QLatin1Char('n') ? QLatin1Char('\n')
                 : code == QLatin1Char('t') ? QLatin1Char('\t')
                 : code == QLatin1Char('r') ? QLatin1Char('\r')
                                            : code;
    }
    return plain;
}

QStringList Items(const QString& value)
{
    return value.split(QLatin1Char(';'), Qt::SkipEmptyParts);
}

QString LocalName(const Section& entry)
{
    const QString locale = QLocale().name();
    for (const QString& form : {locale, locale.section(QLatin1Char('_'), 0, 0)}) {
        const QString key = QStringLiteral("Name[%1]").arg(form);
        if (entry.contains(key))
            return Unescaped(entry.value(key));
    }
    return Unescaped(entry.value(QStringLiteral("Name")));
}

QStringList Desktops()
{
    return qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(QLatin1Char(':'), Qt::SkipEmptyParts);
}

bool IsForThisDesktop(const Section& entry)
{
    const QStringList here = Desktops();
    const auto names = [&](const char* key) {
        const QStringList listed = Items(entry.value(QLatin1String(key)));
        return std::ranges::any_of(here, [&](const QString& desktop) { return listed.contains(desktop); });
    };
    return entry.contains(QStringLiteral("OnlyShowIn")) ? names("OnlyShowIn") : !names("NotShowIn");
}

bool HasProgram(const QString& program)
{
    return !program.isEmpty() && !QStandardPaths::findExecutable(program).isEmpty();
}

// The words of Exec: blanks divide, double quotes hold together, a backslash keeps what follows it.
QStringList ExecWords(const QString& command)
{
    QStringList words;
    bool quoted = false;
    bool inWord = false;
    for (qsizetype i = 0; i < command.size(); ++i) {
        const QChar letter = command[i];
        if (!quoted && letter.isSpace()) {
            inWord = false;
            continue;
        }
        if (!inWord)
            words.append(QString());
        inWord = true;
        if (letter == QLatin1Char('"'))
            quoted = !quoted;
        else if (quoted && letter == QLatin1Char('\\') && i + 1 < command.size())
            words.last() += command[++i];
        else
            words.last() += letter;
    }
    return words;
}

// All installed entries by their id, the user's own before the system's.
class CDesktopEntries
{
public:
    CDesktopEntries()
    {
        for (const QString& folder : QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation))
            Find(QDir(folder), {}, 0);
    }

    std::optional<DesktopApp> Read(const QString& id)
    {
        const QString path = paths.value(id);
        const Section entry = path.isEmpty() ? Section() : Entry(path);
        const QString command = Unescaped(entry.value(QStringLiteral("Exec")));
        const QString tried = entry.value(QStringLiteral("TryExec"));
        const bool isTrue = entry.value(QStringLiteral("Hidden")) == QStringLiteral("true");
        if (entry.value(QStringLiteral("Type")) != QStringLiteral("Application") || isTrue ||
            !IsForThisDesktop(entry) || !HasProgram(ExecWords(command).value(0)) ||
            (!tried.isEmpty() && !HasProgram(tried)))
            return std::nullopt;
        return DesktopApp{
            id,   LocalName(entry), entry.value(QStringLiteral("Icon")),
            path, command,          entry.value(QStringLiteral("Terminal")) == QStringLiteral("true")};
    }

    // The ids of the entries that name the type, in order of their names.
    QStringList Naming(const QString& type)
    {
        QStringList ids;
        for (auto at = paths.cbegin(); at != paths.cend(); ++at) {
            if (Items(Entry(at.value()).value(QStringLiteral("MimeType"))).contains(type))
                ids.append(at.key());
        }
        return ids;
    }

private:
    void Find(const QDir& folder, const QString& prefix, int depth)
    {
        for (const QFileInfo& found : folder.entryInfoList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot)) {
            if (found.isDir() && depth < 4)
                Find(QDir(found.filePath()), prefix + found.fileName() + QLatin1Char('-'), depth + 1);
            else if (found.fileName().endsWith(QStringLiteral(".desktop")) &&
                     !paths.contains(prefix + found.fileName()))
                paths.insert(prefix + found.fileName(), found.filePath());
        }
    }
    const Section& Entry(const QString& path)
    {
        if (!read.contains(path))
            read.insert(path, ReadGroups(path).value(QStringLiteral("Desktop Entry")));
        return read[path];
    }

    QMap<QString, QString> paths;
    QMap<QString, Section> read;
};

// mimeapps.list, the nearest to the user first.
std::vector<Sections> Associations()
{
    QStringList names;
    for (const QString& desktop : Desktops())
        names.append(desktop.toLower() + QStringLiteral("-mimeapps.list"));
    names.append(QStringLiteral("mimeapps.list"));
    std::vector<Sections> found;
    for (const auto place : {QStandardPaths::GenericConfigLocation, QStandardPaths::ApplicationsLocation}) {
        for (const QString& folder : QStandardPaths::standardLocations(place)) {
            for (const QString& name : names)
                found.push_back(ReadGroups(folder + QLatin1Char('/') + name));
        }
    }
    return found;
}

// The ids for a type, best first: defaults, added ones, and those whose own entries name it.
QStringList IdsFor(const QString& type, const std::vector<Sections>& lists, CDesktopEntries& entries)
{
    QStringList ids;
    QSet<QString> removed;
    for (const char* group : {"Default Applications", "Added Associations"}) {
        for (const Sections& list : lists)
            ids += Items(list.value(QLatin1String(group)).value(type));
    }
    for (const Sections& list : lists) {
        for (const QString& id : Items(list.value(QStringLiteral("Removed Associations")).value(type)))
            removed.insert(id);
    }
    for (const QString& id : entries.Naming(type)) {
        if (!removed.contains(id))
            ids.append(id);
    }
    ids.removeDuplicates();
    return ids;
}

QStringList TypesOf(const std::vector<std::string>& paths)
{
    const QMimeDatabase database;
    QStringList types;
    for (const std::string& path : paths) {
        const QString name = QFile::decodeName(QByteArray::fromStdString(path));
        const QString type = database.mimeTypeForFile(name, QMimeDatabase::MatchExtension).name();
        if (!types.contains(type))
            types.append(type);
    }
    return types;
}

}  // namespace

std::vector<DesktopApp> AppsFor(const std::vector<std::string>& paths)
{
    const std::vector<Sections> lists = Associations();
    const QMimeDatabase database;
    CDesktopEntries entries;
    std::optional<QStringList> shared;
    for (const QString& type : TypesOf(paths)) {
        QStringList ids = IdsFor(type, lists, entries);
        // A more general type's programs will do as well.
        for (const QString& parent : database.mimeTypeForName(type).allAncestors()) {
            if (parent != QStringLiteral("application/octet-stream"))
                ids += IdsFor(parent, lists, entries);
        }
        ids.removeDuplicates();
        if (shared)
            shared->removeIf([&](const QString& id) { return !ids.contains(id); });
        else
            shared = ids;
    }
    std::vector<DesktopApp> apps;
    for (const QString& id : shared.value_or(QStringList())) {
        if (const auto app = entries.Read(id))
            apps.push_back(*app);
    }
    return apps;
}

std::vector<std::vector<std::string>> CommandsFor(const DesktopApp& app,
                                                  const std::vector<std::string>& paths)
{
    const QStringList words = ExecWords(app.command);
    const auto address = [](const std::string& path) {
        return ("file://" + QByteArray::fromStdString(path).toPercentEncoding("/")).toStdString();
    };
    const auto expand = [&](const std::vector<std::string>& files) {
        std::vector<std::string> line;
        if (app.inTerminal)
            line = {"x-terminal-emulator", "-e"};
        bool given = false;
        for (const QString& word : words) {
            const bool asUri = word == QStringLiteral("%u") || word == QStringLiteral("%U");
            if (asUri || word == QStringLiteral("%f") || word == QStringLiteral("%F")) {
                for (const std::string& file : files)
                    line.push_back(asUri ? address(file) : file);
                given = true;
            } else if (word == QStringLiteral("%i")) {
                if (!app.icon.isEmpty())
                    line.insert(line.end(), {"--icon", app.icon.toStdString()});
            } else if (!(word.size() == 2 && word[0] == QLatin1Char('%') && word[1] != QLatin1Char('%') &&
                         word[1] != QLatin1Char('c') && word[1] != QLatin1Char('k'))) {
                QString plain = word;
                plain.replace(QStringLiteral("%c"), app.name).replace(QStringLiteral("%k"), app.file);
                line.push_back(plain.replace(QStringLiteral("%%"), QStringLiteral("%")).toStdString());
            }
        }
        // Some entries forget to say where the file goes.
        if (!given)
            line.insert(line.end(), files.begin(), files.end());
        return line;
    };
    if (words.contains(QStringLiteral("%F")) || words.contains(QStringLiteral("%U")))
        return {expand(paths)};
    std::vector<std::vector<std::string>> commands;
    for (const std::string& path : paths)
        commands.push_back(expand({path}));
    return commands;
}

}  // namespace ui
