// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/desktop/line_nodes.h"

#include <array>
#include <cstring>
#include <string_view>
#include <sys/inotify.h>

namespace platform_linux
{

namespace
{

constexpr int kSettleMilliseconds = 500;

bool IsLine(std::string_view name)
{
    return name.starts_with("ttyUSB") || name.starts_with("ttyACM") || name.starts_with("rfcomm");
}

}  // namespace

CLineNodes::CLineNodes(const std::string& folder, std::function<void()> changed)
    : queue(inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
{
    constexpr std::uint32_t kChanges = IN_CREATE | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO;
    settle.setSingleShot(true);
    settle.setInterval(kSettleMilliseconds);
    connect(&settle, &QTimer::timeout, this, std::move(changed));
    if (!queue.IsOpen() || inotify_add_watch(queue.Get(), folder.c_str(), kChanges | IN_ONLYDIR) < 0)
        return;
    notifier = std::make_unique<QSocketNotifier>(queue.Get(), QSocketNotifier::Read);
    connect(notifier.get(), &QSocketNotifier::activated, this, &CLineNodes::Take);
}

void CLineNodes::Take()
{
    alignas(inotify_event) std::array<char, 4096> buffer;
    const ssize_t size = read(queue.Get(), buffer.data(), buffer.size());
    for (ssize_t at = 0; at + static_cast<ssize_t>(sizeof(inotify_event)) <= size;) {
        inotify_event event;
        std::memcpy(&event, buffer.data() + at, sizeof event);
        const std::string_view name = event.len > 0 ? buffer.data() + at + sizeof event : "";
        at += static_cast<ssize_t>(sizeof event + event.len);
        if ((event.mask & IN_Q_OVERFLOW) != 0 || IsLine(name))
            settle.start();
    }
}

}  // namespace platform_linux
