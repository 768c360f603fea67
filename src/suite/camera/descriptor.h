// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CDescriptor: a file descriptor that closes itself.
#pragma once

#include <unistd.h>
#include <utility>

namespace suite
{

class CDescriptor
{
public:
    CDescriptor() = default;
    explicit CDescriptor(int opened) : fd(opened) {}
    CDescriptor(CDescriptor&& other) noexcept : fd(std::exchange(other.fd, -1)) {}
    CDescriptor& operator=(CDescriptor&& other) noexcept
    {
        std::swap(fd, other.fd);
        return *this;
    }
    ~CDescriptor()
    {
        if (fd >= 0)
            close(fd);
    }

    bool IsOpen() const { return fd >= 0; }
    int Get() const { return fd; }

private:
    int fd = -1;
};

}  // namespace suite
