// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Small types that every folder shares.
//
// Paths and texts are byte strings. A path is what the file system holds, so it may carry bytes that are
// not UTF-8; texts of our own are UTF-8. The path separator is "/".
#pragma once

#include <cstdint>
#include <string>

namespace platform
{

// 100-nanosecond steps since 1601-01-01 00:00 UTC; 0 stands for "not known".
using FileTime = std::uint64_t;

struct Rect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
    bool operator==(const Rect&) const = default;
};

struct Extent {
    int width = 0;
    int height = 0;
    bool operator==(const Extent&) const = default;
};

// Red in the lowest byte, then green, then blue, as the drawing functions of the suite take it.
using ColorRef = std::uint32_t;

}  // namespace platform
