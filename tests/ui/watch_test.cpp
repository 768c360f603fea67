// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The window keeps itself current: the list and the tree over real folders that change outside.
#include "platform_linux/linux_change_notifications.h"
#include "window_test_base.h"

#include <QScrollBar>

#include <mutex>
#include <thread>

using app::CommandId;
namespace fs = std::filesystem;

namespace
{

class CLockedUtility : public support::CTestUtility
{
public:
    using CTestUtility::CTestUtility;
    void OutputDebugString(const std::string& text) override
    {
        const std::lock_guard lock(mutex);
        CTestUtility::OutputDebugString(text);
    }

private:
    std::mutex mutex;
};

// A window whose list follows the folder.
class WatchTest : public support::WindowTest
{
protected:
    WatchTest() : utility(services.profiles)
    {
        frame.reset();
        utility.programFolder = services.utility.programFolder;
        platform::Os().changes = &changes;
        platform::Os().utility = &utility;
        MakeFrame();
    }
    ~WatchTest() override { frame.reset(); }
    void MakeFrame()
    {
        frame = std::make_unique<ui::CMainFrame>(application, dataFolders);
        frame->resize(1000, 700);
        frame->show();
        QObject::connect(frame->List()->View()->model(), &QAbstractItemModel::modelReset, frame.get(),
                         [this] { ++resets; });
    }
    static bool Happens(const std::function<bool()>& what) { return QTest::qWaitFor(what, 20'000); }
    bool Shows(const std::string& name)
    {
        return Happens([&] { return !List().IsReading() && RowOf(name) < View().model()->rowCount(); });
    }
    bool Says(const QString& text)
    {
        return Happens([&] { return frame->Status()->NotFollowedText() == text; });
    }

    CLockedUtility utility;
    platform_linux::CLinuxChangeNotifications changes;
    int resets = 0;
};

const QString kNotFollowed = QStringLiteral("Changes are not followed");

}  // namespace

TEST_F(WatchTest, FilesAppearChangeAndVanishByThemselves)
{
    AddMany(200);
    Open();
    View().verticalScrollBar()->setValue(View().verticalScrollBar()->maximum() / 2);
    const int scrolled = View().verticalScrollBar()->value();
    View().setAutoScroll(false);
    Select({"photo7.jpg", "photo199.jpg"});
    Settle();
    const auto rendered = [this] { return services.images.rendered.load(); };
    const int before = rendered();

    Add("photo9999.jpg");
    ASSERT_TRUE(Shows("photo9999.jpg"));
    Settle();
    EXPECT_EQ(rendered(), before + 1) << "only the new one";
    EXPECT_EQ(SelectedNames(), (std::vector<std::string>{"photo7.jpg", "photo199.jpg"}));
    EXPECT_EQ(View().verticalScrollBar()->value(), scrolled);

    resets = 0;
    Add("photo0.jpg", "50x50 and longer");
    EXPECT_TRUE(Happens([&] { return rendered() == before + 2; }));
    EXPECT_EQ(resets, 0) << "the items are the same";

    fs::remove(folder + "/photo9999.jpg");
    EXPECT_TRUE(Happens([&] { return Names().size() == 200; }));
    EXPECT_EQ(rendered(), before + 2);
}

TEST_F(WatchTest, ABurstGivesFewRefreshes)
{
    Open();
    std::thread burst([this] { AddMany(3000, ".mid"); });
    EXPECT_TRUE(Happens([&] { return Names().size() == 3000; }));
    burst.join();

    EXPECT_GE(resets, 1);
    EXPECT_LE(resets, 40);
}

TEST_F(WatchTest, TheListSaysWhenItNoLongerFollowsAndRefreshStillWorks)
{
    Add("a.jpg");
    Open();
    ASSERT_TRUE(Says({}));

    fs::rename(folder, folder + ".moved");
    EXPECT_TRUE(Says(kNotFollowed));
    EXPECT_TRUE(Happens([&] { return List().EmptyState()->isVisible(); }));

    fs::rename(folder + ".moved", folder);
    Run(CommandId::refresh);
    EXPECT_TRUE(Shows("a.jpg"));
    EXPECT_TRUE(Says({}));
    Add("b.jpg");
    EXPECT_TRUE(Shows("b.jpg"));
}

TEST_F(WatchTest, WhatIsSwallowedAsOwnWorkIsNeverMissed)
{
    Open();
    ASSERT_TRUE(Says({}));

    List().Follower().SwallowNextChange();
    Add("swallowed.jpg");
    EXPECT_TRUE(Shows("swallowed.jpg")) << "though the reading after the work did not come";

    for (int i = 0; i < 3; ++i) {
        List().Follower().SwallowNextChange();
        Add("own" + std::to_string(i) + ".jpg");
        List().Refresh();
        Add("other" + std::to_string(i) + ".jpg");
        EXPECT_TRUE(Shows("other" + std::to_string(i) + ".jpg"));
    }
}

TEST_F(WatchTest, TheTreeShowsNewFoldersAndKeepsItsState)
{
    fs::create_directories(folder + "/old/below");
    Open(folder + "/old");
    frame->LeftView()->ShowTab(app::kFolderTab);
    frame->GoTo(folder + "/old");
    ui::CFolderTree& tree = *frame->LeftView()->Tree();
    ASSERT_TRUE(Happens([&] { return !tree.IsReading(); }));
    const QModelIndex above = tree.currentIndex().parent();
    const auto names = [&] {
        QStringList all;
        for (int row = 0; row < tree.model()->rowCount(above); ++row)
            all.append(tree.model()->index(row, 0, above).data().toString());
        return all;
    };
    tree.expand(tree.currentIndex());

    // The watcher's thread may come too late for the first one.
    const auto made = [&, count = 0]() mutable {
        fs::create_directory(folder + "/new" + std::to_string(count++));
        return QTest::qWaitFor([&] { return names().contains(QStringLiteral("new0")); }, 1000);
    };
    EXPECT_TRUE(Happens(made));
    EXPECT_EQ(tree.Folder(), folder + "/old");
    EXPECT_TRUE(tree.isExpanded(tree.currentIndex()));

    fs::remove_all(folder + "/old");
    EXPECT_TRUE(Happens([&] { return !names().contains(QStringLiteral("old")); }));
    EXPECT_EQ(tree.Folder(), "");
    EXPECT_EQ(List().List().Folder(), folder + "/old") << "the list says what has become of it";
}

TEST_F(WatchTest, TheWindowClosesWhileAWatcherAsksForThePath)
{
    for (int i = 0; i < 50; ++i) {
        frame->GoTo(folder);
        // Nobody answers between the two.
        frame.reset();
        MakeFrame();
    }
    EXPECT_NE(utility.trace.find("WaitForMultipleObjects... OK !!!"), std::string::npos);
}
