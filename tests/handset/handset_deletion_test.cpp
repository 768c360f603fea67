// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "handset/handset_deletion.h"

#include "handset/noting_link.h"
#include "handset/record_file.h"
#include "support/services_guard.h"
#include "support/test_file_system.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

class HandsetDeletion : public testing::Test
{
protected:
    HandsetDeletion() : guard(files)
    {
        platform::Os().handset = &link;
        for (const auto& [name, index] : {std::pair("a.jpg", 11), {"b.jpg", 12}, {"c.jpg", 13}})
            handset::AddHandsetRecord(folder.Path("mobilefile.dbs"), name, index);
    }
    std::vector<std::string> Paths(const std::vector<std::string>& names)
    {
        std::vector<std::string> paths;
        for (const std::string& name : names)
            paths.push_back(folder.Path(name));
        return paths;
    }

    support::CTempFolder folder;
    support::CTestFileSystem files;
    support::CServicesGuard guard;
    CNotingLink link;
};

TEST_F(HandsetDeletion, EachFileGoesByItsRecordOverOneConnection)
{
    handset::CHandsetDeletion run(Paths({"b.jpg", "a.jpg"}), handset::FolderClass::other, 3);

    while (run.Step()) {
    }

    EXPECT_THAT(link.calls, ElementsAre("3:2,12", "3:2,11"));
    EXPECT_EQ(run.Message(), platform::StringId::none);
    EXPECT_FALSE(link.connectionLost);
    EXPECT_EQ(link.alive, 0);
}

TEST_F(HandsetDeletion, ARunGoesOnBehindAFailureAndTellsOnce)
{
    link.refusedIndex = 11;
    handset::CHandsetDeletion run(Paths({"a.jpg", "unknown.mmf", "c.jpg"}), handset::FolderClass::ring, 1);

    while (run.Step()) {
    }

    EXPECT_THAT(link.calls, ElementsAre("1:7,11", "1:7,0", "1:7,13"));
    EXPECT_THAT(run.FailedPaths(), ElementsAre(folder.Path("a.jpg"), folder.Path("unknown.mmf")));
    EXPECT_EQ(run.Message(), platform::StringId::handsetDeleteFailed);
}

TEST_F(HandsetDeletion, AStoppedRunLeavesTheRestAndLetsGoOfTheLine)
{
    handset::CHandsetDeletion run(Paths({"a.jpg", "b.jpg"}), handset::FolderClass::other, 1);
    run.Step();

    run.Stop();

    EXPECT_FALSE(run.Step());
    EXPECT_EQ(link.calls.size(), 1U);
    EXPECT_THAT(run.FailedPaths(), IsEmpty());
    EXPECT_EQ(link.alive, 0);
}

TEST_F(HandsetDeletion, WithoutAHandsetLibraryEveryFileFails)
{
    platform::Os().handset = nullptr;
    handset::CHandsetDeletion run(Paths({"a.jpg"}), handset::FolderClass::other, 1);

    run.Step();

    EXPECT_EQ(run.Message(), platform::StringId::handsetDeleteFailed);
}

}  // namespace
