// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CScriptedChanges: change notifications whose waits end as a script says, on the test's own thread.
//
// What happens is noted in the trace of the services. A letter of the script ends one wait: digits are the
// index of an object, f is failure, a an abandoned wait, t a time-out; any other letter is an action of the
// test's, done before the next wait ends. A wait for a missing object fails; after the script's end waits end
// with `last`.
#pragma once

#include "platform/change_notifications.h"
#include "support/test_services.h"

#include <functional>
#include <map>
#include <vector>

namespace support
{

class CScriptedChanges : public platform::CChangeNotifications
{
public:
    explicit CScriptedChanges(CTestUtility& utility) : log(utility) {}

    std::string script;
    std::uint32_t last = 0;
    std::map<char, std::function<void()>> actions;
    std::string refused;  // this folder cannot be followed
    bool lost = false;    // notifications say at FindNext that they can go on no longer
    std::size_t needed = 0;
    std::map<std::string, platform::DriveType> drives;
    std::vector<int> exitCodes;

    std::unique_ptr<platform::CEvent> CreateEvent() override { return std::make_unique<CSetEvent>(*this); }
    std::unique_ptr<platform::CChangeNotification>
    FindFirst(const std::string& folder, platform::WatchDepth depth, unsigned filter) override
    {
        const bool deep = depth == platform::WatchDepth::subtree;
        Note("follow " + folder + (deep ? " and below, " : ", ") + std::to_string(filter));
        return folder == refused ? nullptr : std::make_unique<CArmed>(*this);
    }
    std::unique_ptr<platform::CFollowedFolder> FollowFolder(const std::string&) override { return nullptr; }
    std::uint32_t WaitForMultipleObjects(std::span<platform::CWaitable* const> objects, int) override;
    std::size_t GetLogicalDriveStrings(std::size_t room, std::string& roots) override
    {
        if (needed > room)
            return needed;
        for (const auto& [root, type] : drives)
            roots += root + '\0';
        roots += '\0';
        return needed;
    }
    platform::DriveType GetDriveType(const std::string& root) override { return drives.at(root); }
    std::unique_ptr<platform::CThread> StartIdleThread(std::function<int()> body) override
    {
        exitCodes.push_back(body());
        return std::make_unique<platform::CThread>();
    }
    void WaitForThreads(std::span<platform::CThread* const> threads) override
    {
        Note("wait for " + std::to_string(threads.size()));
    }
    void Note(const std::string& text) { log.trace += "[" + text + "]\n"; }

private:
    struct CSetEvent : platform::CEvent {
        explicit CSetEvent(CScriptedChanges& changes) : owner(changes) {}
        void Set() override { owner.Note("set"); }
        CScriptedChanges& owner;
    };
    struct CArmed : platform::CChangeNotification {
        explicit CArmed(CScriptedChanges& changes) : owner(changes) {}
        ~CArmed() override { owner.Note("close"); }
        bool FindNext() override { return owner.Note("next"), !owner.lost; }
        CScriptedChanges& owner;
    };

    CTestUtility& log;
    std::size_t at = 0;
};

inline std::uint32_t CScriptedChanges::WaitForMultipleObjects(std::span<platform::CWaitable* const> objects,
                                                              int)
{
    for (; at < script.size() && actions.contains(script[at]); ++at)
        actions[script[at]]();
    for (const platform::CWaitable* object : objects) {
        if (!object)
            return platform::kWaitFailed;
    }
    switch (const char letter = at < script.size() ? script[at++] : 0; letter) {
    case 0:
        return last;
    case 'f':
        return platform::kWaitFailed;
    case 'a':
        return platform::kWaitAbandoned0 + static_cast<std::uint32_t>(objects.size()) - 1;
    case 't':
        return platform::kWaitTimeout;
    default:
        return static_cast<std::uint32_t>(letter - '0');
    }
}

// Notes what is posted, and answers with one path after the other; "!" is no answer.
class CNotingWindow : public platform::CMessageWindow
{
public:
    explicit CNotingWindow(CScriptedChanges& changes) : log(changes) {}
    std::vector<std::string> paths;

    void PostMessage(std::uint32_t message) override { log.Note("post " + std::to_string(message)); }
    int SendMessage(std::uint32_t message, std::string& text) override
    {
        log.Note("send " + std::to_string(message));
        text = next < paths.size() ? paths[next++] : "";
        return text == "!" ? 0 : 1;
    }

private:
    CScriptedChanges& log;
    std::size_t next = 0;
};

}  // namespace support
