// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/watch/paced_refresh.h"

#include <utility>

namespace ui
{

namespace
{

constexpr int kMoment = 200;  // milliseconds

}  // namespace

CPacedRefresh::CPacedRefresh()
{
    clock.start();
    timer.setSingleShot(true);
    connect(&timer, &QTimer::timeout, this, &CPacedRefresh::Due);
}

void CPacedRefresh::Request()
{
    if (isReading)
        isWanted = true;
    else if (const std::uint64_t wait = pace.Wait(Now()); wait == 0 && !timer.isActive())
        Q_EMIT Due();
    else if (!timer.isActive())
        timer.start(static_cast<int>(wait));
}

void CPacedRefresh::Postpone()
{
    timer.start(kMoment);
}

void CPacedRefresh::Begin()
{
    timer.stop();
    isWanted = false;
    isReading = true;
    pace.Begin(Now());
}

void CPacedRefresh::End()
{
    if (!std::exchange(isReading, false))
        return;
    pace.End(Now());
    if (std::exchange(isWanted, false))
        Request();
}

}  // namespace ui
