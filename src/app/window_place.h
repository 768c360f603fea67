// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Where the main window was left: its place, its panes and its bars, in the section "Window" of "Kelvo.ini".
#pragma once

#include "platform/types.h"

#include <string>

namespace app
{

struct WindowPlace {
    platform::Rect normal;  // when neither maximised nor minimised; empty where it was never left
    bool maximised = true;
    int leftWidth = 0;  // of the left pane, pixels; 0 for the built-in width
};

// What cannot be the place of a window is left out.
WindowPlace LoadWindowPlace(const std::string& file);
// False when it could not be written.
bool SaveWindowPlace(const std::string& file, const WindowPlace& place);

}  // namespace app
