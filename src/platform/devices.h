// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CDevices: word of volumes and serial lines that come and go while the program runs.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace platform
{

enum class DeviceEvent { arrived, removed };

inline constexpr std::uint16_t kMediaChange = 1;  // a medium in a drive that stays, such as a CD

struct DeviceChange {
    DeviceEvent event = DeviceEvent::arrived;
    bool isVolume = true;
    std::uint16_t flags = 0;  // 0 or kMediaChange
    // One bit, for the volume's position among the mounted ones in the order of their mount points, up to the
    // 26th; 0 for one behind these, or one that is not among them.
    std::uint32_t unitMask = 0;
    std::string mountPoint;
};

class CDevices
{
public:
    using Handler = std::function<void(const DeviceChange&)>;

    virtual ~CDevices() = default;
    // Calls `handler` on the thread of the user interface from now on; null ends that. One handler at a time.
    virtual void Watch(Handler handler) = 0;
    // Likewise when adapters' serial lines may have come or gone; CSerialPorts says which there are now.
    virtual void WatchPorts(std::function<void()> handler) = 0;
};

}  // namespace platform
