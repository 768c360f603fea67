// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What a file holds, told from its first bytes; names and extensions are never asked.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace suite
{

enum class PictureKind { unknown, jpeg, png, bmp, dib, tiff, gif, webp, heif, video };

// How many bytes from the start of the file SniffPicture wants to see.
inline constexpr std::size_t kSniffLength = 192;

PictureKind SniffPicture(std::span<const std::uint8_t> start);

}  // namespace suite
