// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CDeviceState: when a volume last came or went.
#pragma once

#include "platform/devices.h"

#include <cstdint>

namespace app
{

class CDeviceState
{
public:
    // Notes an arrival of a volume that is no change of media, and every removal of one. Always true.
    bool OnDeviceChange(const platform::DeviceChange& change);
    // In milliseconds of GetTickCount; 0 before the first.
    std::uint64_t LastDeviceChange() const { return lastDeviceChange; }

private:
    std::uint64_t lastDeviceChange = 0;
};

// The lowest bit set among the first 26, as 0 to 25; 26 when there is none.
int DriveIndex(std::uint32_t unitMask);

}  // namespace app
