// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CLinuxWaitable: what WaitForMultipleObjects of this platform can wait for, and the plain event.
#pragma once

#include "platform/change_notifications.h"
#include "platform_linux/handle.h"

#include <sys/eventfd.h>

namespace platform_linux
{

class CLinuxWaitable
{
public:
    virtual ~CLinuxWaitable() = default;
    // Becomes readable when there is something to take.
    virtual int Descriptor() const = 0;
    // Takes what there is; true when the object was signalled by it.
    virtual bool Take() = 0;
    // Milliseconds for which the descriptor is not to be looked at; -1 for not at all.
    virtual int QuietFor() const { return 0; }
};

class CLinuxEvent final : public platform::CEvent, public CLinuxWaitable
{
public:
    CLinuxEvent() : event(eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC)) {}
    bool IsOpen() const { return event.IsOpen(); }
    int Descriptor() const override { return event.Get(); }
    // Safe in a signal handler.
    void Set() override { eventfd_write(event.Get(), 1); }
    bool Take() override
    {
        eventfd_t times = 0;
        return eventfd_read(event.Get(), &times) == 0;
    }

private:
    CHandle event;
};

}  // namespace platform_linux
