// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/idle_thread.h"

#include <csignal>
#include <cstdint>
#include <sched.h>

namespace platform_linux
{

CIdleThread::CIdleThread(std::function<int()> threadBody) : body(std::move(threadBody))
{
    sigset_t all;
    sigset_t former;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &former);
    isRunning = pthread_create(&thread, nullptr, Main, this) == 0;
    pthread_sigmask(SIG_SETMASK, &former, nullptr);
}

void* CIdleThread::Main(void* self)
{
    const sched_param priority{};
    // Where that is refused, it works at ordinary priority.
    pthread_setschedparam(pthread_self(), SCHED_IDLE, &priority);
    const int exitCode = static_cast<CIdleThread*>(self)->body();
    return reinterpret_cast<void*>(static_cast<std::intptr_t>(exitCode));
}

void CIdleThread::Hurry() const
{
    const sched_param priority{};
    if (isRunning)
        pthread_setschedparam(thread, SCHED_OTHER, &priority);
}

void CIdleThread::Join()
{
    if (isRunning)
        pthread_join(thread, nullptr);
    isRunning = false;
}

}  // namespace platform_linux
