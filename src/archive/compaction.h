// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Writing an archive anew without its deleted members.
#pragma once

#include "archive/package_index.h"

#include <set>

namespace archive
{

// Copies the members of `source` that are not deleted to the empty file `target`; those of `newTexts` get
// their name and texts in memory, the others' records are copied as they are. The index of what was written,
// or null when a read, a write or the allocation of the copy buffer failed.
std::unique_ptr<CPackageIndex> WriteCompacted(platform::CFile& source, const CPackageIndex& index,
                                              const std::set<std::size_t>& newTexts, platform::CFile& target);

}  // namespace archive
