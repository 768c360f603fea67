// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/file_lock.h"

#include "platform_linux/failure.h"

#include <algorithm>
#include <chrono>
#include <fcntl.h>
#include <thread>

namespace platform_linux
{

namespace
{

struct flock WholeFile(short type)
{
    struct flock range {
    };
    range.l_type = type;
    range.l_whence = SEEK_SET;
    return range;
}

bool KnowsNoLocks(int error)
{
    return error == ENOLCK || error == EOPNOTSUPP || error == ENOSYS;
}

}  // namespace

bool LockDescriptor(int fd, platform::LockKind kind, int patienceMilliseconds)
{
    using Clock = std::chrono::steady_clock;
    const auto end = Clock::now() + std::chrono::milliseconds(patienceMilliseconds);
    struct flock range = WholeFile(kind == platform::LockKind::shared ? F_RDLCK : F_WRLCK);
    std::chrono::milliseconds pause(1);
    while (fcntl(fd, F_OFD_SETLK, &range) != 0) {
        if (KnowsNoLocks(errno))
            return true;
        if (errno != EAGAIN && errno != EACCES && errno != EINTR)
            return Fail();
        if (Clock::now() >= end)
            return Fail(EWOULDBLOCK);
        std::this_thread::sleep_for(std::min<Clock::duration>(pause, end - Clock::now()));
        pause = std::min(2 * pause, std::chrono::milliseconds(20));
    }
    return true;
}

bool IsLockedElsewhere(int fd)
{
    struct flock range = WholeFile(F_WRLCK);
    return fcntl(fd, F_OFD_GETLK, &range) == 0 && range.l_type == F_WRLCK;
}

}  // namespace platform_linux
