// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The watchers' steps: which wait leads to which message and trace, and when they give up.
#include "scripted_changes.h"

#include "browser/list_watch.h"
#include "browser/refresh_pace.h"
#include "browser/tree_watch.h"

#include <gtest/gtest.h>

using platform::DriveType;

namespace
{

class Watchers : public testing::Test
{
protected:
    Watchers() { platform::Os().changes = &changes; }
    // The trace since the last call.
    std::string Trace() { return std::exchange(services.utility.trace, {}); }

    support::TestServices services;
    support::CScriptedChanges changes{services.utility};
    support::CNotingWindow window{changes};
};

std::string Times(int count, const std::string& text)
{
    std::string all;
    for (int i = 0; i < count; ++i) {
        all += text;
    }
    return all;
}

const std::string kFailed = " dw = -1\n==> ListControl waiting failed\n";
const std::string kTaken = " dw = 1\n[send 37770]\n==> File notify path returned /a\n[follow /a, 19]\n";
const std::string kFirst =
    kTaken + "==> File notify thread has created the notification object for the first time\n[post 37771]\n";
const std::string kFired = " dw = 2\n[next]\n==> -- File notify event was fired in CIEShellListCtrl --\n";
const std::string kStopped = " dw = 0\n==> File Notify Thread was signalled to stop\n";
const std::string kGaveUp = Times(20, kFailed) + "[post 37771]\n==> File Notify Thread is ending\n";

}  // namespace

TEST_F(Watchers, TheListsWatcherGoesFromWaitToWait)
{
    const std::string start = "[set]\n==> ListControl waiting for 2 multiple objects\n";
    const std::string end = "[close]\n==> File Notify Thread is ending\n";
    const struct {
        std::string script;
        std::vector<std::string> paths;
        std::string trace;
        browser::Following following = browser::Following::no;
    } rows[] = {
        {"0", {}, kStopped + "==> File Notify Thread is ending\n", browser::Following::unknown},
        {"120", {"/a"}, kFirst + kFired + "[post 37769]\n" + kStopped + end},
        {"1R2r20",
         {"/a"},
         kFirst + kFired + "==> but not sending as refreshing\n" + "[post 37769]\n" + kFired +
             "[post 37769]\n" + kStopped + end},
        {"1n220",
         {"/a"},
         kFirst + kFired + "==> Refresh is now allowed\n" + kFired + "[post 37769]\n" + kStopped + end},
        {"1L20", {"/a"}, kFirst + kFired + "[post 37771]\n[post 37769]\n" + kStopped + end},
        {"110",
         {"/a", "/a"},
         kFirst + " dw = 1\n[close]\n[send 37770]\n==> File notify path returned /a\n[follow /a, 19]\n" +
             "==> File notify thread has created the notification object\n[post 37771]\n" + kStopped + end},
        {"1a",
         {"/a"},
         kFirst + " dw = 130\n==> ListControl waiting abandoned\n[close]\n[post 37771]\n" +
             "==> File Notify Thread is ending\n"},
        // Nothing to follow yet: the missing third object is not waited for.
        {"1110",
         {"", "!", "/refused"},
         " dw = 1\n[send 37770]\n==> File notify path was returned empty\n[post 37771]\n dw = 1\n[send "
         "37770]\n"
         " dw = 1\n[send 37770]\n==> File notify path returned /refused\n[follow /refused, 19]\n"
         "==> File notify thread was unable to create notification object\n[post 37771]\n" +
             kStopped + "==> File Notify Thread is ending\n"},
        // Afterwards it is, and every wait fails.
        {"110",
         {"/a", ""},
         kFirst + " dw = 1\n[close]\n[send 37770]\n==> File notify path was returned empty\n" +
             "[post 37771]\n" + kGaveUp},
        {"110",
         {"/a", "/refused"},
         kFirst +
             " dw = 1\n[close]\n[send 37770]\n==> File notify path returned /refused\n[follow /refused, "
             "19]\n" +
             "==> File notify thread was unable to create notification object\n[post 37771]\n" + kGaveUp},
        // Only failures in a row count.
        {std::string(19, 'f') + "t" + std::string(20, 'f'),
         {},
         Times(19, kFailed) + " dw = 258\n" + kGaveUp,
         browser::Following::unknown},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.script);
        support::CScriptedChanges scripted(services.utility);
        support::CNotingWindow asked(scripted);
        platform::Os().changes = &scripted;
        browser::CListWatch watch(asked);
        scripted.script = row.script;
        scripted.refused = "/refused";
        scripted.actions = {{'R', [&] { watch.SetRefreshing(true); }},
                            {'r', [&] { watch.SetRefreshing(false); }},
                            {'n', [&] { watch.SwallowNextChange(); }},
                            {'L', [&] { scripted.lost = true; }}};
        asked.paths = row.paths;
        Trace();

        watch.PathChanged();

        EXPECT_EQ(Trace(), start + row.trace);
        if (row.following == browser::Following::no) {
            EXPECT_EQ(watch.CheckFollowing(), row.following);
            EXPECT_EQ(Trace(), "") << "what is known not to be followed is not asked for again";
        }
    }
}

