// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CStringTable: the texts of the window, by their identifiers.
//
// They come from the resource library once that is loaded, and otherwise, or where it lacks one, from the
// program itself. The library has one entry point, `const char* KelvoLoadString(const char* name, int form)`:
// the UTF-8 text of that name (form 0) or its form for the number 1 (form 1), which lives as long as the
// library; null for a name that it does not know.
#pragma once

#include "platform/libraries.h"
#include "platform/string_ids.h"

#include <memory>
#include <string>

namespace app
{

class CStringTable
{
public:
    // False when there is no such library; the table then serves the program's own texts.
    bool LoadResourceLibrary(const std::string& path);

    std::string LoadString(platform::StringId id) const { return Find(id, 0); }
    // The form for the number 1; the text itself when it has none.
    std::string LoadSingular(platform::StringId id) const;
    static const char* Name(platform::StringId id);

private:
    using LoadFunction = const char*(const char* name, int form);
    std::string Find(platform::StringId id, int form) const;

    std::unique_ptr<platform::CLibrary> library;
    LoadFunction* load = nullptr;
};

// The table of this process.
CStringTable& Strings();

}  // namespace app
