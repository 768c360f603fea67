// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/thumb_db_mgr.h"
#include "support/faulty_file_system.h"
#include "support/test_services.h"

#include <gtest/gtest.h>

#include <filesystem>

using browser::CThumbDbMgr;
using browser::ThumbDbRecord;

namespace
{

std::string Text(const std::string& text)
{
    return {static_cast<char>(text.size() & 0xFF), static_cast<char>(text.size() >> 8)};
}

std::string FileBytes(unsigned count, const std::vector<ThumbDbRecord>& records)
{
    std::string bytes{static_cast<char>(count), 0, 0, 0};
    for (const ThumbDbRecord& record : records) {
        bytes += Text(record.folderPath) + record.folderPath + Text(record.dbFileName) + record.dbFileName;
    }
    return bytes;
}

class ThumbDbMgr : public testing::Test
{
protected:
    std::string Folder(const std::string& name) const
    {
        std::filesystem::create_directories(services.folder.Path(name));
        return services.folder.Path(name);
    }
    std::string Bytes() const { return support::ReadBytes(managerPath); }
    // The records as a process that starts now reads them.
    std::vector<ThumbDbRecord> OnDisk() const
    {
        CThumbDbMgr fresh(dbFolder);
        fresh.Load();
        return {fresh.Records().begin(), fresh.Records().end()};
    }
    // A store with one folder of each name, "/name" with Tmb0.db and so on; returned ready for use.
    void Fill(CThumbDbMgr& manager, const std::vector<std::string>& names) const
    {
        manager.Load();
        for (const std::string& name : names) {
            manager.AddFolder(Folder(name));
        }
    }

    support::TestServices services;
    const std::string dbFolder = services.folder.Path("ThumbDB");
    const std::string managerPath = dbFolder + "/DbMgr.dmf";
};

}  // namespace

TEST_F(ThumbDbMgr, StartsWithFourZeroBytesAndGrowsByRecords)
{
    CThumbDbMgr manager(dbFolder);

    EXPECT_EQ(manager.Load(), 1);
    EXPECT_EQ(Bytes(), std::string(4, '\0'));
    EXPECT_EQ(services.utility.trace, "DB Manager Path : " + dbFolder + "\n");
    EXPECT_EQ(*manager.AddFolder("/Photos/"), "Tmb0.db");
    EXPECT_EQ(*manager.AddFolder("/photos"), "Tmb1.db");
    EXPECT_EQ(*manager.AddFolder("/Photos"), "Tmb0.db");

    EXPECT_EQ(Bytes(), FileBytes(2, {{"/Photos", "Tmb0.db"}, {"/photos", "Tmb1.db"}}));
    EXPECT_EQ(*manager.GetDbFileForFolder("/Photos/"), "Tmb0.db");
    EXPECT_EQ(manager.GetDbFileForFolder(""), nullptr);
    std::string path = "untouched";
    EXPECT_EQ(manager.GetDbPathForFile("/none/a.jpg", &path), 0U);
    EXPECT_EQ(path, "untouched");
    EXPECT_EQ(manager.GetDbPathForFile("/photos/a.jpg", &path), dbFolder.size() + 8);
    EXPECT_EQ(path, dbFolder + "/Tmb1.db");
}

TEST_F(ThumbDbMgr, StepsOverNumbersOfFilesAndOfRecords)
{
    Folder("ThumbDB");
    support::WriteBytes(dbFolder + "/Tmb0.db", "");
    support::WriteBytes(managerPath, FileBytes(1, {{"/a", "Tmb1.db"}}));
    CThumbDbMgr manager(dbFolder);
    manager.Load();

    EXPECT_EQ(*manager.AddFolder("/b"), "Tmb2.db");
}

