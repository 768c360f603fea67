// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The string table as it is compiled in: one entry for each platform::StringId, in its order.
#pragma once

#include "platform/string_ids.h"

namespace app
{

struct StringEntry {
    const char* name;
    const char* text;
    const char* one;  // the form for the number 1; empty when there is none
};

extern const StringEntry kStringEntries[platform::kStringCount];

}  // namespace app
