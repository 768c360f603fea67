// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/folder_notification.h"

#include "platform_linux/paths.h"

#include <array>
#include <cstring>
#include <sys/inotify.h>

namespace platform_linux
{

namespace
{

constexpr std::chrono::milliseconds kGathering(30);
// Pieces taken from a queue at once, so that a writer without a pause cannot hold a wait.
constexpr int kMostPieces = 16;

std::uint32_t MaskOf(unsigned filter)
{
    std::uint32_t mask = 0;
    if (filter & (platform::kNotifyChangeFileName | platform::kNotifyChangeDirName))
        mask |= IN_CREATE | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO;
    if (filter & platform::kNotifyChangeLastWrite)
        mask |= IN_MODIFY | IN_CLOSE_WRITE | IN_ATTRIB;
    return mask;
}

}  // namespace

CInotifyQueue::CInotifyQueue() : queue(inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {}

int CInotifyQueue::AddWatch(const std::string& folder, std::uint32_t mask) const
{
    return inotify_add_watch(queue.Get(), Native(folder), mask | IN_ONLYDIR);
}

void CInotifyQueue::RemoveWatch(int watch) const
{
    // Fails when the folder is gone, and the watch with it.
    inotify_rm_watch(queue.Get(), watch);
}

bool CInotifyQueue::Take()
{
    const std::lock_guard lock(taking);
    bool changed = TakeOwn();
    for (int piece = 0; piece < kMostPieces && TakeSome(changed); ++piece) {
    }
    if (changed)
        isArmed = false;
    else
        quietUntil = Clock::now() + kGathering;
    return changed;
}

bool CInotifyQueue::Forget()
{
    const std::unique_lock lock(taking, std::try_to_lock);
    bool changed = false;
    for (int piece = 0; lock && piece < kMostPieces && TakeSome(changed); ++piece) {
    }
    return !lock || !IsLost();
}

bool CInotifyQueue::TakeSome(bool& changed)
{
    alignas(inotify_event) std::array<char, 16 * 1024> buffer;
    const ssize_t size = read(queue.Get(), buffer.data(), buffer.size());
    for (ssize_t at = 0; at + static_cast<ssize_t>(sizeof(inotify_event)) <= size;) {
        inotify_event event;
        std::memcpy(&event, buffer.data() + at, sizeof event);
        const char* const name = event.len > 0 ? buffer.data() + at + sizeof event : "";
        at += static_cast<ssize_t>(sizeof event + event.len);
        // What did not fit into the queue may have been anything.
        if ((event.mask & IN_Q_OVERFLOW) != 0 || IsChange(event.wd, event.mask, name))
            changed = true;
    }
    return size > 0;
}

int CInotifyQueue::QuietFor() const
{
    if (!isArmed)
        return -1;
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(quietUntil - Clock::now());
    return static_cast<int>(std::max(left.count(), std::chrono::milliseconds::rep{0}));
}

bool CInotifyQueue::FindNext()
{
    const std::lock_guard lock(taking);
    isArmed = true;
    quietUntil = Clock::now() + kGathering;
    return !IsLost();
}

CFolderNotification::CFolderNotification(const std::string& folder, unsigned filter)
    : folderName(NameOf(folder))
{
    if (!IsOpen())
        return;
    WatchFoldersAbove(folder);
    folderWatch = AddWatch(folder, MaskOf(filter) | IN_DELETE_SELF | IN_MOVE_SELF);
}

// Where they cannot be watched, only the folder's own fate is seen. A folder that another program still works
// in tells of its removal only when that ends: its parent knows at once.
void CFolderNotification::WatchFoldersAbove(const std::string& folder)
{
    if (folder == "/")
        return;
    std::string above = ParentOf(folder);
    parentWatch = AddWatch(above, IN_MOVE_SELF | IN_DELETE);
    while (above.size() > 1) {
        above = ParentOf(above);
        if (above.size() > 1)
            AddWatch(above, IN_MOVE_SELF);
    }
}

bool CFolderNotification::IsGone(int watch, std::uint32_t mask, const char* name) const
{
    if (watch == folderWatch)
        return (mask & (IN_DELETE_SELF | IN_MOVE_SELF | IN_UNMOUNT | IN_IGNORED)) != 0;
    return (mask & IN_MOVE_SELF) != 0 ||
           (watch == parentWatch && (mask & IN_DELETE) != 0 && folderName == name);
}

bool CFolderNotification::IsChange(int watch, std::uint32_t mask, const char* name)
{
    if (isLost)
        return false;
    isLost = IsGone(watch, mask, name);
    if (isLost)
        RemoveWatch(folderWatch);
    return isLost || watch == folderWatch;
}

}  // namespace platform_linux
