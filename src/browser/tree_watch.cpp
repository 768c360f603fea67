// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/tree_watch.h"

#include "platform/services.h"
#include "platform/utility.h"

#include <fmt/format.h>

#include <array>

namespace browser
{

namespace
{

constexpr int kMostFailures = 10;
constexpr std::size_t kRoomForRoots = 260;

void Trace(const std::string& text)
{
    platform::Os().utility->OutputDebugString(text);
}

}  // namespace

void CTreeWatch::CreateFileChangeThreads()
{
    using platform::DriveType;
    platform::CChangeNotifications* const changes = platform::Os().changes;
    if (!isOn || !changes) {
        return;
    }
    std::string roots;
    std::size_t needed = changes->GetLogicalDriveStrings(kRoomForRoots, roots);
    if (needed == 0 || needed > kRoomForRoots) {
        Trace("Warning: CreateFileChangeThreads failed in GetLogicalDriveStrings\n");
        // Mount points are longer than drive letters: no reason to follow none of them.
        const std::size_t room = needed;
        needed = room == 0 ? 0 : changes->GetLogicalDriveStrings(room, roots);
        if (needed == 0 || needed > room) {
            return;
        }
    }
    for (std::size_t begin = 0; begin < roots.size() && roots[begin] != 0;) {
        const std::string root = roots.c_str() + begin;
        begin += root.size() + 1;
        const DriveType type = changes->GetDriveType(root);
        if (type == DriveType::fixed || type == DriveType::remote || type == DriveType::ramDisk) {
            StartWatcher(root);
        }
    }
}

void CTreeWatch::StartWatcher(const std::string& root)
{
    Trace(fmt::format("Creating directory thread handler for {}\n", root));
    threads.Start([this, root](platform::CEvent& stop) { return Watch(root, stop); });
}

int CTreeWatch::Watch(const std::string& root, platform::CEvent& stop)
{
    using namespace platform;
    CChangeNotifications& changes = *Os().changes;
    auto notification = changes.FindFirst(root, WatchDepth::subtree, kNotifyChangeDirName);
    if (!notification) {
        return 1;
    }
    const std::array<CWaitable*, 2> handles = {notification.get(), &stop};
    Trace(fmt::format("TreeControl waiting for {} multiple objects\n", handles.size()));
    for (int failures = 0; failures < kMostFailures;) {
        const std::uint32_t result = changes.WaitForMultipleObjects(handles, kNoTimeOut);
        failures = result == kWaitFailed ? failures + 1 : 0;
        if (result == kWaitObject0) {
            notification->FindNext();
            OnChange();
        } else if (result == kWaitObject0 + 1) {
            Trace("Directory Notify Thread was signalled to stop\n");
            break;
        } else if (result == kWaitFailed) {
            Trace("==> TreeControl waiting failed\n");
        }
    }
    notification.reset();
    Trace("Directory Notify Thread is ending\n");
    return 0;
}

void CTreeWatch::OnChange()
{
    Trace("-- Directory notify event was fired in CIEShellTreeCtrl --\n");
    if (notifyAllowed.exchange(1) == 0) {
        Trace("but not sending as refresh disallowed\n");
        Trace("Refresh is now allowed\n");
    } else {
        window.PostMessage(kTreeRefreshMessage);
    }
}

}  // namespace browser
