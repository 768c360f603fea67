// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/list_watch.h"

#include "platform/services.h"
#include "platform/utility.h"

#include <fmt/format.h>

#include <array>

namespace browser
{

namespace
{

constexpr int kMostFailures = 20;

void Trace(const std::string& text)
{
    platform::Os().utility->OutputDebugString(text);
}

}  // namespace

// The watcher thread.
class CListWatch::CWatcher
{
public:
    CWatcher(CListWatch& owner, platform::CEvent& stop)
        : list(owner), window(owner.window),
          changes(*platform::Os().changes), handles{&stop, owner.pathChanged.get(), nullptr}
    {
    }

    void Run();

private:
    enum class Next { wait, end };

    std::span<platform::CWaitable* const> Handles() const { return std::span(handles).first(count); }
    Next React(std::uint32_t result);
    void TakePath();
    void Replace(std::unique_ptr<platform::CChangeNotification> next);
    void Follow(const std::string& path);
    void TellFollowing(Following now);
    void OnChange();

    CListWatch& list;
    platform::CMessageWindow& window;
    platform::CChangeNotifications& changes;
    std::unique_ptr<platform::CChangeNotification> notification;
    std::array<platform::CWaitable*, 3> handles;  // stop, path changed, change
    std::size_t count = 2;
    int failures = 0;
    bool stopped = false;
};

void CListWatch::CWatcher::Run()
{
    Trace(fmt::format("==> ListControl waiting for {} multiple objects\n", count));
    Next next = Next::wait;
    while (next == Next::wait) {
        const std::uint32_t result = changes.WaitForMultipleObjects(Handles(), platform::kNoTimeOut);
        Trace(fmt::format(" dw = {}\n", static_cast<std::int32_t>(result)));
        next = React(result);
    }
    Replace(nullptr);
    Following former = Following::yes;
    list.following.compare_exchange_strong(former, Following::no);
    list.watchers.ClearWatching();
    if (!stopped) {
        window.PostMessage(kListFollowingMessage);
    }
    Trace("==> File Notify Thread is ending\n");
}

CListWatch::CWatcher::Next CListWatch::CWatcher::React(std::uint32_t result)
{
    if (result >= platform::kWaitAbandoned0 && result < platform::kWaitAbandoned0 + count) {
        Trace("==> ListControl waiting abandoned\n");
        return Next::end;
    }
    if (result == platform::kWaitFailed) {
        Trace("==> ListControl waiting failed\n");
        return ++failures >= kMostFailures ? Next::end : Next::wait;
    }
    failures = 0;
    switch (result) {
    case platform::kWaitObject0:
        Trace("==> File Notify Thread was signalled to stop\n");
        stopped = true;
        return Next::end;
    case platform::kWaitObject0 + 1:
        TakePath();
        break;
    case platform::kWaitObject0 + 2:
        OnChange();
        break;
    default:
        break;
    }
    return Next::wait;
}

void CListWatch::CWatcher::TakePath()
{
    Replace(nullptr);
    std::string path;
    if (window.SendMessage(kListWatchPathMessage, path) == 0) {
        return;
    }
    if (path.empty()) {
        Trace("==> File notify path was returned empty\n");
        TellFollowing(Following::no);
    } else {
        Trace(fmt::format("==> File notify path returned {}\n", path));
        Follow(path);
    }
}

void CListWatch::CWatcher::Replace(std::unique_ptr<platform::CChangeNotification> next)
{
    {
        const std::lock_guard lock(list.currentLock);
        list.current = next.get();
    }
    handles[2] = next.get();
    notification = std::move(next);
}

void CListWatch::CWatcher::Follow(const std::string& path)
{
    using namespace platform;
    Replace(changes.FindFirst(path, WatchDepth::folderOnly,
                              kNotifyChangeFileName | kNotifyChangeDirName | kNotifyChangeLastWrite));
    if (!notification) {
        Trace("==> File notify thread was unable to create notification object\n");
        TellFollowing(Following::no);
        return;
    }
    if (count == 2) {
        count = 3;
        Trace("==> File notify thread has created the notification object for the first time\n");
    } else {
        Trace("==> File notify thread has created the notification object\n");
    }
    TellFollowing(Following::yes);
}

void CListWatch::CWatcher::TellFollowing(Following now)
{
    list.following = now;
    window.PostMessage(kListFollowingMessage);
}

void CListWatch::CWatcher::OnChange()
{
    const bool goesOn = notification->FindNext();
    Trace("==> -- File notify event was fired in CIEShellListCtrl --\n");
    if (!goesOn) {
        TellFollowing(Following::no);
    }
    if (list.refreshing != 0) {
        Trace("==> but not sending as refreshing\n");
        list.refreshPending = 1;
        // Refreshing may have ended between the two.
        if (list.refreshing == 0) {
            list.PostPending();
        }
    } else if (list.notifyAllowed.exchange(1) == 0) {
        Trace("==> Refresh is now allowed\n");
    } else {
        window.PostMessage(kListRefreshMessage);
    }
}

CListWatch::CListWatch(platform::CMessageWindow& listWindow)
    : window(listWindow),
      pathChanged(platform::Os().changes ? platform::Os().changes->CreateEvent() : nullptr)
{
}

bool CListWatch::StartWatcher()
{
    // One that ended by itself may still have to be waited for.
    watchers.Forget();
    return watchers.Start([this](platform::CEvent& stop) {
        CWatcher(*this, stop).Run();
        return 0;
    });
}

void CListWatch::PathChanged()
{
    if (!pathChanged) {
        return;
    }
    following = Following::unknown;
    pathChanged->Set();
    if (!watchers.IsWatching() && !StartWatcher()) {
        following = Following::no;
        window.PostMessage(kListFollowingMessage);
    }
}

Following CListWatch::CheckFollowing()
{
    if (following == Following::unknown && !watchers.IsWatching()) {
        PathChanged();
    }
    return following;
}

// Where the watcher is at it just now, the list may read once more than it needs to.
void CListWatch::ForgetChanges()
{
    const std::unique_lock lock(currentLock, std::try_to_lock);
    if (lock && current && !current->Forget()) {
        following = Following::no;
        window.PostMessage(kListFollowingMessage);
    }
}

void CListWatch::PostPending()
{
    if (refreshPending.exchange(0) != 0) {
        window.PostMessage(kListRefreshMessage);
    }
}

void CListWatch::SetRefreshing(bool on)
{
    const bool endsNow = !on && refreshing != 0;
    if (endsNow) {
        PostPending();
    }
    refreshing = on ? 1 : 0;
    // A change may have been held back between the two.
    if (endsNow) {
        PostPending();
    }
}

}  // namespace browser
