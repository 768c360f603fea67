// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CSelectionKeeper: remembers by name what is selected, current and at the top of a view, and finds it again
// after the list has been read anew.
#pragma once

#include "browser/media_file_list.h"

#include <QItemSelection>

#include <string>
#include <unordered_set>

class QAbstractItemView;

namespace ui
{

class CSelectionKeeper
{
public:
    // Takes the state of `view`, which shows the items of `list`; `firstVisible` is the row at its top, or
    // -1.
    void Capture(const QAbstractItemView& view, const browser::CMediaFileList& list, int firstVisible);
    // Nothing is kept but this file, which becomes selected and current.
    void Want(const std::string& fileName);
    // The same for several; the first becomes current.
    void Want(const std::vector<std::string>& fileNames);
    void Forget() { *this = {}; }
    // Puts the state into `view`; names that are gone are left out.
    void Restore(QAbstractItemView& view, const browser::CMediaFileList& list) const;

private:
    std::unordered_set<std::string> selected;
    std::string current;
    std::string top;
    int topOffset = 0;  // where the top item's upper edge was, in pixels from the view's
    bool showCurrent = false;
};

}  // namespace ui
