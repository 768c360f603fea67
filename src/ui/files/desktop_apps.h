// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The programs that the desktop has for a kind of file.
//
// By the MIME applications association specification: mimeapps.list of the user, the system and the desktop,
// then the associations that the programs' own entries name. Entries that are hidden, broken, for another
// desktop, or that lack their program are left out.
#pragma once

#include <QString>
#include <QStringList>

#include <string>
#include <vector>

namespace ui
{

struct DesktopApp {
    QString id;    // "org.gimp.GIMP.desktop"
    QString name;  // for people
    QString icon;
    QString file;     // the entry's own path
    QString command;  // the value of Exec
    bool inTerminal = false;
};

// The files' programs, the default one first: those that take every kind among the files.
std::vector<DesktopApp> AppsFor(const std::vector<std::string>& paths);
// The command lines that open the files: one for all of them where the program takes several, else one each.
std::vector<std::vector<std::string>> CommandsFor(const DesktopApp& app,
                                                  const std::vector<std::string>& paths);

}  // namespace ui