TEST_F(ThumbDbMgr, KeepsWhatADamagedFileStillSays)
{
    struct Case {
        const char* name;
        std::string bytes;
        std::size_t loaded;
    };
    const std::string whole = FileBytes(2, {{"/a", "Tmb0.db"}, {"/b", "Tmb1.db"}});
    std::vector<Case> cases{
        {"count too high", FileBytes(3, {{"/a", "Tmb0.db"}, {"/b", "Tmb1.db"}}), 2},
        {"length beyond the end", FileBytes(2, {{"/a", "Tmb0.db"}}) + "\xff\xff/b", 1},
        {"archive outside the store", FileBytes(2, {{"/a", "../x"}, {"/b", "Tmb1.db"}}), 1},
        {"archive shared by two", FileBytes(2, {{"/a", "Tmb0.db"}, {"/b", "Tmb0.db"}}), 1},
        {"zero bytes", std::string(64, '\0'), 0},
        {"zero bytes counted", "\x09" + std::string(64, '\0'), 0},
    };
    for (std::size_t length = 0; length < whole.size(); ++length) {
        cases.push_back({"cut", whole.substr(0, length), length < 17 ? 0U : 1U});
    }
    Folder("ThumbDB");
    for (const Case& test : cases) {
        support::WriteBytes(managerPath, test.bytes);
        CThumbDbMgr manager(dbFolder);

        EXPECT_EQ(manager.Load(), test.loaded > 0 ? 1 : 0) << test.name;
        EXPECT_EQ(manager.Records().size(), test.loaded) << test.name << test.bytes.size();
        ASSERT_NE(manager.AddFolder("/new"), nullptr);
        EXPECT_EQ(OnDisk().size(), test.loaded + 1) << test.name << test.bytes.size();
    }
}

TEST_F(ThumbDbMgr, ChangesInMemoryReachTheFileWithSave)
{
    CThumbDbMgr manager(dbFolder);
    Fill(manager, {"a", "b", "c"});
    support::WriteBytes(dbFolder + "/Tmb0.db", "x");
    const std::string before = Bytes();

    EXPECT_EQ(manager.RemoveFolder(Folder("a") + "/"), 1);
    EXPECT_EQ(manager.RemoveFolder(Folder("a")), 0);
    EXPECT_EQ(manager.RenameFolder(Folder("b"), Folder("new") + "/"), 1);
    EXPECT_EQ(manager.GetDbFileForFolder(Folder("new")), nullptr);
    EXPECT_EQ(Bytes(), before);
    EXPECT_FALSE(std::filesystem::exists(dbFolder + "/Tmb0.db"));
    EXPECT_EQ(manager.Save(true), 1);

    EXPECT_EQ(Bytes(), FileBytes(2, {{Folder("new") + "/", "Tmb1.db"}, {Folder("c"), "Tmb2.db"}}));
    EXPECT_TRUE(manager.Records().empty());
}

TEST_F(ThumbDbMgr, ARecordAddedAfterARemovalIsNotLost)
{
    CThumbDbMgr manager(dbFolder);
    Fill(manager, {"a", "b"});

    manager.RemoveFolder(Folder("a"));
    manager.AddFolder(Folder("c"));

    EXPECT_EQ(OnDisk(), (std::vector<ThumbDbRecord>{{Folder("b"), "Tmb1.db"}, {Folder("c"), "Tmb2.db"}}));
}

TEST_F(ThumbDbMgr, SaveDropsVanishedFoldersAndTheirArchives)
{
    CThumbDbMgr manager(dbFolder);
    Fill(manager, {"gone", "here"});
    support::WriteBytes(dbFolder + "/Tmb0.db", "x");
    std::filesystem::remove(Folder("gone"));

    manager.Save(true);

    EXPECT_EQ(OnDisk(), (std::vector<ThumbDbRecord>{{Folder("here"), "Tmb1.db"}}));
    EXPECT_FALSE(std::filesystem::exists(dbFolder + "/Tmb0.db"));
    EXPECT_FALSE(std::filesystem::exists(dbFolder + "/DbMgr1.dmf"));
}

