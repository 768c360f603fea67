// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CChangeNotifications: being told that something changes in a folder, and the threads that wait for it.
//
// A thread waits for several waitable objects at once. All objects come from one CChangeNotifications and are
// used with it only. Every call may come from any thread; a waitable object is waited for by one thread at a
// time and outlives the wait.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>

namespace platform
{

// What WaitForMultipleObjects returns, besides the index of the object that ended the wait.
inline constexpr std::uint32_t kWaitObject0 = 0;
inline constexpr std::uint32_t kWaitAbandoned0 = 0x80;
inline constexpr std::uint32_t kWaitTimeout = 0x102;
inline constexpr std::uint32_t kWaitFailed = 0xFFFFFFFF;

inline constexpr int kNoTimeOut = -1;

// The changes that a notification is for; they may be added.
inline constexpr unsigned kNotifyChangeFileName = 1;    // files made, removed, renamed
inline constexpr unsigned kNotifyChangeDirName = 2;     // folders made, removed, renamed
inline constexpr unsigned kNotifyChangeLastWrite = 16;  // contents and times of files

enum class DriveType { unknown, noRoot, removable, fixed, remote, optical, ramDisk };

enum class WatchDepth { folderOnly, subtree };

class CWaitable
{
public:
    virtual ~CWaitable() = default;
};

// Ends one wait; set again before that, it still ends only one. May be set by a signal handler, too.
class CEvent : public CWaitable
{
public:
    virtual void Set() = 0;
};

// Is signalled at the first change, and then no more until it is armed again: a burst of changes ends few
// waits.
class CChangeNotification : public CWaitable
{
public:
    // Arms it again: changes since the latest signal count. False when the folder can be followed no longer
    // (it was removed, renamed or unmounted).
    virtual bool FindNext() = 0;
    // Changes up to now do not count, as far as no wait has taken them. May be called while another thread
    // waits, and does not wait for it. False as FindNext.
    virtual bool Forget() { return true; }
};

// A thread that has been started. Its end is waited for when the object goes.
class CThread
{
public:
    virtual ~CThread() = default;
};

// As long as it lives, the notifications for subtrees follow the one folder that it stands for.
class CFollowedFolder
{
public:
    virtual ~CFollowedFolder() = default;
};

// A window to which other threads send messages.
class CMessageWindow
{
public:
    virtual ~CMessageWindow() = default;
    // Returns at once; the window's own thread gets the message later.
    virtual void PostMessage(std::uint32_t message) = 0;
    // Returns when the window's own thread has answered, with its answer and the text that it gave; 0 when
    // the window no longer answers.
    virtual int SendMessage(std::uint32_t message, std::string& text) = 0;
};

class CChangeNotifications
{
public:
    virtual ~CChangeNotifications() = default;

    // Null when none can be had.
    virtual std::unique_ptr<CEvent> CreateEvent() = 0;
    // Null when the folder cannot be followed. A subtree is followed in those folders of its file system,
    // told by their paths, for which FollowFolder has been called, before or since: watching every folder of
    // a disk would take more memory than it is worth. Changes count from that call on.
    virtual std::unique_ptr<CChangeNotification> FindFirst(const std::string& folder, WatchDepth depth,
                                                           unsigned filter) = 0;
    virtual std::unique_ptr<CFollowedFolder> FollowFolder(const std::string& folder) = 0;

    // Waits until one of the objects is signalled; the one with the lowest index counts. kWaitFailed when one
    // of them is null, kWaitTimeout after that many milliseconds.
    virtual std::uint32_t WaitForMultipleObjects(std::span<CWaitable* const> objects, int milliseconds) = 0;

    // The roots of the drives, each with a 0 byte behind it. Returns the bytes needed for all and a last 0
    // byte (0 for failure) and fills `roots` only when that is not more than `room`.
    virtual std::size_t GetLogicalDriveStrings(std::size_t room, std::string& roots) = 0;
    virtual DriveType GetDriveType(const std::string& root) = 0;

    // Starts a thread that gets processor time only when nothing else wants it; null when it cannot be
    // started. What `body` returns is the thread's exit code.
    virtual std::unique_ptr<CThread> StartIdleThread(std::function<int()> body) = 0;
    // Waits until all of them have ended, at ordinary priority from now on.
    virtual void WaitForThreads(std::span<CThread* const> threads) = 0;
};

}  // namespace platform
