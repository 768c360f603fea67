// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CWindowClaims: which process of the user has the window of a class, by a locked file in the private
// run-time folder. The kernel lets go of the lock when the process ends, however it ends.
#pragma once

#include "platform_linux/handle.h"

#include <map>
#include <string>

namespace platform_linux
{

class CWindowClaims
{
public:
    // False when another process has it, or the folder cannot be used.
    bool Claim(const std::string& windowClass);
    bool IsOwn(const std::string& windowClass) const { return claims.contains(windowClass); }
    bool IsElsewhere(const std::string& windowClass) const;

private:
    std::map<std::string, CHandle> claims;
};

}  // namespace platform_linux
