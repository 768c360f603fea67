// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CScreen: pictures of other programs' windows.
#pragma once

#include "platform/image.h"

#include <cstdint>
#include <functional>

namespace platform
{

class CScreen
{
public:
    // The picture, or null when none could be taken (or the user did not want to).
    using Taken = std::function<void(BitmapHandle picture)>;

    virtual ~CScreen() = default;
    // Chooses the window to capture: the foremost one of another program. False when there is none. Where the
    // desktop itself lets the user choose, later on, there always is one.
    virtual bool ChooseWindow() = 0;
    // Takes the picture of the window chosen last and calls `taken`, once, on the thread of the user
    // interface.
    virtual void Capture(Taken taken) = 0;
};

}  // namespace platform
