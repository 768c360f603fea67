// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The indexes of the archives that this process used last, so that opening one again costs the same however
// many members it has.
//
// An index is taken out while an archive object works with it and put back with the stamp of the file that
// it describes; an index whose stamp no longer fits is dropped. May be called from several threads.
#pragma once

#include "archive/package_index.h"

namespace archive
{

// Null when there is none for this state of the file.
std::unique_ptr<CPackageIndex> TakeIndex(const std::string& path, const platform::FileStamp& stamp);
void KeepIndex(const std::string& path, const platform::FileStamp& stamp,
               std::unique_ptr<CPackageIndex> index);

}  // namespace archive
