// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The EXIF page's text: up to fifteen facts of a photo, one a line, each line ended by CR LF.
//
// Read from the image library's property items, so that it serves every format whose items the library
// gives. The lines are the same in every language, and numbers are printed as they are stored.
#pragma once

#include <string>

namespace photo
{

// Empty when the file is no picture, cannot be read, or has none of the facts.
std::string BuildExifSummary(const std::string& path);

}  // namespace photo
