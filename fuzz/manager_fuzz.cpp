// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a manager file: what is read from it survives being written, and nothing leads out of the
// store.
#include "browser/manager_file.h"

#include <algorithm>
#include <cstdlib>
#include <set>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const browser::ManagerFileContents contents = browser::DecodeManagerFile(bytes);

    std::string written = browser::EncodeCount(contents.records.size());
    std::set<std::string> archives;
    bool sound = contents.end >= 4 && contents.end <= std::max<std::size_t>(size, 4);
    for (const browser::ThumbDbRecord& record : contents.records) {
        sound = sound && archives.insert(record.dbFileName).second &&
                record.dbFileName.find('/') == std::string::npos && record.dbFileName != "..";
        written += browser::EncodeRecord(record);
    }
    const browser::ManagerFileContents again = browser::DecodeManagerFile(written);
    if (!sound || again.records != contents.records || !again.plain || again.end != written.size()) {
        std::abort();
    }
    return 0;
}
