// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The order of the camera copy, over a library that only notes what it is asked.
#include "handset/camera_copy.h"

#include "support/test_services.h"

#include <gmock/gmock.h>

#include <functional>

namespace
{

using handset::CCameraCopy;
using testing::ElementsAre;
using testing::IsEmpty;
using Lines = std::vector<std::string>;

// Notes its calls, "up 1.2 DSC00002." being photo 2 to a file of that name in the copy's folder.
class CNotingModule : public platform::CMsdModule
{
public:
    Lines calls;
    bool isThere = true;
    int photos = 3;
    int clips = 2;
    unsigned failsAt = 0;  // the upload that fails, from 1
    unsigned uploads = 0;
    std::function<void()> duringUpload = [] {};
    std::string lastPath;
    platform::MsdFailure lastFailure = platform::MsdFailure::other;

    void UnInitMsd() override { calls.emplace_back("uninit"); }
    int InitMsd(const std::string& file, char drive, int kind) override
    {
        calls.push_back("init " + file + " " + std::to_string(drive) + " " + std::to_string(kind));
        return isThere ? 1 : 0;
    }
    int GetFileCount(int kind, int* count) override
    {
        calls.push_back("count " + std::to_string(kind));
        *count = (kind & 1 ? photos : 0) + (kind & 2 ? clips : 0);
        return 1;
    }
    int UploadFile(int device, unsigned number, unsigned kind, const std::string& path,
                   Progress progress) override
    {
        EXPECT_EQ(device, 1);
        EXPECT_EQ(progress, nullptr);
        lastPath = path;
        calls.push_back("up " + std::to_string(kind) + "." + std::to_string(number) + " " +
                        path.substr(path.rfind('/') + 1));
        ++uploads;
        duringUpload();
        return uploads == failsAt ? 0 : 1;
    }
    void Abort(int reason) override { calls.push_back("abort " + std::to_string(reason)); }
    int DeleteMsdFile(int kind, int number) override
    {
        calls.push_back("delete " + std::to_string(kind) + " " + std::to_string(number));
        return 1;
    }
    std::string UploadedPath() const override { return lastPath + "JPG"; }
    std::string LastError() const override { return "pulled"; }
    platform::MsdFailure LastFailure() const override { return lastFailure; }
    Lines LeftOut() const override { return {}; }
    std::optional<platform::MsdSurvey> Survey(const std::string&) const override { return std::nullopt; }
};

class CNotingHost : public handset::CCameraCopyHost
{
public:
    Lines shown;
    int answer = handset::kBoxYes;

    void ShowMessage(platform::StringId text) override
    {
        shown.push_back(text == platform::StringId::cameraNotAvailable ? "not available"
                        : text == platform::StringId::cameraNoPhoto    ? "no photo"
                                                                       : "?");
    }
    int AskYesNo(platform::StringId text) override
    {
        shown.push_back(text == platform::StringId::cameraDeleteAll ? "delete all?" : "?");
        return answer;
    }
    void ShowCount(int copied, int total) override
    {
        shown.push_back(std::to_string(copied) + " of " + std::to_string(total));
    }
};

class CameraCopy : public testing::Test
{
protected:
    // The whole life of a copy as the dialog drives it.
    void Run()
    {
        CCameraCopy copy(module, plan, host);
        bool more = copy.Start();
        while (more)
            more = copy.Step();
        copy.Finish();
        folder = copy.Folder();
        files = copy.Files();
        numbers = copy.Numbers();
        failure = copy.Failure();
        trouble = copy.WhatFailed();
    }
    Lines Uploads() const
    {
        Lines uploads;
        std::copy_if(module.calls.begin(), module.calls.end(), std::back_inserter(uploads),
                     [](const std::string& call) { return call.starts_with("up "); });
        return uploads;
    }

    support::TestServices services;
    CNotingModule module;
    CNotingHost host;
    handset::CameraCopyPlan plan{"/program", services.folder.Path() + "/a/b/", 0, {}};
    std::string folder;
    Lines files;
    handset::CameraNumbers numbers;
    std::string failure;
    CCameraCopy::Trouble trouble = CCameraCopy::Trouble::none;
};

}  // namespace

TEST_F(CameraCopy, CallsTheLibraryInItsOrderAndCountsEachFile)
{
    module.photos = 1;
    module.clips = 1;

    Run();

    EXPECT_THAT(module.calls, ElementsAre("uninit", "init /program/Dev.ini 0 3", "count 3", "count 1",
                                          "count 2", "up 1.1 DSC00001.", "count 1", "count 2",
                                          "up 2.1 AVI00001.", "abort 0", "uninit"));
    EXPECT_THAT(host.shown, ElementsAre("0 of 2", "1 of 2", "2 of 2"));
    EXPECT_THAT(files, ElementsAre(folder + "/DSC00001.JPG", folder + "/AVI00001.JPG"));
}

