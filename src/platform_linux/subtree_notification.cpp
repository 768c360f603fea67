// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/subtree_notification.h"

#include "platform_linux/paths.h"

#include <fcntl.h>
#include <sys/inotify.h>
#include <sys/stat.h>

namespace platform_linux
{

namespace
{

// What tells two mounted file systems apart; nothing when the folder is not there.
std::optional<std::uint64_t> MountOf(const std::string& folder)
{
    struct statx facts {
    };
    if (statx(AT_FDCWD, Native(folder), 0, STATX_MNT_ID, &facts) != 0 || !S_ISDIR(facts.stx_mode))
        return std::nullopt;
    return facts.stx_mnt_id;
}

}  // namespace

CFollowedFolders::Key CFollowedFolders::Add(const std::string& folder)
{
    const std::lock_guard lock(mutex);
    const Key key = ++lastKey;
    folders.emplace(key, folder);
    for (CSubtreeNotification* notification : notifications)
        notification->Follow(key, folder);
    return key;
}

void CFollowedFolders::Remove(Key key)
{
    const std::lock_guard lock(mutex);
    folders.erase(key);
    for (CSubtreeNotification* notification : notifications)
        notification->Unfollow(key);
}

void CFollowedFolders::Join(CSubtreeNotification& notification)
{
    Key last = 0;
    {
        const std::lock_guard lock(mutex);
        notifications.insert(&notification);
        last = lastKey;
    }
    for (Key key = 0; key < last;) {
        const std::lock_guard lock(mutex);
        const auto next = folders.upper_bound(key);
        if (next == folders.end() || next->first > last)
            return;
        key = next->first;
        notification.Follow(key, next->second);
    }
}

void CFollowedFolders::Leave(CSubtreeNotification& notification)
{
    const std::lock_guard lock(mutex);
    notifications.erase(&notification);
}

CSubtreeNotification::CSubtreeNotification(const std::string& root,
                                           std::shared_ptr<CFollowedFolders> followed)
    : mount(MountOf(root)), folders(std::move(followed))
{
    if (IsFollowing())
        folders->Join(*this);
}

CSubtreeNotification::~CSubtreeNotification()
{
    folders->Leave(*this);
}

void CSubtreeNotification::Follow(CFollowedFolders::Key key, const std::string& folder)
{
    if (MountOf(folder) != mount)
        return;
    const int watch = AddWatch(folder, IN_CREATE | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO);
    if (watch < 0)
        return;
    watches[key] = watch;
    ++users[watch];
}

void CSubtreeNotification::Unfollow(CFollowedFolders::Key key)
{
    const auto found = watches.find(key);
    if (found == watches.end())
        return;
    const int watch = found->second;
    watches.erase(found);
    if (--users[watch] == 0) {
        users.erase(watch);
        RemoveWatch(watch);
    }
}

bool CSubtreeNotification::IsChange(int, std::uint32_t mask, const char*)
{
    constexpr std::uint32_t kNames = IN_CREATE | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO;
    return (mask & IN_ISDIR) != 0 && (mask & kNames) != 0;
}

}  // namespace platform_linux
