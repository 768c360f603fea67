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
    ~CIdleThread() override { Join(); }
    bool HasStarted() const { return isRunning; }
    // Ordinary priority from now on, so that it comes to its end soon.
    void Hurry() const;
    void Join();

private:
    static void* Main(void* self);

    std::function<int()> body;
    pthread_t thread{};
    bool isRunning = false;
};

}  // namespace platform_linux
