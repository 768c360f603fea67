// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// When a picture was taken, as its camera wrote it down.
//
// Cameras write their clock's local time and no zone. A moment is held as the file time of that same reading
// of a clock in UTC, so that it is shown as it was written; 0 stands for "not known".
#pragma once

#include "platform/types.h"

#include <string>
#include <string_view>

namespace browser
{

// The moment of "2004:05:17 10:22:31"; 0 for a text that is no such date.
platform::FileTime ParseDateTaken(std::string_view text);

// From the picture's EXIF values, of which only the header is read: when it was taken, else when it was
// digitised. 0 when the file does not tell.
platform::FileTime ReadDateTaken(const std::string& path);

}  // namespace browser
