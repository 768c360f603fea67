// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CLinuxChangeNotifications: change notifications on inotify, events on eventfd, waits on poll.
//
// A file system that does not answer (a share whose server is gone) keeps nobody waiting but threads that can
// be left behind: FollowFolder and FindFirst for a subtree return at once, FindFirst for a folder in seconds.
//
// A folder costs one inotify instance (the kernel allows 128 for a user, by default) and a watch for itself
// and each folder above it; a subtree one instance and a watch for each of its followed folders.
#pragma once

#include "platform/change_notifications.h"

#include <memory>

namespace platform_linux
{

class CFollowedFolders;

class CLinuxChangeNotifications final : public platform::CChangeNotifications
{
public:
    CLinuxChangeNotifications();
    ~CLinuxChangeNotifications() override;

    std::unique_ptr<platform::CEvent> CreateEvent() override;
    std::unique_ptr<platform::CChangeNotification>
    FindFirst(const std::string& folder, platform::WatchDepth depth, unsigned filter) override;
    std::unique_ptr<platform::CFollowedFolder> FollowFolder(const std::string& folder) override;
    std::uint32_t WaitForMultipleObjects(std::span<platform::CWaitable* const> objects,
                                         int milliseconds) override;
    std::size_t GetLogicalDriveStrings(std::size_t room, std::string& roots) override;
    platform::DriveType GetDriveType(const std::string& root) override;
    std::unique_ptr<platform::CThread> StartIdleThread(std::function<int()> body) override;
    void WaitForThreads(std::span<platform::CThread* const> threads) override;

private:
    std::shared_ptr<CFollowedFolders> followed;
};

}  // namespace platform_linux
