// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Makes JPEG bytes from a bitmap.
#pragma once

#include "platform/image.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace suite
{

// Transparent pixels become white; `quality` is kept within 1 to 100. Nothing for an empty bitmap or a side
// longer than JPEG allows (65500).
std::optional<std::vector<std::byte>> EncodeJpeg(const platform::Bitmap& bitmap, int quality);

}  // namespace suite
