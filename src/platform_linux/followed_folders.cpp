// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/followed_folders.h"

#include "platform_linux/drives.h"
#include "platform_linux/idle_thread.h"
#include "platform_linux/paths.h"

#include <sys/inotify.h>
#include <sys/stat.h>

#include <utility>

namespace platform_linux
{

namespace
{

timespec Now(clockid_t clock)
{
    timespec now{};
    clock_gettime(clock, &now);
    return now;
}

bool IsBefore(const timespec& left, const timespec& right)
{
    return std::pair(left.tv_sec, left.tv_nsec) < std::pair(right.tv_sec, right.tv_nsec);
}

// Folders' times are taken from the coarse clock, or from the fine one that is ahead of it. A time to come,
// as of a server whose clock is fast, tells nothing.
bool HasChangedSince(const FollowedPath& path)
{
    struct stat facts {
    };
    return stat(Native(path.folder), &facts) == 0 && !IsBefore(facts.st_mtim, path.since) &&
           !IsBefore(Now(CLOCK_REALTIME), facts.st_mtim);
}

}  // namespace

CSubtreeWatches::CSubtreeWatches(std::string mountPoint, CHandle inotifyQueue)
    : drive(std::move(mountPoint)), queue(std::move(inotifyQueue))
{
}

void CSubtreeWatches::Follow(FollowKey key, const FollowedPath& path)
{
    const std::lock_guard lock(mutex);
    if (path.folder != drive && !IsBelow(path.folder, drive))
        return;
    waiting.emplace(key, path);
    StartWork();
}

void CSubtreeWatches::Unfollow(FollowKey key)
{
    const std::lock_guard lock(mutex);
    if (inWork == key)
        inWork = 0;
    waiting.erase(key);
    if (const auto found = watches.extract(key))
        Release(found.mapped());
}

void CSubtreeWatches::Release(int watch)
{
    if (--users[watch] > 0)
        return;
    users.erase(watch);
    unused.insert(watch);
    StartWork();
}

void CSubtreeWatches::Close()
{
    const std::lock_guard lock(mutex);
    isClosed = true;
}

bool CSubtreeWatches::IsUsed(int watch)
{
    const std::lock_guard lock(mutex);
    return users.contains(watch);
}

void CSubtreeWatches::StartWork()
{
    if (!isWorking && !isClosed)
        isWorking = StartLooseThread([self = shared_from_this()] { self->Work(); });
}

void CSubtreeWatches::Work()
{
    const std::vector<MountEntry> table = ReadMountTable();
    std::unique_lock lock(mutex);
    while (!isClosed && !(waiting.empty() && unused.empty())) {
        RemoveUnused(lock);
        WatchNext(lock, table);
    }
    isWorking = false;
}

// Watches come and go on this one thread only, so a number that is unused stays so until it is removed.
void CSubtreeWatches::RemoveUnused(std::unique_lock<std::mutex>& lock)
{
    const std::set<int> gone = std::exchange(unused, {});
    lock.unlock();
    for (const int watch : gone)
        inotify_rm_watch(queue.Get(), watch);
    lock.lock();
}

void CSubtreeWatches::WatchNext(std::unique_lock<std::mutex>& lock, const std::vector<MountEntry>& table)
{
    if (isClosed || waiting.empty())
        return;
    const auto next = waiting.extract(waiting.begin());
    const FollowedPath& path = next.mapped();
    inWork = next.key();
    lock.unlock();
    constexpr std::uint32_t kNames = IN_CREATE | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO | IN_ONLYDIR;
    const int watch = MountPointIn(table, path.folder) == drive
                          ? inotify_add_watch(queue.Get(), Native(path.folder), kNames)
                          : -1;
    lock.lock();
    if (watch < 0)
        return;
    ++users[watch];
    if (std::exchange(inWork, 0) != next.key())
        return Release(watch);
    watches[next.key()] = watch;
    lock.unlock();
    // Asked only now, when what comes later is told of by the watch.
    if (HasChangedSince(path))
        missed.Set();
    lock.lock();
}

FollowKey CFollowedFolders::Add(const std::string& folder)
{
    const std::lock_guard lock(mutex);
    const auto added = folders.emplace(++lastKey, FollowedPath{folder, Now(CLOCK_REALTIME_COARSE)}).first;
    for (const auto& watches : all)
        watches->Follow(added->first, added->second);
    return added->first;
}

void CFollowedFolders::Remove(FollowKey key)
{
    const std::lock_guard lock(mutex);
    folders.erase(key);
    for (const auto& watches : all)
        watches->Unfollow(key);
}

void CFollowedFolders::Join(std::shared_ptr<CSubtreeWatches> watches)
{
    const std::lock_guard lock(mutex);
    for (const auto& [key, path] : folders)
        watches->Follow(key, path);
    all.insert(std::move(watches));
}

void CFollowedFolders::Leave(const std::shared_ptr<CSubtreeWatches>& watches)
{
    watches->Close();
    const std::lock_guard lock(mutex);
    all.erase(watches);
}

}  // namespace platform_linux
