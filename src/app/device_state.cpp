// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/device_state.h"

#include "platform/services.h"
#include "platform/utility.h"

#include <algorithm>
#include <bit>

namespace app
{

bool CDeviceState::OnDeviceChange(const platform::DeviceChange& change)
{
    const bool counts = change.event == platform::DeviceEvent::removed || change.flags == 0;
    if (change.isVolume && counts)
        lastDeviceChange = platform::Os().utility->GetTickCount();
    return true;
}

int DriveIndex(std::uint32_t unitMask)
{
    constexpr int kDrives = 26;
    return std::min(std::countr_zero(unitMask), kDrives);
}

}  // namespace app
