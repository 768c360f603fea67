// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The quick way to a JPEG's picture at an eighth of its size: each block's mean, and nothing else, is
// decoded.
//
// Serves what cameras write: baseline, Huffman coded, 8 bits, grey or YCbCr with chroma at full, half or
// quarter resolution, all in one scan, with or without restart markers. Anything else, and any oddity in
// the data, is refused and left to libjpeg.
#pragma once

#include "platform/types.h"
#include "suite/image/jpeg_input.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace suite
{

// `info` has its header read; `dataBegin` is where the scan's data lies in `file`. The result is as
// DecodeJpeg's.
std::optional<std::vector<std::uint8_t>> WalkDcTerms(const CInputFile& file, std::uint64_t dataBegin,
                                                     const jpeg_decompress_struct& info,
                                                     platform::Extent target);

}  // namespace suite