TEST_F(ThumbDbMgr, TwoProcessesOnOneStoreLoseNothing)
{
    CThumbDbMgr window(dbFolder);
    CThumbDbMgr command(dbFolder);
    Fill(window, {"a"});
    Fill(command, {"b"});

    EXPECT_EQ(*window.AddFolder(Folder("c")), "Tmb2.db");
    EXPECT_EQ(*command.AddFolder(Folder("c")), "Tmb2.db");
    std::filesystem::remove(Folder("a"));
    command.Save(true);
    EXPECT_EQ(*window.AddFolder(Folder("d")), "Tmb3.db");
    EXPECT_EQ(window.GetDbFileForFolder(services.folder.Path("a")), nullptr);
    window.Save(true);

    EXPECT_EQ(OnDisk(), (std::vector<ThumbDbRecord>{
                            {Folder("b"), "Tmb1.db"}, {Folder("c"), "Tmb2.db"}, {Folder("d"), "Tmb3.db"}}));
}

TEST_F(ThumbDbMgr, AFolderAddedWhileAnotherProcessMakesTheFileIsNotLost)
{
    // Between the making of a new file and the first write to it, another process adds a folder.
    class CCrossing : public support::CTestFileSystem
    {
    public:
        std::unique_ptr<platform::CFile> Open(const std::string& path, platform::OpenMode mode) override
        {
            auto file = CTestFileSystem::Open(path, mode);
            if (mode == platform::OpenMode::createNew && file) {
                added = other->AddFolder("/b") != nullptr;
            }
            return file;
        }
        CThumbDbMgr* other = nullptr;
        bool added = false;
    } crossing;
    CThumbDbMgr other(Folder("ThumbDB"));
    other.SetPatience(0);
    crossing.other = &other;

    {
        const support::CServicesGuard guard(crossing);
        CThumbDbMgr(dbFolder).Load();
    }

    EXPECT_EQ(OnDisk().size(), crossing.added ? 1U : 0U);
    EXPECT_NE(other.AddFolder("/b"), nullptr);
    EXPECT_EQ(OnDisk().size(), 1U);
}

TEST_F(ThumbDbMgr, AStopAtAnyStepLeavesTheOldRecordsOrTheNew)
{
    for (const support::Fault fault :
         {support::Fault::stop, support::Fault::cutShort, support::Fault::fail}) {
        for (std::size_t step = 0; step < 24; ++step) {
            std::filesystem::remove_all(dbFolder);
            CThumbDbMgr setUp(dbFolder);
            Fill(setUp, {"a", "b"});
            CThumbDbMgr manager(dbFolder);
            manager.Load();
            support::CFaultyFileSystem faulty(services.files);
            faulty.fault = fault;
            faulty.faultyStep = step;

            {
                const support::CServicesGuard guard(faulty);
                manager.AddFolder(Folder("c"));
                manager.Save(true);
            }

            const auto records = OnDisk();
            ASSERT_GE(records.size(), 2U) << step;
            EXPECT_EQ(records[0].folderPath, Folder("a"));
            EXPECT_EQ(records[1].folderPath, Folder("b"));
            EXPECT_TRUE(records.size() == 2 || records[2].folderPath == Folder("c"));
            EXPECT_EQ(*CThumbDbMgr(dbFolder).AddFolder(Folder("b")), "Tmb1.db");
        }
    }
}

TEST_F(ThumbDbMgr, WithoutAFolderOrItsLockThereIsNoStore)
{
    CThumbDbMgr none;
    CThumbDbMgr manager(dbFolder);
    manager.Load();
    CThumbDbMgr second(dbFolder);
    second.SetPatience(0);
    const auto held = manager.LockStore();

    EXPECT_EQ(none.Load(), 0);
    EXPECT_EQ(none.AddFolder("/a"), nullptr);
    EXPECT_EQ(none.Save(true), 1);
    EXPECT_EQ(second.AddFolder("/a"), nullptr);
    EXPECT_EQ(second.AddFolder(""), nullptr);
    EXPECT_EQ(second.AddFolder(std::string(70000, 'x')), nullptr);
}
