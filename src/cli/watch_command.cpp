// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/list_watch.h"
#include "cli/commands.h"
#include "platform/file_system.h"
#include "platform/services.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <deque>
#include <limits>
#include <mutex>
#include <utility>

namespace cli
{

namespace
{

using Clock = std::chrono::steady_clock;

// Stands for the list's window: keeps what is posted for the program's own thread.
class CWatchWindow : public platform::CMessageWindow
{
public:
    CWatchWindow(std::string folder, platform::CEvent& postedEvent)
        : path(std::move(folder)), posted(postedEvent)
    {
    }
    void PostMessage(std::uint32_t message) override
    {
        const std::lock_guard lock(mutex);
        messages.push_back(message);
        posted.Set();
    }
    int SendMessage(std::uint32_t message, std::string& text) override
    {
        text = path;
        return message == browser::kListWatchPathMessage ? 1 : 0;
    }
    std::deque<std::uint32_t> TakeMessages()
    {
        const std::lock_guard lock(mutex);
        return std::exchange(messages, {});
    }

private:
    const std::string path;
    platform::CEvent& posted;
    std::mutex mutex;
    std::deque<std::uint32_t> messages;
};

struct WatchArguments {
    std::string folder;
    std::optional<int> seconds;
};

// Prints the refreshes among the messages; whether they could be written.
bool PrintRefreshes(const CContext& context, const std::deque<std::uint32_t>& messages)
{
    for (const std::uint32_t message : messages) {
        if (message == browser::kListRefreshMessage) {
            CContext::PrintBytes(context.json ? "{\"event\": \"refresh\"}\n" : "refresh\n");
        }
    }
    return std::fflush(stdout) == 0;
}

int MillisecondsLeft(const WatchArguments& arguments, Clock::time_point start)
{
    if (!arguments.seconds) {
        return platform::kNoTimeOut;
    }
    const auto left = start + std::chrono::seconds(*arguments.seconds) - Clock::now();
    const auto rounded = std::chrono::ceil<std::chrono::milliseconds>(left).count();
    return static_cast<int>(std::clamp<std::int64_t>(rounded, 0, std::numeric_limits<int>::max()));
}

void Watch(CContext& context, const WatchArguments& arguments, platform::CEvent& posted,
           platform::CEvent& interrupted)
{
    CWatchWindow window(AbsolutePath(arguments.folder), posted);
    browser::CListWatch watch(window);
    const std::array<platform::CWaitable*, 2> events = {&interrupted, &posted};
    const auto start = Clock::now();
    watch.PathChanged();
    while (platform::Os().changes->WaitForMultipleObjects(events, MillisecondsLeft(arguments, start)) ==
           platform::kWaitObject0 + 1) {
        const browser::Following following = watch.CheckFollowing();
        if (following == browser::Following::no) {
            // What it has still to tell.
            watch.StopWatcher();
        }
        if (!PrintRefreshes(context, window.TakeMessages())) {
            return;
        }
        if (following == browser::Following::no) {
            const bool isThere =
                platform::Os().files->FindFirstFile(AbsolutePath(arguments.folder)).has_value();
            context.Fail(arguments.folder, isThere ? "cannot be followed" : "is no longer there");
            return;
        }
    }
}

void RunWatch(CContext& context, const WatchArguments& arguments)
{
    const auto facts = platform::Os().files->FindFirstFile(AbsolutePath(arguments.folder));
    if (!facts || !facts->isFolder) {
        context.Fail(arguments.folder, facts ? "is not a folder" : platform::Os().files->LastError());
        return;
    }
    const auto posted = platform::Os().changes->CreateEvent();
    const auto interrupted = platform::Os().changes->CreateEvent();
    if (!posted || !interrupted) {
        context.Fail(arguments.folder, "cannot be followed");
        return;
    }
    WakeAtInterruption(interrupted.get());
    Watch(context, arguments, *posted, *interrupted);
    WakeAtInterruption(nullptr);
}

}  // namespace

void AddWatchCommand(CLI::App& parser, CContext& context)
{
    auto* watch =
        parser.add_subcommand("watch", "Print \"refresh\" each time a folder's list is to be read anew");
    auto arguments = std::make_shared<WatchArguments>();
    watch->add_option("DIR", arguments->folder, "The folder")->required();
    watch->add_option("--seconds", arguments->seconds, "End after that time; otherwise at an interruption")
        ->check(CLI::NonNegativeNumber);
    watch->callback([&context, arguments] { RunWatch(context, *arguments); });
}

}  // namespace cli
