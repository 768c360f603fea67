// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CarryMembers: what the thumbnail store holds of files and folders follows them to their new places.
#pragma once

#include "archive/package_archive.h"
#include "browser/caption_book.h"
#include "browser/thumb_db_mgr.h"

#include <optional>
#include <string>
#include <vector>

namespace browser
{

enum class CarryKind {
    move,       // moved or renamed: what they had is at the new place alone
    moveAgain,  // the same, of which some may have been carried before
    copy,       // copied: the copies get the same texts and thumbnails
};

struct CarriedPath {
    std::string from;
    std::string to;                     // where it is now
    std::optional<bool> isFolder = {};  // looked up when not known
};

// Thumbnails and texts of the files follow them, and so does all of what the store holds of folders. What the
// store held under a new name before gives way: it was of a file that is gone. Each archive is written once
// for all of its renamed files.
//
// False when an archive or the manager file could not be read or written: the members that could not follow
// are still under their old names. May be called once more with the same paths
// and moveAgain.
bool CarryMembers(CThumbDbMgr& manager, const std::vector<CarriedPath>& paths, CarryKind kind);

// The part of it that gives the members of one open archive their new names in memory; the texts of those
// that have any are added to `captioned`. False when a member could not be renamed, or one in the way not be
// removed.
bool RenameMembers(archive::CPackageArchive& opened, const std::vector<CarriedPath>& paths, CarryKind kind,
                   std::vector<CaptionedFile>& captioned);

}  // namespace browser
