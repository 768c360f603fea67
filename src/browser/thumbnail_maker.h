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

// What making a thumbnail tells about the picture besides.
struct PictureFacts {
    platform::Extent size;  // 0 by 0 for an ".avi" clip
    std::string dateText;   // the day on which it was taken, "2004/05/17"; empty when the file does not tell
};

// A bitmap of at most maxWidth by maxHeight pixels, or null.
platform::BitmapHandle MakeThumbnail(const std::string& path, int maxWidth, int maxHeight,
                                     PictureFacts& facts);

}  // namespace browser
