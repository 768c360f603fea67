// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Making one thumbnail from one file.
#pragma once

#include "platform/image.h"

#include <string>

namespace browser
{

inline constexpr int kThumbnailSide = 180;

// The size of a picture fitted into a box: never enlarged, cut toward zero, no side below 1.
platform::Extent FitInto(platform::Extent picture, int maxWidth, int maxHeight);

// A bitmap of at most maxWidth by maxHeight pixels, or null. `source` gets the picture's own size (0 by 0 for
// an ".avi" clip).
platform::BitmapHandle MakeThumbnail(const std::string& path, int maxWidth, int maxHeight,
                                     platform::Extent& source);

// The day on which a picture was taken, "2004/05/17", or nothing when its file does not tell.
std::string DateTakenText(const std::string& path);

}  // namespace browser
