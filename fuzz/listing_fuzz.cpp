// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a folder listing: every file has a name and an index of its own, and its name on this side
// leads nowhere else.
#include "suite/handset/folder_listing.h"

#include <cstdlib>
#include <set>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::set<int> indices;
    for (const auto& file : suite::ReadFolderListing({reinterpret_cast<const char*>(data), size}, 6)) {
        const std::string name = suite::LocalName(file.name);
        const bool sound = !file.name.empty() && file.index > 0 && indices.insert(file.index).second &&
                           !name.empty() && name.size() <= 240 && name.front() != '.' &&
                           name.find_first_of(std::string("/\\\0\n", 4)) == std::string::npos;
        if (!sound)
            std::abort();
    }
    suite::ReadFreeSpace({reinterpret_cast<const char*>(data), size});
    return 0;
}
