// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Journal files: any bytes. What is read can be written again and reads the same.
#include "browser/journal_file.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto entry = browser::DecodeJournal(text);
    if (!entry)
        return 0;
    const auto again = browser::DecodeJournal(browser::EncodeJournal(entry->state, entry->record));
    if (!again || again->record != entry->record || again->state != entry->state)
        std::abort();
    return 0;
}
