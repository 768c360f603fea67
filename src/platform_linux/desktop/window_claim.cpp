// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/desktop/window_claim.h"

#include "platform_linux/failure.h"
#include "platform_linux/file_lock.h"
#include "platform_linux/paths.h"
#include "platform_linux/private_folder.h"

#include <fcntl.h>
#include <string_view>

namespace platform_linux
{

namespace
{

CHandle OpenClaim(const std::string& windowClass, int flags)
{
    const std::string folder = PrivateRuntimeFolder();
    const bool isName = !windowClass.empty() && windowClass.find('/') == std::string::npos;
    if (folder.empty() || !isName)
        return CHandle();
    const std::string path = Join(folder, "window-" + windowClass + ".lock");
    return CHandle(open(Native(path), flags | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0600));
}

}  // namespace

bool CWindowClaims::Claim(const std::string& windowClass)
{
    if (IsOwn(windowClass))
        return true;
    CHandle file = OpenClaim(windowClass, O_RDWR | O_CREAT);
    if (!file.IsOpen() || !LockDescriptor(file.Get(), platform::LockKind::exclusive, 0))
        return false;
    claims[windowClass] = std::move(file);
    return true;
}

bool CWindowClaims::IsElsewhere(const std::string& windowClass) const
{
    const CHandle file = OpenClaim(windowClass, O_RDWR);
    return !IsOwn(windowClass) && file.IsOpen() && IsLockedElsewhere(file.Get());
}

}  // namespace platform_linux
