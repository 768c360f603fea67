// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CListWatch: the file list's side of being told that the folder on show has changed.
//
// One watcher thread follows one folder, without its sub-folders. It never touches the list: it posts
// messages to the list's window, and it sends one to ask for the path to follow. It ends by itself after 20
// failed waits in a row, as after a folder that cannot be followed; PathChanged then starts another one.
//
// Belongs to the window's thread. Before it goes, the window must have stopped waiting to answer: a watcher
// that is asking for the path keeps the destructor waiting until it has an answer.
#pragma once

#include "browser/watcher_threads.h"

#include <mutex>

namespace browser
{

inline constexpr std::uint32_t kListRefreshMessage = 37769;  // posted: the folder changed
inline constexpr std::uint32_t kListWatchPathMessage =
    37770;  // sent: gives the path to follow, or an empty one
inline constexpr std::uint32_t kListFollowingMessage =
    37771;  // posted: Followed has changed, or the watcher ended

enum class Following : std::uint8_t { unknown, yes, no };

class CListWatch
{
public:
    explicit CListWatch(platform::CMessageWindow& listWindow);
    ~CListWatch() { watchers.StopAll(); }
    CListWatch(const CListWatch&) = delete;
    CListWatch& operator=(const CListWatch&) = delete;

    // The window has another path to follow, or wants the present one followed anew.
    void PathChanged();
    // To be called for each kListFollowingMessage: asks again where a watcher ended before it had heard of
    // the latest path. Returns whether the path is followed now.
    Following CheckFollowing();
    void StopWatcher() { watchers.StopAll(); }

    // The list is about to read the folder: changes up to now need not be told of.
    void ForgetChanges();
    // Changes while refreshing are held back, and told of by one message when it ends.
    void SetRefreshing(bool on);
    // The next change is the list's own doing: it is not told of.
    void SwallowNextChange() { notifyAllowed = 0; }
    // Every change is told of again. True when one has been swallowed since, so that a reading must follow.
    bool AllowChanges() { return notifyAllowed.exchange(1) != 0; }

private:
    class CWatcher;
    bool StartWatcher();
    void PostPending();

    platform::CMessageWindow& window;
    std::unique_ptr<platform::CEvent> pathChanged;
    Flag notifyAllowed = 1;
    Flag refreshPending = 0;
    Flag refreshing = 0;
    std::atomic<Following> following = Following::unknown;
    std::mutex currentLock;                            // never waited for by the window
    platform::CChangeNotification* current = nullptr;  // the watcher's
    CWatcherThreads watchers;                          // goes first
};

}  // namespace browser
