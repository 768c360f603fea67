// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Copying and moving files and whole folders.
//
// Nothing that exists is overwritten. A folder copied onto one of the same name is merged into it. What
// cannot be done is left out, the rest is done, and the result is false.
#pragma once

#include <string>

namespace platform_linux
{

enum class LinkCopy {
    content,   // a link to a file becomes a file of its own; other links stay links
    verbatim,  // links stay links
};

struct CopyRules {
    bool filesOnly = false;  // sub-folders are left out
    LinkCopy links = LinkCopy::content;
};

bool CopyTree(const std::string& source, const std::string& target, const CopyRules& rules);
// Renames where that can be; between file systems copies, and removes the source once all of it is copied.
bool MoveTree(const std::string& source, const std::string& target);

}  // namespace platform_linux
