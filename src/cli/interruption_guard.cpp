// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/interruption_guard.h"

#include "cli/context.h"
#include "platform/services.h"

#include <array>
#include <utility>

namespace cli
{

CInterruptionGuard::CInterruptionGuard(std::function<void()> stop)
    : interrupted(platform::Os().changes->CreateEvent()), ended(platform::Os().changes->CreateEvent())
{
    if (!interrupted || !ended) {
        return;
    }
    WakeAtInterruption(interrupted.get());
    thread = std::thread([this, stop = std::move(stop)] {
        const std::array<platform::CWaitable*, 2> events = {interrupted.get(), ended.get()};
        if (platform::Os().changes->WaitForMultipleObjects(events, platform::kNoTimeOut) ==
            platform::kWaitObject0) {
            stop();
        }
    });
}

CInterruptionGuard::~CInterruptionGuard()
{
    if (thread.joinable()) {
        WakeAtInterruption(nullptr);
        ended->Set();
        thread.join();
    }
}

}  // namespace cli
