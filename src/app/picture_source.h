// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Which source pictures are acquired from. The choice is kept in the registry, so that it holds for later
// runs.
#pragma once

#include "platform/picture_sources.h"

#include <string>
#include <vector>

namespace app
{

// Those to choose from: all but the ones whose name begins with "WIA-".
std::vector<platform::PictureSource> OfferedSources(std::vector<platform::PictureSource> sources);
// The position of the present source, that of the first where it is none of these; -1 when there are none.
int DefaultSource(const std::vector<platform::PictureSource>& offered);
// Makes a source that of later acquisitions.
bool ChooseSource(const platform::PictureSource& source);

}  // namespace app
