// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/watch/list_follower.h"

#include "browser/file_names.h"
#include "platform/file_system.h"
#include "platform/services.h"

#include <utility>

namespace ui
{

namespace
{

platform::FileTime TimeOf(const std::string& folder)
{
    const auto facts = platform::Os().files->FindFirstFile(folder);
    return facts ? facts->lastWriteTime : 0;
}

}  // namespace

CListFollower::CListFollower()
    : port([this](std::uint32_t message, std::string& text) { return OnMessage(message, text); }), watch(port)
{
    connect(&refresh, &CPacedRefresh::Due, this, &CListFollower::RefreshDue);
}

CListFollower::~CListFollower()
{
    // The watcher may be waiting for an answer.
    port.Close();
    watch.StopWatcher();
}

void CListFollower::Begin(const std::string& path)
{
    watch.SetRefreshing(true);
    // The reading shows all that has happened until now.
    watch.ForgetChanges();
    ownChange.End();
    port.Forget(browser::kListRefreshMessage);
    refresh.Begin();
    const bool isOther = std::exchange(folder, path) != path;
    folderTime = TimeOf(folder);
    if (isOther || isLost)
        watch.PathChanged();
}

void CListFollower::End()
{
    watch.SetRefreshing(false);
    refresh.End();
}

int CListFollower::OnMessage(std::uint32_t message, std::string& text)
{
    switch (message) {
    case browser::kListRefreshMessage:
        if (!ownChange.HoldsBack())
            refresh.Request();
        return 1;
    case browser::kListWatchPathMessage:
        text = MayChange() ? folder : std::string();
        return 1;
    case browser::kListFollowingMessage:
        OnFollowing();
        return 1;
    default:
        return 0;
    }
}

// A special place holds no files, so that nothing happens in it.
bool CListFollower::MayChange() const
{
    return !folder.empty() && !browser::IsSpecialPlace(folder);
}

void CListFollower::OnFollowing()
{
    const browser::Following following = watch.CheckFollowing();
    if (following == browser::Following::unknown)
        return;
    const bool lost = following == browser::Following::no && MayChange();
    if (std::exchange(isLost, lost) != lost)
        Q_EMIT LostChanged();
    // What happened between the reading and now has not been told.
    if (!lost && TimeOf(folder) != folderTime)
        refresh.Request();
}

}  // namespace ui
