// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/watcher_threads.h"

#include "platform/services.h"
#include "platform/utility.h"

namespace browser
{

bool CWatcherThreads::Start(std::function<int(platform::CEvent& stop)> body)
{
    platform::CChangeNotifications* const changes = platform::Os().changes;
    Watcher watcher;
    watcher.stop = changes ? changes->CreateEvent() : nullptr;
    if (!watcher.stop) {
        return false;
    }
    const std::uint8_t before = watching.exchange(1);
    watcher.thread =
        changes->StartIdleThread([body = std::move(body), stop = watcher.stop.get()] { return body(*stop); });
    if (!watcher.thread) {
        watching = before;
        return false;
    }
    watchers.push_back(std::move(watcher));
    return true;
}

void CWatcherThreads::StopAll()
{
    if (!IsWatching()) {
        return Forget();
    }
    for (const Watcher& watcher : watchers) {
        watcher.stop->Set();
    }
    platform::CUtility& utility = *platform::Os().utility;
    utility.OutputDebugString("WaitForMultipleObjects...");
    Forget();
    utility.OutputDebugString("WaitForMultipleObjects... OK !!!");
    watching = 0;
}

void CWatcherThreads::Forget()
{
    if (watchers.empty()) {
        return;
    }
    std::vector<platform::CThread*> threads;
    for (const Watcher& watcher : watchers) {
        threads.push_back(watcher.thread.get());
    }
    platform::Os().changes->WaitForThreads(threads);
    watchers.clear();
}

}  // namespace browser
