// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/subtree_notification.h"

#include "platform_linux/drives.h"
#include "platform_linux/paths.h"

#include <fcntl.h>
#include <sys/epoll.h>
#include <sys/inotify.h>
#include <sys/stat.h>

namespace platform_linux
{

namespace
{

// The mount point of a folder that is there; nothing when it is not. The root of a drive is not asked.
std::string DriveOf(const std::string& root)
{
    const std::string drive = MountPointIn(ReadMountTable(), root);
    struct stat facts {
    };
    if (root != drive && (stat(Native(root), &facts) != 0 || !S_ISDIR(facts.st_mode)))
        return {};
    return drive;
}

bool AddTo(const CHandle& set, int descriptor)
{
    epoll_event event{};
    event.events = EPOLLIN;
    return epoll_ctl(set.Get(), EPOLL_CTL_ADD, descriptor, &event) == 0;
}

}  // namespace

CSubtreeNotification::CSubtreeNotification(const std::string& root,
                                           std::shared_ptr<CFollowedFolders> followed)
    : folders(std::move(followed)),
      watches(std::make_shared<CSubtreeWatches>(DriveOf(root),
                                                CHandle(IsOpen() ? fcntl(Queue(), F_DUPFD_CLOEXEC, 0) : -1))),
      both(epoll_create1(EPOLL_CLOEXEC))
{
    isFollowing = !watches->Drive().empty() && watches->IsOpen() && AddTo(both, Queue()) &&
                  AddTo(both, watches->Missed().Descriptor());
    if (isFollowing)
        folders->Join(watches);
}

CSubtreeNotification::~CSubtreeNotification()
{
    folders->Leave(watches);
}

bool CSubtreeNotification::IsChange(int watch, std::uint32_t mask, const char*)
{
    constexpr std::uint32_t kNames = IN_CREATE | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO;
    return (mask & IN_ISDIR) != 0 && (mask & kNames) != 0 && watches->IsUsed(watch);
}

}  // namespace platform_linux
