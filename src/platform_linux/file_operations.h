// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Copying and moving files and whole folders.
//
// Nothing that exists is overwritten. A folder copied onto one of the same name is merged into it unless told
// otherwise. What cannot be done is left out, the rest is done, and the result is false.
#pragma once

#include "platform_linux/file_replacement.h"
#include "platform_linux/operation_log.h"

#include <string>

namespace platform_linux
{

enum class LinkCopy {
    content,   // a link to a file becomes a file of its own; other links stay links
    verbatim,  // links stay links
};

enum class ExistingFolder { merge, fail };

struct CopyRules {
    bool filesOnly = false;  // sub-folders are left out
    LinkCopy links = LinkCopy::content;
    ExistingFolder existing = ExistingFolder::merge;
    Durability durability = Durability::beforeNamed;
};

bool CopyTree(const std::string& source, const std::string& target, const CopyRules& rules,
              COperationLog* log = nullptr);
// Renames where that can be; between file systems copies, and removes the source once all of it is on the
// other medium.
bool MoveTree(const std::string& source, const std::string& target, COperationLog* log = nullptr);
// Whether a copy of the folder to `target` would find itself among what it copies.
bool IsInside(const std::string& target, const std::string& folder);
// Whether both paths are one name in one folder.
bool IsSameEntry(const std::string& left, const std::string& right);

}  // namespace platform_linux
