// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// A photo's EXIF record as kelvoctl prints it: every field under its own name, in the record's order.
#pragma once

#include "cli/context.h"
#include "photo/exif_image_info.h"

namespace cli
{

// Numbers that are none (a damaged file can hold such) and a thumbnail that is not there are null.
Json RecordJson(const photo::ExifImageInfo& record, std::optional<std::size_t> thumbnailOffset);

// A line "PATH<tab>FIELD<tab>VALUE" for each field. In texts, a backslash is "\\", a line break "\n", a tab
// "\t" and any other control character "\xNN", so that a field stays on its line.
std::string RecordText(const std::string& path, const photo::ExifImageInfo& record,
                       std::optional<std::size_t> thumbnailOffset);

}  // namespace cli
