// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Writing a file under a name that is free.
#pragma once

#include <cstddef>
#include <span>
#include <string>

namespace suite
{

// Whether anything, a dangling link included, has this name.
bool NameIsTaken(const std::string& path);

// The file appears under its name with all its bytes, or not at all; fails when the name is taken. The bytes
// are not forced to the medium.
bool WriteNewFile(const std::string& path, std::span<const std::byte> bytes);

}  // namespace suite
