// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/linux_change_notifications.h"

#include "platform_linux/drives.h"
#include "platform_linux/idle_thread.h"
#include "platform_linux/subtree_notification.h"

#include <algorithm>
#include <cerrno>
#include <future>
#include <poll.h>

namespace platform_linux
{

namespace
{

using Clock = std::chrono::steady_clock;

// For a share whose server is gone: a thread that waits for it cannot be stopped until then.
constexpr std::chrono::seconds kPatience(5);

class CFollowing final : public platform::CFollowedFolder
{
public:
    CFollowing(std::shared_ptr<CFollowedFolders> all, const std::string& folder)
        : folders(std::move(all)), key(folders->Add(folder))
    {
    }
    ~CFollowing() override { folders->Remove(key); }
    CFollowing(const CFollowing&) = delete;
    CFollowing& operator=(const CFollowing&) = delete;

private:
    std::shared_ptr<CFollowedFolders> folders;
    FollowKey key;
};

// Null when the folder cannot be followed, or its file system does not answer in time.
std::unique_ptr<platform::CChangeNotification> FollowInTime(const std::string& folder, unsigned filter)
{
    using Notification = std::unique_ptr<CFolderNotification>;
    const auto making = std::make_shared<std::packaged_task<Notification()>>(
        [folder, filter] { return std::make_unique<CFolderNotification>(folder, filter); });
    std::future<Notification> made = making->get_future();
    if (!StartLooseThread([making] { (*making)(); }) || made.wait_for(kPatience) != std::future_status::ready)
        return nullptr;
    Notification notification = made.get();
    return notification->IsFollowing() ? std::move(notification) : nullptr;
}

// One wait for several objects.
class CWait
{
public:
    // False when one of them cannot be waited for.
    bool Take(std::span<platform::CWaitable* const> handles)
    {
        for (platform::CWaitable* handle : handles)
            objects.push_back(dynamic_cast<CLinuxWaitable*>(handle));
        descriptors.resize(objects.size());
        return std::find(objects.begin(), objects.end(), nullptr) == objects.end();
    }

    // Waits up to `milliseconds` (-1: for ever), or until a quiet object is to be looked at again.
    bool Poll(int milliseconds)
    {
        int timeOut = milliseconds;
        for (std::size_t i = 0; i < objects.size(); ++i) {
            const int quiet = objects[i]->QuietFor();
            descriptors[i] = {quiet == 0 ? objects[i]->Descriptor() : -1, POLLIN, 0};
            if (quiet > 0)
                timeOut = timeOut < 0 ? quiet : std::min(timeOut, quiet);
        }
        return poll(descriptors.data(), descriptors.size(), timeOut) >= 0 || errno == EINTR;
    }

    // What the objects that poll found ready make of it.
    std::uint32_t Result()
    {
        for (std::size_t i = 0; i < objects.size(); ++i) {
            if (descriptors[i].revents != 0 && objects[i]->Take())
                return platform::kWaitObject0 + static_cast<std::uint32_t>(i);
        }
        return platform::kWaitTimeout;
    }

private:
    std::vector<CLinuxWaitable*> objects;
    std::vector<pollfd> descriptors;
};

}  // namespace

CLinuxChangeNotifications::CLinuxChangeNotifications() : followed(std::make_shared<CFollowedFolders>()) {}
CLinuxChangeNotifications::~CLinuxChangeNotifications() = default;

std::unique_ptr<platform::CEvent> CLinuxChangeNotifications::CreateEvent()
{
    auto event = std::make_unique<CLinuxEvent>();
    return event->IsOpen() ? std::move(event) : nullptr;
}

std::unique_ptr<platform::CChangeNotification>
CLinuxChangeNotifications::FindFirst(const std::string& folder, platform::WatchDepth depth, unsigned filter)
{
    if (depth == platform::WatchDepth::subtree) {
        auto notification = std::make_unique<CSubtreeNotification>(folder, followed);
        return notification->IsFollowing() ? std::move(notification) : nullptr;
    }
    return FollowInTime(folder, filter);
}

std::unique_ptr<platform::CFollowedFolder> CLinuxChangeNotifications::FollowFolder(const std::string& folder)
{
    return std::make_unique<CFollowing>(followed, folder);
}

std::uint32_t CLinuxChangeNotifications::WaitForMultipleObjects(std::span<platform::CWaitable* const> objects,
                                                                int milliseconds)
{
    CWait wait;
    if (!wait.Take(objects))
        return platform::kWaitFailed;
    const auto end = Clock::now() + std::chrono::milliseconds(milliseconds);
    while (true) {
        int left = -1;
        if (milliseconds >= 0) {
            const auto rest = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now()).count();
            left = static_cast<int>(std::max<std::int64_t>(rest, 0));
        }
        if (!wait.Poll(left))
            return platform::kWaitFailed;
        const std::uint32_t result = wait.Result();
        if (result != platform::kWaitTimeout || left == 0)
            return result;
    }
}

std::size_t CLinuxChangeNotifications::GetLogicalDriveStrings(std::size_t room, std::string& roots)
{
    std::string all;
    for (const std::string& root : DriveRoots(ReadMountTable()))
        all += root + '\0';
    if (all.empty())
        return 0;
    all += '\0';
    const std::size_t needed = all.size();
    if (needed <= room)
        roots = std::move(all);
    return needed;
}

platform::DriveType CLinuxChangeNotifications::GetDriveType(const std::string& root)
{
    return DriveTypeOf(root, ReadMountTable());
}

std::unique_ptr<platform::CThread> CLinuxChangeNotifications::StartIdleThread(std::function<int()> body)
{
    auto thread = std::make_unique<CIdleThread>(std::move(body));
    return thread->HasStarted() ? std::move(thread) : nullptr;
}

void CLinuxChangeNotifications::WaitForThreads(std::span<platform::CThread* const> threads)
{
    for (platform::CThread* thread : threads)
        static_cast<CIdleThread*>(thread)->Hurry();
    for (platform::CThread* thread : threads)
        static_cast<CIdleThread*>(thread)->Join();
}

}  // namespace platform_linux
