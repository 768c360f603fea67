// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "handset/record_file.h"
#include "platform_linux/services.h"
#include "simulator.h"
#include "suite/handset/handset_library.h"
#include "suite/handset/handset_session.h"
#include "support/services_guard.h"
#include "support/test_services.h"

#include <gmock/gmock.h>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>

#include <csignal>
#include <thread>

namespace
{

using platform::FileDataType;
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<int> percentages;
platform::CUpDownLoad* toAbort = nullptr;

// For silence that is meant; all else has the time that it needs.
constexpr suite::LinePatience kImpatience{100, 100, 100, 50, 100, 400, 400};

std::string Noise(std::size_t size)
{
    std::string bytes(size, '\0');
    unsigned state = 12345;
    for (char& byte : bytes)
        byte = static_cast<char>((state = state * 1664525U + 1013904223U) >> 24);
    return bytes;
}

class Transfer : public testing::Test
{
protected:
    Transfer()
        : guard(platform::Services{}),
          patient({[this](unsigned port) { return port == 3 ? simulator.Port() : ""; },
                   handset::AddHandsetRecord, suite::LinePatience{.settling = 20}}),
          impatient({patient.Host().deviceOfPort, handset::AddHandsetRecord, kImpatience})
    {
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) {
            ADD_FAILURE() << text.toStdString();
        });
        services.Install();
        platform::Os().handset = &patient;
        percentages.clear();
        platform::SetProgressFunc([](int percent) {
            percentages.push_back(percent);
            if (toAbort && percent >= 20)
                toAbort->Abort();
        });
    }
    ~Transfer() override { toAbort = nullptr; }

    std::unique_ptr<platform::CUpDownLoad> NewLink()
    {
        auto link = platform::Os().handset->NewUpDownLoad();
        link->SetConnectPort(3);
        return link;
    }
    int Send(const std::string& path, FileDataType type = FileDataType::photo)
    {
        const auto link = NewLink();
        link->SetDataType({type, path, "", 0});
        toAbort = aborts ? link.get() : nullptr;
        const int result = link->StartUpload(code);
        error = link->LastError();
        return result;
    }
    int Fetch(int position, FileDataType type = FileDataType::photo)
    {
        const auto link = NewLink();
        link->SetDatabaseName(records);
        link->SetDataType({type, "", "", position});
        toAbort = aborts ? link.get() : nullptr;
        const int result = link->StartDownload(code);
        error = link->LastError();
        return result;
    }
    std::vector<std::string> FetchedNames()
    {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder.Path()))
            names.push_back(entry.path().filename().string());
        std::ranges::sort(names);
        return names;
    }

    CSimulator simulator;
    support::CTempFolder folder;
    support::CServicesGuard guard;
    platform_linux::CLinuxServices services;
    suite::CHandsetLibrary patient;
    suite::CHandsetLibrary impatient;
    const std::string records = folder.Path("mobilefile.dbs");
    int code = 0;
    bool aborts = false;
    std::string error;
};

