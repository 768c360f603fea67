// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CFolderNotification: changes in one folder, through inotify.
//
// The path is followed, not only the folder: it is lost when the folder or one above it is removed, renamed
// or unmounted, and then never signals again. Changes that follow a signal closely are gathered, so that a
// program that writes without a pause ends some thirty waits in a second.
#pragma once

#include "platform_linux/waitable.h"

#include <chrono>
#include <mutex>
#include <string>

namespace platform_linux
{

// The part that notifications for a folder and for a subtree share: an inotify queue that is armed and
// signals.
class CInotifyQueue : public platform::CChangeNotification, public CLinuxWaitable
{
public:
    int Descriptor() const override { return queue.Get(); }
    bool Take() override;
    int QuietFor() const override;
    bool FindNext() override;
    bool Forget() override;

protected:
    CInotifyQueue();
    bool IsOpen() const { return queue.IsOpen(); }
    int Queue() const { return queue.Get(); }
    // The watch's number; -1 on failure. `mask` is inotify's.
    int AddWatch(const std::string& folder, std::uint32_t mask) const;
    void RemoveWatch(int watch) const;

private:
    virtual bool IsChange(int watch, std::uint32_t mask, const char* name) = 0;
    // What else there is to take; true when it counts as a change.
    virtual bool TakeOwn() { return false; }
    virtual bool IsLost() const { return false; }
    bool TakeSome(bool& changed);

    using Clock = std::chrono::steady_clock;
    CHandle queue;
    std::mutex taking;
    bool isArmed = true;
    Clock::time_point quietUntil;
};

class CFolderNotification final : public CInotifyQueue
{
public:
    CFolderNotification(const std::string& folder, unsigned filter);
    bool IsFollowing() const { return folderWatch >= 0; }

private:
    bool IsChange(int watch, std::uint32_t mask, const char* name) override;
    bool IsLost() const override { return isLost; }
    bool IsGone(int watch, std::uint32_t mask, const char* name) const;
    void WatchFoldersAbove(const std::string& folder);

    std::string folderName;
    int folderWatch = -1;
    int parentWatch = -1;
    bool isLost = false;
};

}  // namespace platform_linux