TEST_F(Watchers, AnotherListWatcherStartsWhereTheLastHasEnded)
{
    browser::CListWatch watch(window);
    window.paths = {"/a"};
    changes.script = std::string(20, 'f') + "10";
    watch.PathChanged();
    Trace();

    watch.CheckFollowing();

    EXPECT_NE(Trace().find("[follow /a, 19]"), std::string::npos);
    EXPECT_EQ(changes.exitCodes.size(), 2U);
}

TEST_F(Watchers, ChangesHeldBackAreToldOfOnce)
{
    browser::CListWatch watch(window);
    window.paths = {"/a"};
    changes.script = "1R2220";
    changes.actions = {{'R', [&] { watch.SetRefreshing(true); }}};
    watch.PathChanged();
    Trace();

    watch.SetRefreshing(true);
    EXPECT_EQ(Trace(), "");
    watch.SetRefreshing(false);
    watch.SetRefreshing(false);

    EXPECT_EQ(Trace(), "[post 37769]\n");
}

TEST_F(Watchers, TheTreesWatchersFollowLocalNetworkAndRamDrives)
{
    changes.last = 1;
    changes.refused = "/net";
    changes.script = "0n0" + std::string(9, 'f') + "t" + std::string(10, 'f');
    const std::string fired = "[next]\n-- Directory notify event was fired in CIEShellTreeCtrl --\n";
    const std::string failed = "==> TreeControl waiting failed\n";
    {
        browser::CTreeWatch watch(window);
        changes.actions = {{'n', [&] { watch.SwallowNextChange(); }}};
        const std::string warning = "Warning: CreateFileChangeThreads failed in GetLogicalDriveStrings\n";
        for (const auto& [needed, trace] : {std::pair{0, warning}, {260, std::string()}}) {
            changes.needed = static_cast<std::size_t>(needed);
            watch.CreateFileChangeThreads();
            EXPECT_EQ(Trace(), trace);
        }
        changes.needed = 261;
        changes.drives = {{"/", DriveType::fixed},          {"/cd", DriveType::optical},
                          {"/net", DriveType::remote},      {"/ram", DriveType::ramDisk},
                          {"/stick", DriveType::removable}, {"/what", DriveType::unknown}};
        watch.SetWatching(false);
        watch.CreateFileChangeThreads();
        EXPECT_EQ(Trace(), "");
        watch.SetWatching(true);

        watch.CreateFileChangeThreads();

        EXPECT_EQ(Trace(), warning +
                               "Creating directory thread handler for /\n[follow / and below, 2]\n"
                               "TreeControl waiting for 2 multiple objects\n" +
                               fired + "[post 36774]\n" + fired +
                               "but not sending as refresh disallowed\nRefresh is now allowed\n" +
                               Times(19, failed) +
                               "[close]\nDirectory Notify Thread is ending\n"
                               "Creating directory thread handler for /net\n[follow /net and below, 2]\n"
                               "Creating directory thread handler for /ram\n[follow /ram and below, 2]\n"
                               "TreeControl waiting for 2 multiple objects\n"
                               "Directory Notify Thread was signalled to stop\n[close]\n"
                               "Directory Notify Thread is ending\n");
        EXPECT_EQ(changes.exitCodes, (std::vector<int>{0, 1, 0}));
    }
    EXPECT_EQ(Trace(),
              "[set]\n[set]\n[set]\nWaitForMultipleObjects...[wait for 3]\nWaitForMultipleObjects... OK !!!");
}

TEST(RefreshPace, ABurstGivesFewReadingsAndASlowListFewer)
{
    const struct {
        std::uint64_t cost;
        std::uint64_t length;
        int most;
        int least;
    } rows[] = {
        {20, 200, 2, 1}, {20, 5000, 7, 4}, {20, 60'000, 40, 20}, {900, 60'000, 8, 5}, {9000, 60'000, 4, 2}};
    for (const auto& row : rows) {
        browser::CRefreshPace pace;
        EXPECT_EQ(pace.Wait(0), 0U) << "the first change is followed at once";
        int readings = 0;
        std::uint64_t end = 0;
        for (std::uint64_t now = 0; now <= row.length; ++now) {
            if (now >= end && pace.Wait(now) == 0) {
                pace.Begin(now);
                end = now + row.cost;
                pace.End(end);
                ++readings;
            }
        }
        EXPECT_LE(readings, row.most) << row.cost << " " << row.length;
        EXPECT_GE(readings, row.least) << row.cost << " " << row.length;
        EXPECT_LE(pace.Wait(end), 20'000U);
        pace.Begin(end + 60'000);
        pace.End(end + 60'020);
        EXPECT_EQ(pace.Wait(end + 60'020), 250U) << "what has come to rest is quick again";
    }
}