TEST_F(Transfer, FilesOfAnySizeGoThereAndComeBack)
{
    support::CTempFolder source;
    const auto held = NewLink();
    ASSERT_EQ(held->ATInit(), 1) << held->LastError();
    EXPECT_EQ(held->Manufacturer() + "," + held->Model(), "Halden,Tessa 1");
    int count = 0;
    for (const std::size_t size : {0, 1, 8180, 8192, 70'000, 1 << 20}) {
        SCOPED_TRACE(size);
        const std::string name = "f" + std::to_string(count) + ".jpg";
        const std::string bytes = Noise(size);

        ASSERT_EQ(Send(source.Make(name, bytes)), 1) << error;
        EXPECT_EQ(percentages.front(), 0);
        EXPECT_EQ(percentages.back(), 100);
        ASSERT_EQ(held->GetFileCount(FileDataType::photo), ++count);
        percentages.clear();
        ASSERT_EQ(Fetch(count - 1), 1) << error;

        EXPECT_TRUE(support::ReadBytes(simulator.root.Path("My Album/" + name)) == bytes);
        EXPECT_TRUE(support::ReadBytes(folder.Path(name)) == bytes);
        EXPECT_NE(handset::FindHandsetIndex(records, name), 0);
        EXPECT_TRUE(std::ranges::is_sorted(percentages));
    }
}

TEST_F(Transfer, SixHundredFilesWithLongNamesAreCountedAndFetched)
{
    const std::string longName(190, 'n');
    for (int i = 0; i < 600; ++i)
        support::WriteBytes(simulator.root.Path("Ring/" + longName + std::to_string(1000 + i) + ".mmf"), "x");

    std::thread([this] {
        const auto held = NewLink();
        EXPECT_EQ(held->GetFileCount(FileDataType::ring), 600) << held->LastError();
        EXPECT_EQ(held->GetFileCount(FileDataType::frame), 0);
        EXPECT_EQ(held->GetFileCount(FileDataType::subWallpaper), 0) << "a folder that it does not have";
        EXPECT_EQ(Fetch(599, FileDataType::ring), 1) << error;
        EXPECT_EQ(Fetch(600, FileDataType::ring), 0);
    }).join();

    EXPECT_THAT(FetchedNames(), ElementsAre("mobilefile.dbs", longName + "1599.mmf"));
}

TEST_F(Transfer, AFaultAnywhereLeavesNothingAndTheNextTransferWorks)
{
    struct Case {
        const char* fault;
        int sendResult;
        int fetchResult;
        bool isSilence = false;
    };
    constexpr Case kCases[] = {
        {"silent", 0, 0, true},
        {"dumb", 0, 0},
        {"garbage", 0, 0, true},
        {"connect:0:unplug", 0, 0},
        {"connect:0:stall", 0, 0, true},
        {"path:0:unplug", 0, 0},
        {"path:0:stall", 0, 0, true},
        {"path:0:0x41", 0, 0},
        {"connect:0:0x43", 0, 0},
        {"put:0:unplug", 0, 1},
        {"put:30000:unplug", 0, 1},
        {"put:30000:stall", 0, 1, true},
        {"put:0:stall", 0, 1, true},
        {"put:60000:unplug", 0, 1},
        {"put:0:0x60", -2, 1},
        {"put:30000:0x60", -2, 1},
        {"put:30000:0x50", -2, 1},
        {"put:30000:0x50 room:0:0x44", 0, 1},
        {"put:30000:0x50 room:50:unplug", 0, 1},
        {"put:30000:0x4D", -2, 1},
        {"put:30000:0x43", 0, 1},
        {"list:0:0x61", 1, 0},
        {"list:50:unplug", 1, 0},
        {"list:0:stall", 1, 0, true},
        {"endless", 1, 0},
        {"get:0:stall", 1, 0, true},
        {"get:0:0x44", 1, 0},
        {"get:30000:unplug", 1, 0},
        {"get:30000:stall", 1, 0, true},
        {"get:60000:unplug", 1, 0},
        {"leave:0:unplug", 1, 1},
        {"leave:0:stall", 1, 1},
        {"threewire", 1, 1},
        {"split:1", 1, 1},
        {"slow:9000000", 1, 1},
    };
    support::CTempFolder source;
    const std::string bytes = Noise(60'000);
    const std::string path = source.Make("new.jpg", bytes);
    for (const Case& item : kCases) {
        SCOPED_TRACE(item.fault);
        support::WriteBytes(simulator.root.Path("My Album/a.jpg"), bytes);

        simulator.SetFaults(item.fault);
        platform::Os().handset = item.isSilence && item.sendResult != 1 ? &impatient : &patient;
        EXPECT_EQ(Send(path), item.sendResult) << error;
        EXPECT_EQ(error.empty(), item.sendResult == 1);
        platform::Os().handset = item.isSilence && item.fetchResult != 1 ? &impatient : &patient;
        EXPECT_EQ(Fetch(0), item.fetchResult) << error;
        EXPECT_EQ(FetchedNames().empty(), item.fetchResult != 1);
        simulator.SetFaults("");
        platform::Os().handset = &patient;

        EXPECT_EQ(Send(path), 1) << error;
        EXPECT_TRUE(support::ReadBytes(simulator.root.Path("My Album/new.jpg")) == bytes);
        EXPECT_EQ(Fetch(0), 1) << error;
        EXPECT_TRUE(support::ReadBytes(folder.Path("a.jpg")) == bytes);
        for (const std::string& name : FetchedNames())
            std::filesystem::remove(folder.Path(name));
    }
    EXPECT_TRUE(support::ReadBytes(path) == bytes);
}

TEST_F(Transfer, WhatAHandsetKeptOfAFileGoesBeforeTheNextSendingOfIt)
{
    support::CTempFolder source;
    const std::string path = source.Make("a.jpg", Noise(60'000));
    simulator.SetFaults("put:30000:unplug");
    EXPECT_EQ(Send(path), 0);
    simulator.SetFaults("keep");
    support::WriteBytes(simulator.root.Path("My Album/a.jpg"), Noise(30'000));

    EXPECT_EQ(Send(path), 1) << error;
    EXPECT_EQ(Send(path), 0) << "what is whole is left to the handset";

    EXPECT_TRUE(support::ReadBytes(simulator.root.Path("My Album/a.jpg")) == Noise(60'000));
}

TEST_F(Transfer, AnEnemysNamesAndSizesEndUpAsPlainFilesOfTheFolder)
{
    simulator.SetFaults("hostile");
    const auto held = NewLink();
    const int count = held->GetFileCount(FileDataType::photo);
    for (int i = 0; i < count; ++i)
        EXPECT_EQ(Fetch(i), 1) << error;

    EXPECT_EQ(count, 7) << "one has a zero in its name";
    EXPECT_THAT(FetchedNames(),
                ElementsAre("_._.._up.jpg", "_etc_a.jpg", "_gpj.exe", "_hidden", "a_b.jpg",
                            "mobilefile (2).dbs", "mobilefile.dbs", std::string(236, 'n') + ".jpg"));
    EXPECT_EQ(support::ReadBytes(folder.Path("_._.._up.jpg")), "foreign");
    EXPECT_EQ(support::ReadBytes(records).size(), 7 * handset::kRecordSize);
}

TEST_F(Transfer, AFullDiskOnThisSideIsToldApartAndLeavesNothing)
{
    support::WriteBytes(simulator.root.Path("My Album/a.jpg"), Noise(60'000));
    signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const auto held = NewLink();
    ASSERT_EQ(held->ATInit(), 1) << held->LastError();
    for (const rlim_t most : {rlim_t(0), rlim_t(30'000)}) {
        const rlimit small{most, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
        EXPECT_EQ(Fetch(0), -2);
        setrlimit(RLIMIT_FSIZE, &before);
        EXPECT_THAT(error, testing::HasSubstr("too large"));
        EXPECT_THAT(FetchedNames(), IsEmpty());
        ASSERT_EQ(held->ATInit(), 1) << held->LastError();
    }

    std::filesystem::create_directory(records);
    EXPECT_EQ(Fetch(0), 0) << "no want of room";
    EXPECT_THAT(FetchedNames(), ElementsAre("mobilefile.dbs"));
}

TEST_F(Transfer, OneThatIsStoppedLeavesNothingAndTheNextWorks)
{
    support::CTempFolder source;
    const std::string path = source.Make("a.jpg", Noise(200'000));
    support::WriteBytes(simulator.root.Path("Ring/b.mmf"), Noise(200'000));
    aborts = true;
    EXPECT_EQ(Send(path), platform::kHandsetCancelled);
    EXPECT_EQ(Fetch(0, FileDataType::ring), platform::kHandsetCancelled);
    EXPECT_THAT(FetchedNames(), IsEmpty());
    EXPECT_LT(*std::ranges::max_element(percentages), 100);
    aborts = false;

    EXPECT_EQ(Send(path), 1) << error;
    EXPECT_EQ(Fetch(0, FileDataType::ring), 1) << error;
}

TEST_F(Transfer, AFileThatIsThereIsNeverReplaced)
{
    support::WriteBytes(simulator.root.Path("My Album/a.jpg"), "from the handset");
    folder.Make("a.jpg", "mine");

    EXPECT_EQ(Fetch(0), 1) << error;
    EXPECT_EQ(Fetch(0), 1) << error;

    EXPECT_THAT(FetchedNames(), ElementsAre("a (2).jpg", "a.jpg", "mobilefile.dbs"));
    EXPECT_EQ(support::ReadBytes(folder.Path("a.jpg")), "mine");
    EXPECT_EQ(support::ReadBytes(folder.Path("a (2).jpg")), "from the handset");
    EXPECT_EQ(support::ReadBytes(records).size(), handset::kRecordSize);
}

TEST_F(Transfer, ADeletedFileIsTheOneOfTheRecordWhicheverFolderItIsIn)
{
    for (const char* name : {"My Album/a.jpg", "Main Wallpaper/a.jpg", "Ring/a.jpg"})
        support::WriteBytes(simulator.root.Path(name), "x");
    ASSERT_EQ(Fetch(0), 1) << error;
    const int index = handset::FindHandsetIndex(records, "a.jpg");
    const auto held = NewLink();

    EXPECT_EQ(held->DeleteFileMobile(FileDataType::ring, index), 0);
    simulator.SetFaults("delete:0:0x43");
    EXPECT_EQ(held->DeleteFileMobile(FileDataType::mainWallpaper, index), 0);
    simulator.SetFaults("");
    EXPECT_EQ(held->DeleteFileMobile(FileDataType::mainWallpaper, 0), 0);
    EXPECT_EQ(held->DeleteFileMobile(FileDataType::mainWallpaper, index), 1) << held->LastError();
    EXPECT_EQ(held->DeleteFileMobile(FileDataType::mainWallpaper, index), 0);

    EXPECT_FALSE(std::filesystem::exists(simulator.root.Path("My Album/a.jpg")));
    EXPECT_TRUE(std::filesystem::exists(simulator.root.Path("Main Wallpaper/a.jpg")));
    EXPECT_TRUE(std::filesystem::exists(simulator.root.Path("Ring/a.jpg")));
}

TEST_F(Transfer, APortWithoutALineFails)
{
    const auto link = platform::Os().handset->NewUpDownLoad();

    EXPECT_EQ(link->SetConnectPort(4), 0);
    EXPECT_EQ(link->ATInit(), 0);
    EXPECT_EQ(link->GetFileCount(FileDataType::ring), -1);
    EXPECT_EQ(link->DeleteFileMobile(FileDataType::ring, 1), 0);
    EXPECT_EQ(link->LastError(), "no line is known for port 4");
}

TEST_F(Transfer, FoldersOfTheModelComeBeforeThoseOfAllAndTheInstalledFileShowsTheDefaults)
{
    support::CTestUtility utility(*platform::Os().profiles);
    platform::Os().utility = &utility;
    utility.programFolder = folder.Path();
    std::vector<std::string> defaults;
    for (int type = 1; type < 10; ++type)
        defaults.push_back(suite::HandsetFolder(static_cast<FileDataType>(type), ""));
    std::string installed = support::ReadBytes(KELVO_HANDSET_INI);
    for (std::size_t at = installed.find("\n;"); at != std::string::npos;
         at = installed.find("\n;", at + 1)) {
        if (isdigit(installed.at(at + 2)))
            installed.erase(at + 1, 1);
    }
    folder.Make("Handset.ini", installed);
    for (int type = 1; type < 10; ++type)
        EXPECT_EQ(suite::HandsetFolder(static_cast<FileDataType>(type), "Other"), defaults[type - 1]);

    folder.Make("Handset.ini", "[Folders]\n7=Frame\n6=Frame\n[folders TESSA 1]\n7=//My Album/deep/\n");
    std::filesystem::create_directory(simulator.root.Path("My Album/deep"));
    EXPECT_EQ(Send(folder.Make("a.mmf", "a"), FileDataType::ring), 1) << error;
    EXPECT_EQ(Send(folder.Make("b.jpg", "b")), 1) << error;
    EXPECT_EQ(support::ReadBytes(simulator.root.Path("My Album/deep/a.mmf")), "a");
    EXPECT_EQ(support::ReadBytes(simulator.root.Path("Frame/b.jpg")), "b");
}

TEST_F(Transfer, AHandsetThatDidNotAnswerIsAskedAgainOnlyByTheNextGreeting)
{
    platform::Os().handset = &impatient;
    const auto held = NewLink();
    simulator.SetFaults("silent");
    EXPECT_EQ(held->GetFileCount(FileDataType::ring), -1);
    simulator.SetFaults("");

    EXPECT_EQ(held->GetFileCount(FileDataType::ring), -1) << "a run of many files would take minutes";
    EXPECT_THAT(held->LastError(), testing::HasSubstr("no handset answers"));
    EXPECT_EQ(held->ATInit(), 1) << held->LastError();
    EXPECT_EQ(held->GetFileCount(FileDataType::ring), 0) << held->LastError();
}

TEST_F(Transfer, ALineThatCannotBeHadSaysWhichItIsAndWhatToDo)
{
    const std::string device = std::filesystem::canonical(simulator.Port()).string();
    suite::CHandsetLibrary direct({[&](unsigned) { return device; }, handset::AddHandsetRecord, {}});
    const auto link = direct.NewUpDownLoad();
    link->SetConnectPort(1);
    const int other = open(device.c_str(), O_RDWR | O_NOCTTY);
    ASSERT_EQ(flock(other, LOCK_EX), 0);

    EXPECT_EQ(link->ATInit(), 0);
    EXPECT_EQ(link->LastError(),
              device + ": Device or resource busy (another program uses it; ModemManager may)");
    close(other);
    EXPECT_EQ(link->ATInit(), 1) << link->LastError();

    const auto later = direct.NewUpDownLoad();
    later->SetConnectPort(2);
    std::filesystem::permissions(device, {});
    const bool isRoot = geteuid() == 0;  // whom no permission keeps out
    ASSERT_EQ(isRoot ? setresuid(65534, 65534, 0) : 0, 0);
    EXPECT_EQ(later->ATInit(), 0);
    ASSERT_EQ(isRoot ? setresuid(0, 0, 0) : 0, 0);
    EXPECT_EQ(later->LastError(),
              device + ": Permission denied (users of serial lines belong to the group dialout)");
}

}  // namespace
