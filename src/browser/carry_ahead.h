// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CCarryAhead: thumbnails and texts follow many files of one folder while these are still being renamed.
//
// Copying a folder's archive takes about as long as giving its files their names, so a thread of its own does
// it meanwhile, out of sight and without a lock. The store is touched only when all files have their names.
#pragma once

#include "browser/member_carry.h"

#include <future>

namespace browser
{

class CCarryAhead
{
public:
    // Begins where it pays: many files that stay in one folder.
    CCarryAhead(const std::string& storeFolder, std::vector<CarriedPath> toBeMoved);

    // True when all has followed the files that were moved. Otherwise the store is as it was, because other
    // files were moved than planned or somebody changed the archive: then it is CarryMembers' turn.
    bool Finish(const std::vector<CarriedPath>& moved);

private:
    bool Prepare();

    CThumbDbMgr manager;
    std::vector<CarriedPath> planned;
    archive::CPackageArchive opened;
    std::vector<CaptionedFile> captioned;
    std::future<bool> prepared;  // the last: it ends before what it works with
};

}  // namespace browser
