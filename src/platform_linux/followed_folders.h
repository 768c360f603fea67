// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CFollowedFolders is the list of folders that all notifications for subtrees of the process share;
// CSubtreeWatches are the watches that one of these notifications has in them.
//
// Nobody who calls waits for a file system: a share whose server is gone answers no question about its
// folders, however simple. A folder is watched from a thread of CSubtreeWatches' own, which is left behind
// when it gets no answer, and no lock is held while it asks. What changes in a folder between the call and
// the watch is seen by the folder's time. All of it may be used from several threads.
#pragma once

#include "platform_linux/volumes.h"
#include "platform_linux/waitable.h"

#include <ctime>
#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <string>

namespace platform_linux
{

// Names one folder; never 0.
using FollowKey = std::uint64_t;

struct FollowedPath {
    std::string folder;
    timespec since;  // changes from then on count
};

class CSubtreeWatches : public std::enable_shared_from_this<CSubtreeWatches>
{
public:
    // Watches folders whose paths lie on the file system mounted at `mountPoint`, in that inotify queue.
    CSubtreeWatches(std::string mountPoint, CHandle inotifyQueue);
    bool IsOpen() const { return queue.IsOpen() && missed.IsOpen(); }
    const std::string& Drive() const { return drive; }

    void Follow(FollowKey key, const FollowedPath& path);
    void Unfollow(FollowKey key);
    // Nothing is watched from now on.
    void Close();
    // Whether what that watch tells is still wanted.
    bool IsUsed(int watch);
    // Signalled when a folder changed before its watch was there.
    CLinuxEvent& Missed() { return missed; }

private:
    void StartWork();
    void Work();
    void RemoveUnused(std::unique_lock<std::mutex>& lock);
    void WatchNext(std::unique_lock<std::mutex>& lock, const std::vector<MountEntry>& table);
    void Release(int watch);

    const std::string drive;
    CHandle queue;
    CLinuxEvent missed;
    std::mutex mutex;
    bool isWorking = false;
    bool isClosed = false;
    std::map<FollowKey, FollowedPath> waiting;
    FollowKey inWork = 0;  // 0 also when that one is wanted no more
    std::map<FollowKey, int> watches;
    std::map<int, int> users;  // by watch: two paths to one folder share theirs
    std::set<int> unused;
};

class CFollowedFolders
{
public:
    FollowKey Add(const std::string& folder);
    void Remove(FollowKey key);
    // They learn of the folders there are and of those to come.
    void Join(std::shared_ptr<CSubtreeWatches> watches);
    void Leave(const std::shared_ptr<CSubtreeWatches>& watches);

private:
    std::mutex mutex;
    FollowKey lastKey = 0;
    std::map<FollowKey, FollowedPath> folders;
    std::set<std::shared_ptr<CSubtreeWatches>> all;
};

}  // namespace platform_linux
