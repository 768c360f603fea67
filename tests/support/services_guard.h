// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CServicesGuard: installs services for the length of a scope and puts the former ones back.
#pragma once

#include "platform/services.h"

namespace support
{

class CServicesGuard
{
public:
    explicit CServicesGuard(const platform::Services& services) : former(platform::Os())
    {
        platform::Os() = services;
    }
    // The former services with another file system.
    explicit CServicesGuard(platform::CFileSystem& files) : former(platform::Os())
    {
        platform::Os().files = &files;
    }
    ~CServicesGuard() { platform::Os() = former; }
    CServicesGuard(const CServicesGuard&) = delete;
    CServicesGuard& operator=(const CServicesGuard&) = delete;

private:
    platform::Services former;
};

}  // namespace support
