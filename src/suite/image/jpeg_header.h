// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What the sections before a JPEG's first scan tell. Only these are read, never the pixels' data.
#pragma once

#include "platform/types.h"
#include "suite/image/input_file.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace suite
{

struct JpegHeader {
    platform::Extent size;           // as stored, both sides at least 1
    std::vector<std::uint8_t> exif;  // the first EXIF block, "Exif" and two zeros first; may be empty
};

// Nothing when the file breaks before its size is known.
std::optional<JpegHeader> ReadJpegHeader(const CInputFile& file);

}  // namespace suite
