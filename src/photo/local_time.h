// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Dates as clocks and cameras show them, and file times.
#pragma once

#include "photo/exif_image_info.h"
#include "platform/types.h"

#include <optional>

namespace photo
{

// The moment at which the clocks of this place showed that date, under the summer time of the date itself; of
// an hour that a clock showed twice, one of the two. Nothing for a date that no calendar has (month 13, 30
// February, hour 24) or that lies before 1601 or after 9999.
std::optional<platform::FileTime> LocalToFileTime(const ExifDate& date);
// What the clocks of this place show at that moment; fractions of a second are cut off.
ExifDate FileTimeToLocal(platform::FileTime time);

}  // namespace photo
