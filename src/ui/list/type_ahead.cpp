// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/list/type_ahead.h"

#include <QAbstractItemModel>
#include <QApplication>

#include <algorithm>

namespace ui
{

int CTypeAhead::Find(const QAbstractItemModel& names, int current, const QString& key)
{
    const bool isNew = !sinceLast.isValid() || sinceLast.hasExpired(QApplication::keyboardInputInterval());
    sinceLast.start();
    typed = isNew ? key : typed + key;
    const int rows = names.rowCount();
    if (rows == 0 || typed.isEmpty())
        return -1;
    const bool isOneLetter =
        std::ranges::all_of(typed, [this](QChar letter) { return letter == typed.front(); });
    const QString wanted = isOneLetter ? typed.left(1) : typed;
    // A name that goes on matching stays; a new search and a letter typed again go on to the next one.
    const int first = current < 0 ? 0 : current + (isOneLetter ? 1 : 0);
    for (int i = 0; i < rows; ++i) {
        const int row = (first + i) % rows;
        if (names.index(row, 0).data().toString().startsWith(wanted, Qt::CaseInsensitive))
            return row;
    }
    return -1;
}

}  // namespace ui
