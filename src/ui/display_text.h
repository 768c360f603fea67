// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What the user reads: names, sizes, times and counts.
//
// File names are bytes; a QString made here is for showing only and must never be turned back into a path.
#pragma once

#include "platform/types.h"

#include <QString>

#include <string_view>

namespace ui
{

// The bytes as UTF-8. A byte that is not shows as U+FFFD, a control character as a visible sign.
QString Shown(std::string_view bytes);
// "812 bytes", "4.2 MB".
QString SizeText(std::uint64_t bytes);
// Local date and time; empty for 0.
QString TimeText(platform::FileTime time);
// The date and time that a clock in UTC shows, for moments without a zone; empty for 0.
QString ClockText(platform::FileTime time);

}  // namespace ui
