// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/string_table.h"

#include "app/string_entries.h"
#include "platform/services.h"

namespace app
{

namespace
{

const StringEntry& Entry(platform::StringId id)
{
    return kStringEntries[static_cast<int>(id)];
}

}  // namespace

bool CStringTable::LoadResourceLibrary(const std::string& path)
{
    if (!platform::Os().libraries)
        return false;
    auto loaded = platform::Os().libraries->LoadLibrary(path);
    if (!loaded)
        return false;
    load = reinterpret_cast<LoadFunction*>(loaded->GetProcAddress("KelvoLoadString"));
    library = std::move(loaded);
    return load != nullptr;
}

std::string CStringTable::Find(platform::StringId id, int form) const
{
    if (load) {
        if (const char* const text = load(Entry(id).name, form))
            return text;
    }
    return form == 0 ? Entry(id).text : Entry(id).one;
}

std::string CStringTable::LoadSingular(platform::StringId id) const
{
    std::string text = Find(id, 1);
    return text.empty() ? LoadString(id) : text;
}

const char* CStringTable::Name(platform::StringId id)
{
    return Entry(id).name;
}

CStringTable& Strings()
{
    static CStringTable table;
    return table;
}

}  // namespace app
