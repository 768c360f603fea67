// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What the command "Screen Saver" makes the screen saver of: the selected pictures, else the selected folder,
// else the folder on show.
#pragma once

#include "platform/string_ids.h"

#include <string>
#include <vector>

namespace app
{

struct ScreenSaverAnswer {
    platform::StringId text;  // %1 is `detail`, where there is one
    std::string detail;
    bool isSet = false;
};

ScreenSaverAnswer MakeScreenSaver(const std::string& folder, const std::vector<std::string>& selected);

}  // namespace app
