// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// A resource library that knows a single text.
#include <cstring>

extern "C" const char* KelvoLoadString(const char* name, int form);

const char* KelvoLoadString(const char* name, int form)
{
    return form == 0 && std::strcmp(name, "tabFolder") == 0 ? "Somewhere" : nullptr;
}
