// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CarryMembers: what the thumbnail store holds of files and folders follows them to their new places.
#pragma once

#include "browser/thumb_db_mgr.h"

#include <optional>
#include <string>
#include <vector>

namespace browser
{

enum class CarryKind {
    move,  // moved or renamed: what they had is at the new place alone
    copy,  // copied: the copies get the same texts and thumbnails
};

struct CarriedPath {
    std::string from;
    std::string to;                     // where it is now
    std::optional<bool> isFolder = {};  // looked up when not known
};

// Thumbnails and texts of the files follow them, and so does all of what the store holds of folders. What the
// store held under a new name before gives way. Each archive is written once for
// all of its renamed files. Paths without anything in the store are passed over.
//
// False when an archive or the manager file could not be read or written: the members that could not follow
// are still under their old names. May be called again with the same paths.
bool CarryMembers(CThumbDbMgr& manager, const std::vector<CarriedPath>& paths, CarryKind kind);

}  // namespace browser
