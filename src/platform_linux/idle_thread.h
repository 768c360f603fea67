// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CIdleThread: a thread that the kernel runs only when nothing else wants the processor.
//
// No signal of the process is delivered to it.
#pragma once

#include "platform/change_notifications.h"

#include <pthread.h>

namespace platform_linux
{

class CIdleThread final : public platform::CThread
{
public:
    explicit CIdleThread(std::function<int()> threadBody);
    ~CIdleThread() override
    {
        Hurry();
        Join();
    }
    bool HasStarted() const { return isRunning; }
    // Ordinary priority from now on, so that it comes to its end soon, where the system lets the user raise
    // it (root and RLIMIT_NICE do). Where not, the kernel still gives idle threads their three thousandths.
    void Hurry() const;
    void Join();

private:
    static void* Main(void* self);

    std::function<int()> body;
    pthread_t thread{};
    bool isRunning = false;
};

// Starts a thread that nobody waits for; it ends with the process, if not before. Like the idle ones it gets
// no signals. False when it cannot be started.
bool StartLooseThread(std::function<void()> body);

}  // namespace platform_linux