TEST_F(CameraCopy, MakesEveryLevelOfAFolderNamedByTheStartAndUsesOneThatIsThere)
{
    setenv("TZ", "UTC", 1);
    EXPECT_EQ(handset::CameraFolderName(130'000'000'000'000'000), "12-14-2012 23-06-40");

    for (int time = 0; time < 2; ++time) {
        Run();
        EXPECT_EQ(folder,
                  services.folder.Path() + "/a/b/" + handset::CameraFolderName(130'000'000'000'000'000));
        EXPECT_TRUE(std::filesystem::is_directory(folder));
    }
    module.calls.clear();
    plan.downloadFolder.clear();
    Run();
    EXPECT_EQ(trouble, CCameraCopy::Trouble::noPlace);
    support::WriteBytes(services.folder.Path("file"), "");
    plan.downloadFolder = services.folder.Path("file") + "/below/it";
    Run();
    EXPECT_EQ(trouble, CCameraCopy::Trouble::noFolder);
    EXPECT_EQ(failure, "Not a directory");
    EXPECT_THAT(Uploads(), IsEmpty());
}

TEST_F(CameraCopy, NumbersByPlaceOrByTheCountersThatKeepRising)
{
    struct Case {
        handset::CameraNumbers before;
        Lines uploads;
        int photoAfter;
        int clipAfter;
    };
    for (const Case& test : {Case{{false, 41, 7},
                                  {"up 1.1 DSC00001.", "up 1.2 DSC00002.", "up 1.3 DSC00003.",
                                   "up 2.1 AVI00001.", "up 2.2 AVI00002."},
                                  41,
                                  7},
                             Case{{true, 41, 99999},
                                  {"up 1.1 DSC00041.", "up 1.2 DSC00042.", "up 1.3 DSC00043.",
                                   "up 2.1 AVI99999.", "up 2.2 AVI100000."},
                                  44,
                                  100001}}) {
        module.calls.clear();
        plan.numbers = test.before;

        Run();

        EXPECT_EQ(Uploads(), test.uploads);
        EXPECT_EQ(numbers.photo, test.photoAfter);
        EXPECT_EQ(numbers.clip, test.clipAfter);
    }
}

TEST_F(CameraCopy, SaysWhyThereIsNothingToCopyAndMakesNoFolder)
{
    module.isThere = false;
    Run();
    module.isThere = true;
    module.photos = module.clips = 0;
    Run();

    EXPECT_THAT(host.shown, ElementsAre("not available", "no photo"));
    EXPECT_THAT(module.calls, ElementsAre("uninit", "init /program/Dev.ini 0 3", "uninit", "uninit",
                                          "init /program/Dev.ini 0 3", "count 3", "uninit"));
    EXPECT_FALSE(std::filesystem::exists(services.folder.Path() + "/a"));
}

TEST_F(CameraCopy, DeletesOnlyWithoutAskingAndOnlyAfterAWholeRun)
{
    struct Case {
        int setting;
        int answer;
        unsigned failsAt;
        bool deletes;
        bool asks;
    };
    for (const Case& test :
         {Case{0, handset::kBoxYes, 0, false, false}, Case{1, handset::kBoxNo, 0, true, false},
          Case{2, handset::kBoxYes, 0, false, true}, Case{2, handset::kBoxNo, 0, false, true},
          Case{2, handset::kBoxOk, 0, true, true}, Case{1, handset::kBoxYes, 5, false, false},
          Case{2, handset::kBoxOk, 2, false, false}}) {
        module.calls.clear();
        module.uploads = 0;
        module.failsAt = test.failsAt;
        host.shown.clear();
        host.answer = test.answer;
        plan.delDscPhoto = test.setting;

        Run();

        const auto deletions = std::count(module.calls.begin(), module.calls.end(), "delete 3 0");
        EXPECT_EQ(deletions, test.deletes ? 1 : 0) << test.setting << test.answer << test.failsAt;
        EXPECT_EQ(std::count(host.shown.begin(), host.shown.end(), "delete all?"), test.asks ? 1 : 0);
    }
}

TEST_F(CameraCopy, EndsAtAFailureAStopOrACancelAndKeepsWhatWasCopied)
{
    plan.delDscPhoto = 1;
    plan.numbers = {true, 41, 0};
    module.failsAt = 2;
    Run();
    EXPECT_EQ(failure, "pulled");
    EXPECT_EQ(trouble, CCameraCopy::Trouble::other);
    EXPECT_EQ(numbers.photo, 42);
    EXPECT_THAT(files, ElementsAre(folder + "/DSC00041.JPG"));
    EXPECT_THAT(host.shown, ElementsAre("0 of 5", "1 of 5"));
    EXPECT_THAT(Lines(module.calls.end() - 3, module.calls.end()),
                ElementsAre("up 1.2 DSC00042.", "abort 1", "uninit"));

    for (const auto& [why, what] :
         {std::pair{platform::MsdFailure::storeGone, CCameraCopy::Trouble::storeGone},
          {platform::MsdFailure::diskFull, CCameraCopy::Trouble::diskFull}}) {
        module.lastFailure = why;
        module.uploads = 0;
        Run();
        EXPECT_EQ(trouble, what);
    }

    module.failsAt = 0;
    for (const bool isCancel : {false, true}) {
        module.calls.clear();
        CCameraCopy copy(module, plan, host);
        ASSERT_TRUE(copy.Start());
        module.duringUpload = [&] { isCancel ? copy.Cancel() : copy.Stop(); };
        EXPECT_FALSE(copy.Step());
        EXPECT_FALSE(copy.Step());
        copy.Finish();
        EXPECT_EQ(copy.Failure(), "");
        EXPECT_THAT(Lines(module.calls.end() - 2, module.calls.end()),
                    ElementsAre("up 1.1 DSC00041.", isCancel ? "abort 0" : "abort 1"));
    }
}

TEST_F(CameraCopy, ThatIsTornDownWhileItRunsIsAborted)
{
    {
        CCameraCopy copy(module, plan, host);
        ASSERT_TRUE(copy.Start());
        ASSERT_TRUE(copy.Step());
        module.calls.clear();
    }
    EXPECT_THAT(module.calls, ElementsAre("abort 1", "uninit"));
}
