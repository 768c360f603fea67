// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CWatcherThreads: the watcher threads of one control, each with the event that stops it.
//
// Belongs to the control's thread, but for ClearWatching.
#pragma once

#include "platform/change_notifications.h"

#include <atomic>
#include <vector>

namespace browser
{

// A one-byte switch that threads share without a lock.
using Flag = std::atomic<std::uint8_t>;

class CWatcherThreads
{
public:
    CWatcherThreads() = default;
    ~CWatcherThreads() { StopAll(); }
    CWatcherThreads(const CWatcherThreads&) = delete;
    CWatcherThreads& operator=(const CWatcherThreads&) = delete;

    // Starts a thread at idle priority; `body` gets its stop event. False when it cannot be started.
    bool Start(std::function<int(platform::CEvent& stop)> body);
    // Sets every stop event, then waits for all the threads.
    void StopAll();
    // Waits for the threads, all of which have ended or are about to.
    void Forget();

    bool IsWatching() const { return watching != 0; }
    // May be called by a watcher at its end.
    void ClearWatching() { watching = 0; }

private:
    struct Watcher {
        std::unique_ptr<platform::CEvent> stop;
        std::unique_ptr<platform::CThread> thread;  // goes first
    };
    std::vector<Watcher> watchers;
    Flag watching = 0;
};

}  // namespace browser
