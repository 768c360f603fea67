// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/idle_thread.h"

#include <csignal>
#include <cstdint>
#include <memory>
#include <sched.h>

namespace platform_linux
{

namespace
{

// False when there can be no more threads.
bool Create(pthread_t& thread, void* (*main)(void*), void* argument)
{
    sigset_t all;
    sigset_t former;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &former);
    const bool started = pthread_create(&thread, nullptr, main, argument) == 0;
    pthread_sigmask(SIG_SETMASK, &former, nullptr);
    return started;
}

void* RunLoose(void* body)
{
    const std::unique_ptr<std::function<void()>> owned(static_cast<std::function<void()>*>(body));
    (*owned)();
    return nullptr;
}

}  // namespace

bool StartLooseThread(std::function<void()> body)
{
    auto owned = std::make_unique<std::function<void()>>(std::move(body));
    pthread_t thread{};
    if (!Create(thread, RunLoose, owned.get()))
        return false;
    // The thread has it now.
    static_cast<void>(owned.release());
    pthread_detach(thread);
    return true;
}

CIdleThread::CIdleThread(std::function<int()> threadBody) : body(std::move(threadBody))
{
    isRunning = Create(thread, Main, this);
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
