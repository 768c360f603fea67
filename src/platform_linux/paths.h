// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Paths as the kernel takes them, and what can be told from their text.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace platform_linux
{

// The path for a system call. A path with a zero byte in it becomes the empty one, which every call refuses:
// cut off at that byte it would name another file.
const char* Native(const std::string& path);

// The folder that holds `path`: "." for a bare name, "/" for the root.
std::string ParentOf(const std::string& path);
std::string_view NameOf(std::string_view path);
std::string Join(const std::string& folder, std::string_view name);
// Whether `path` lies below `folder` (not the folder itself), by its text.
bool IsBelow(std::string_view path, std::string_view folder);

// Where a write to `path` ends when links are followed; the end need not exist. Nothing when links go in a
// circle or one cannot be read.
std::optional<std::string> FollowLinks(const std::string& path);
// As FollowLinks, for every part of an absolute path.
std::optional<std::string> FollowAllLinks(const std::string& path);

// Makes the folder and those above it with mode 0700; true when it is there afterwards.
bool MakeFolders(const std::string& path);

}  // namespace platform_linux
