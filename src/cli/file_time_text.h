// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/types.h"

#include <string>

namespace cli
{

// "2026-05-17T10:22:31Z": the time in UTC, cut to the second; empty for a time that is not known.
std::string FileTimeText(platform::FileTime time);

}  // namespace cli
