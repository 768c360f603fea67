// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The entry point of qrxKelvo.so; app/string_table.h tells its contract.
#include "app/string_entries.h"

#include <cstring>

extern "C" __attribute__((visibility("default"))) const char* KelvoLoadString(const char* name, int form);

const char* KelvoLoadString(const char* name, int form)
{
    for (int i = 1; i < platform::kStringCount; ++i) {
        const app::StringEntry& entry = app::kStringEntries[i];
        if (std::strcmp(entry.name, name) == 0)
            return form == 0 ? entry.text : entry.one;
    }
    return nullptr;
}
