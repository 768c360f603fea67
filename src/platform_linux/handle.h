// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CHandle: a file descriptor that closes itself.
#pragma once

#include <unistd.h>
#include <utility>

namespace platform_linux
{

class CHandle
{
public:
    CHandle() = default;
    explicit CHandle(int descriptor) : fd(descriptor) {}
    CHandle(CHandle&& other) noexcept : fd(std::exchange(other.fd, -1)) {}
    CHandle& operator=(CHandle&& other) noexcept
    {
        std::swap(fd, other.fd);
        return *this;
    }
    CHandle(const CHandle&) = delete;
    CHandle& operator=(const CHandle&) = delete;
    ~CHandle()
    {
        if (fd >= 0)
            close(fd);
    }

    bool IsOpen() const { return fd >= 0; }
    int Get() const { return fd; }
    int Release() { return std::exchange(fd, -1); }

private:
    int fd = -1;
};

}  // namespace platform_linux
