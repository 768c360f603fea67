// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Names for what finds its own name taken.
#pragma once

#include <string>
#include <string_view>

namespace browser
{

enum class NameKind { file, folder };

// The end of a file's name that says what it is, with its dot: ".jpg"; empty for none, for a folder's name
// and for a name that is all extension, such as ".hidden".
std::string_view NameEnding(std::string_view name, NameKind kind);

// "name.jpg" with the number: "name (2).jpg". A number that the name has already gives way to it. What would
// be longer than a file system takes is cut before the number, between characters.
std::string NumberedName(std::string_view name, int number, NameKind kind);

}  // namespace browser
