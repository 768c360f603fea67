// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Names and paths: taking them apart, checking what the user types, and the order of a list.
#pragma once

#include <string>
#include <string_view>

namespace browser
{

// The part after the last separator; the whole path when there is none.
std::string_view FileName(std::string_view path);
// The part before the last separator without it, "/" for a file in the root, empty when there is none.
std::string_view FolderOf(std::string_view path);
// The part after the last dot of the file name, empty when there is no dot.
std::string_view Extension(std::string_view path);
std::string JoinPath(std::string_view folder, std::string_view name);
// ASCII letters in lower case; every other byte as it is.
std::string LowerCase(std::string_view text);

// Whether a name that the user typed holds none of / \ : * ? " < > |
bool IsValidFileName(std::string_view name);

// Whether the path is one of the places that are no folders of files: the control panel, the recycle bin, or
// a drive's own recycle folder (eleven characters, ":\Recycled" from the second on).
bool IsSpecialPlace(std::string_view path);

// The order of a list: runs of digits by their value, letters without regard to case, then bytes. A strict
// order: only equal names are equal.
bool NameBefore(std::string_view left, std::string_view right);

}  // namespace browser
