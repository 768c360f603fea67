// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CTypeAhead: finds the name that begins with what is typed.
//
// Letters that follow each other closely belong together, and the search goes on from the current item; one
// letter typed again and again goes round the names that begin with it. Case does not matter.
#pragma once

#include <QElapsedTimer>
#include <QString>

class QAbstractItemModel;

namespace ui
{

class CTypeAhead
{
public:
    // The row to go to after `key` was typed while `current` (or -1) was current; -1 for none.
    int Find(const QAbstractItemModel& names, int current, const QString& key);

private:
    QString typed;
    QElapsedTimer sinceLast;
};

}  // namespace ui
