// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The window's texts in the user's language: the string table, with the installed translations over it.
#pragma once

#include "platform/string_ids.h"

#include <QString>

class QCoreApplication;

namespace ui
{

using platform::StringId;

QString Text(StringId id);

// A name or value as it stands within a text: it keeps its own direction in a text from right to left.
QString Shielded(const QString& value);

// The text with "%1", "%2" ... replaced. Arguments are shown as they are, even those that hold a "%1".
template <typename... Arguments> QString Text(StringId id, const Arguments&... arguments)
{
    return Text(id).arg(Shielded(QString(arguments))...);
}

// The text's form for that many things, "%1" being the number as the user's language writes it.
QString Counted(StringId id, qint64 number);

// Loads the translations for the user's language (KELVO_LANGUAGE, "de", goes before the desktop's choice) and
// lays the windows out from right to left where the language is written so. English needs none.
void InstallTranslations(const QString& programFolder);

}  // namespace ui
