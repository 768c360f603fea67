// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/exif_image_info.h"

#include <cstdio>

namespace photo
{

ExifDate SplitDate(const ExifImageInfo& record)
{
    ExifDate date;
    (void)std::sscanf(record.DateTime, "%d:%d:%d %d:%d:%d", &date.year, &date.month, &date.day, &date.hour,
                      &date.minute, &date.second);
    return date;
}

}  // namespace photo
