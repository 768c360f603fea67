// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CPictureSources: the scanners and cameras that pictures can be acquired from.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace platform
{

struct PictureSource {
    std::string id;    // by which the source manager knows it
    std::string name;  // for people
    bool operator==(const PictureSource&) const = default;
};

class CPictureSources
{
public:
    virtual ~CPictureSources() = default;
    // All of them; nothing when the source manager cannot be opened. May take seconds; any thread, one call
    // at a time.
    virtual std::optional<std::vector<PictureSource>> Sources() = 0;
};

}  // namespace platform
