// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The bytes of "DbMgr.dmf" and the records in them; layout in docs/formats/thumbnail-manager.md.
#pragma once

#include "browser/thumb_db_mgr.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace browser
{

struct ManagerFileContents {
    std::vector<ThumbDbRecord> records;
    std::uint64_t end = 0;  // behind the last whole record that the count covers
    // Whether each of those records could be taken. One is left out when its archive name is no bare file
    // name, or already belongs to an earlier record: nothing outside the store is touched, and no two
    // folders share an archive.
    bool plain = true;
};

// Never fails: what is cut short or makes no sense ends the list, and what stands before it is kept.
ManagerFileContents DecodeManagerFile(std::string_view bytes);

// The four bytes of the count.
std::string EncodeCount(std::size_t count);
// Empty when a text is longer than its 16-bit length can tell.
std::string EncodeRecord(const ThumbDbRecord& record);

}  // namespace browser
