// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CInterruptionGuard: calls a function when the program is interrupted, for work that is to end in the middle
// of an item. The call comes on a thread of its own, at most once, and not after the object's end.
#pragma once

#include "platform/change_notifications.h"

#include <functional>
#include <memory>
#include <thread>

namespace cli
{

class CInterruptionGuard
{
public:
    explicit CInterruptionGuard(std::function<void()> stop);
    ~CInterruptionGuard();
    CInterruptionGuard(const CInterruptionGuard&) = delete;
    CInterruptionGuard& operator=(const CInterruptionGuard&) = delete;

private:
    std::unique_ptr<platform::CEvent> interrupted;
    std::unique_ptr<platform::CEvent> ended;
    std::thread thread;
};

}  // namespace cli
