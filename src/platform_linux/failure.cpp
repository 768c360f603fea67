// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/failure.h"

#include <cstring>

namespace platform_linux
{

namespace
{
thread_local int lastFailure = 0;
}

bool Fail(int error)
{
    lastFailure = error;
    errno = error;
    return false;
}

int LastFailure()
{
    return lastFailure;
}

std::string LastFailureText()
{
    if (lastFailure == 0)
        return {};
    char buffer[128];
    return strerror_r(lastFailure, buffer, sizeof buffer);
}

}  // namespace platform_linux
