// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CTreeWatch: the folder tree's side of being told that folders were made, removed or renamed.
//
// One watcher thread for each local, network and RAM drive follows the drive's folders, as far as
// platform::CChangeNotifications follows a subtree, and posts messages to the tree's window. Removable and
// optical drives are not watched. Belongs to the window's thread.
#pragma once

#include "browser/watcher_threads.h"

namespace browser
{

inline constexpr std::uint32_t kTreeRefreshMessage = 36774;  // posted: the drive's folders changed

class CTreeWatch
{
public:
    explicit CTreeWatch(platform::CMessageWindow& treeWindow) : window(treeWindow) {}
    ~CTreeWatch() { threads.StopAll(); }
    CTreeWatch(const CTreeWatch&) = delete;
    CTreeWatch& operator=(const CTreeWatch&) = delete;

    // Starts the watchers of the drives that there are now.
    void CreateFileChangeThreads();
    void StopWatchers() { threads.StopAll(); }
    // Whether CreateFileChangeThreads does anything; on at first.
    void SetWatching(bool on) { isOn = on; }
    // The next change is the tree's own doing: it is not told of.
    void SwallowNextChange() { notifyAllowed = 0; }
    // Every change is told of again. True when one has been swallowed since, so that a reading must follow.
    bool AllowChanges() { return notifyAllowed.exchange(1) != 0; }

private:
    void StartWatcher(const std::string& root);
    int Watch(const std::string& root, platform::CEvent& stop);
    void OnChange();

    platform::CMessageWindow& window;
    bool isOn = true;
    Flag notifyAllowed = 1;
    CWatcherThreads threads;  // goes first
};

}  // namespace browser
