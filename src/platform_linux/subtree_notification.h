// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CSubtreeNotification: folders made, removed and renamed in those folders of a file system that are
// followed.
//
// CFollowedFolders is the list of these folders that all notifications of the process share. Both sides may
// be used from several threads; the lock is held for one system call at a time, as a thread at idle priority
// may hold it.
#pragma once

#include "platform_linux/folder_notification.h"

#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <set>

namespace platform_linux
{

class CSubtreeNotification;

class CFollowedFolders
{
public:
    // Names one folder in Remove; never 0.
    using Key = std::uint64_t;

    Key Add(const std::string& folder);
    void Remove(Key key);
    // The notification learns of the folders there are and of those to come.
    void Join(CSubtreeNotification& notification);
    void Leave(CSubtreeNotification& notification);

private:
    std::mutex mutex;
    Key lastKey = 0;
    std::map<Key, std::string> folders;
    std::set<CSubtreeNotification*> notifications;
};

class CSubtreeNotification final : public CInotifyQueue
{
public:
    CSubtreeNotification(const std::string& root, std::shared_ptr<CFollowedFolders> followed);
    ~CSubtreeNotification() override;
    bool IsFollowing() const { return mount.has_value() && IsOpen(); }

    // Called by CFollowedFolders, under its lock. A folder on another file system is passed over.
    void Follow(CFollowedFolders::Key key, const std::string& folder);
    void Unfollow(CFollowedFolders::Key key);

private:
    bool IsChange(int watch, std::uint32_t mask, const char* name) override;

    std::optional<std::uint64_t> mount;
    std::shared_ptr<CFollowedFolders> folders;
    std::map<CFollowedFolders::Key, int> watches;
    std::map<int, int> users;  // by watch: two paths to one folder share theirs
};

}  // namespace platform_linux
