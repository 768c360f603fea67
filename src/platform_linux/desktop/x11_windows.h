// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The windows of an X display, as far as taking a picture of one needs them.
#pragma once

#include "platform/image.h"

#include <cstdint>
#include <memory>

struct xcb_connection_t;

namespace platform_linux
{

class CX11Windows
{
public:
    // Connects to the display of the environment.
    CX11Windows();
    ~CX11Windows();
    CX11Windows(const CX11Windows&) = delete;
    CX11Windows& operator=(const CX11Windows&) = delete;

    bool IsConnected() const;
    // The foremost window of another process that is shown and is neither a panel nor the desktop itself, by
    // the window manager's list; 0 for none.
    std::uint32_t ForemostOfOthers() const;
    // What the screen shows where the window stands, its frame included; null when it is gone or off screen.
    platform::BitmapHandle Picture(std::uint32_t window) const;

private:
    struct Free {
        void operator()(xcb_connection_t* connection) const;
    };
    std::vector<std::uint32_t> Property(std::uint32_t window, const char* name) const;
    std::uint32_t Atom(const char* name) const;
    bool IsCandidate(std::uint32_t window) const;
    std::uint32_t FrameOf(std::uint32_t window) const;

    std::unique_ptr<xcb_connection_t, Free> connection;
    std::uint32_t root = 0;
};

}  // namespace platform_linux
