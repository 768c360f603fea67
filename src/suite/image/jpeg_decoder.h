// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Decodes a JPEG straight to the size wanted.
//
// The decoder works at the smallest of its scales (1, 1/2, 1/4, 1/8) that still covers the target and hands
// its rows to the area scaler, so that no picture of full size is ever held. Progressive files hold their
// coefficients, half a gigabyte at most.
#pragma once

#include "platform/types.h"
#include "suite/image/input_file.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace suite
{

// `stored` is the size in the file's header; the result has four bytes a pixel: blue, green, red and one
// without meaning. Where the data ends early the rest is grey. Nothing when no pixel can be decoded.
std::optional<std::vector<std::uint8_t>> DecodeJpeg(const CInputFile& file, platform::Extent stored,
                                                    platform::Extent target);

}  // namespace suite
