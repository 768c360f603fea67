// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Sending and fetching, over a link that only notes what it is asked. Pictures are text files "WIDTHxHEIGHT".
#include "handset/handset_fetch.h"
#include "handset/handset_send.h"
#include "handset/noting_link.h"
#include "handset/send_plan.h"
#include "support/test_services.h"

#include <gmock/gmock.h>

namespace
{

using handset::DescriptorFault;
using handset::SendVerdict;
using handset::TransferEnd;
using platform::FileDataType;
using testing::ElementsAre;
using testing::IsEmpty;
using Lines = std::vector<std::string>;

class CNotingHost : public handset::CTransferHost
{
public:
    Lines shown;
    void ShowStatus(platform::StringId text, const std::string&) override
    {
        shown.push_back("status " + Name(text));
    }
    void ShowMessage(platform::StringId text, const std::string&) override { shown.push_back(Name(text)); }
    void ShowCounter(int number, int total) override
    {
        shown.push_back(std::to_string(number) + "/" + std::to_string(total));
    }

private:
    static std::string Name(platform::StringId text)
    {
        using enum platform::StringId;
        const std::pair<platform::StringId, const char*> names[] = {
            {handsetNoHandset, "no handset"},  {handsetNoSpace, "no space"},
            {handsetTransferFailed, "failed"}, {handsetNoItem, "no item"},
            {handsetBadDescriptor, "bad JAD"}, {handsetSuccessful, "successful"},
            {handsetCancelled, "cancelled"}};
        const auto* found =
            std::ranges::find(names, text, &std::pair<platform::StringId, const char*>::first);
        return found == std::end(names) ? "?" : found->second;
    }
};

class Transfer : public testing::Test
{
protected:
    Transfer() { platform::Os().handset = &link; }

    std::string Make(const std::string& name, const std::string& content)
    {
        support::WriteBytes(services.folder.Path(name), content);
        return services.folder.Path(name);
    }
    static TransferEnd Run(handset::CTransferRun& run)
    {
        for (bool goesOn = run.Start(); goesOn; goesOn = run.Step()) {
        }
        return run.Finish();
    }
    bool HasTemporaryFiles()
    {
        const std::filesystem::recursive_directory_iterator all(services.files.GetTempPath());
        return std::any_of(begin(all), end(all), [](const auto& entry) { return entry.is_regular_file(); });
    }
    TransferEnd Send(const Lines& paths)
    {
        handset::CHandsetSend run(paths, 3, host);
        return Run(run);
    }
    TransferEnd Fetch(const handset::FetchChoice& choice)
    {
        handset::CHandsetFetch run(choice, services.folder.Path("."), 3, host);
        return Run(run);
    }

    support::TestServices services;
    CNotingLink link;
    CNotingHost host;
};

TEST_F(Transfer, PicturesAreFittedToTheScreenInWholePixels)
{
    const std::tuple<handset::PictureSize, handset::PictureSize> cases[] = {
        {{200, 100}, {128, 64}},  {{100, 300}, {53, 160}},
        {{128, 160}, {128, 160}}, {{129, 160}, {128, 158}},
        {{128, 161}, {127, 160}}, {{60'000, 10}, {128, 1}},
        {{0, 0}, {0, 0}},         {{1'000'000'000, 1'250'000'000}, {128, 160}}};
    for (const auto& [size, fitted] : cases)
        EXPECT_EQ(handset::FitScreen(size), fitted) << size.width << "x" << size.height;
}

TEST_F(Transfer, EachFileGoesAsWhatItIs)
{
    const std::string archive = Make("game.jar", "classes");
    Make("game.jad", "MIDlet-Version: 1\r\nMIDlet-Name: Game\r\n");

    const TransferEnd end =
        Send({Make("small.JPG", "100x100"), Make("large.png", "200x100 date"), Make("p.BMP", "20x10"),
              Make("q.Bmp", "20x10"), Make("wide.tif", "1000x100"), Make("broken.bmp", "no picture"),
              Make("t.MID", "no tune"), Make("r.mmf", "MMMD"), services.folder.Path("game.jad"),
              Make("a.sss", "frames"), Make("clip.avi", "200x100"), archive});

    EXPECT_EQ(end, TransferEnd::finished);
    EXPECT_THAT(link.calls,
                ElementsAre("send 6 small.JPG (100x100)", "send 6 large.jpg (128x64)", "send 6 p.jpg (20x10)",
                            "send 6 q.Bmp (20x10)", "send 6 wide.jpg (128x12)",
                            "send 6 broken.bmp (no picture)", "send 7 t.MID (no tune)", "send 7 r.mmf (MMMD)",
                            "send 8 game.jad with game.jar (MIDlet-Version: 1\r\nMIDlet-Name: Game\r\n)",
                            "send 1 a.sss (frames)", "send 6 clip.avi (200x100)",
                            "send 6 game.jar (classes)"));
    EXPECT_FALSE(link.connectionLost);
    EXPECT_EQ(link.alive, 0);
    EXPECT_EQ(host.shown.front(), "1/12");
    EXPECT_EQ(host.shown.back(), "successful");
    // What stays is the JPEG of the small bitmap, and nothing beside the other sources.
    EXPECT_TRUE(std::filesystem::exists(services.folder.Path("p.jpg")));
    EXPECT_FALSE(std::filesystem::exists(services.folder.Path("large.jpg")));
    EXPECT_FALSE(std::filesystem::exists(services.folder.Path("wide.jpg")));
    EXPECT_FALSE(HasTemporaryFiles());
}

TEST_F(Transfer, AJpegNeverTakesThePlaceOfAFile)
{
    const std::string mine = Make("p.jpg", "my picture");

    Send({Make("p.bmp", "20x10")});

    EXPECT_THAT(link.calls, ElementsAre("send 6 p.jpg (20x10)"));
    EXPECT_EQ(support::ReadBytes(mine), "my picture");
}

TEST_F(Transfer, SendingEndsWhereItHasTo)
{
    const std::string photo = Make("a.jpg", "10x10");
    const std::string tone = Make("long.mmf", std::string(65'537, 'x'));
    const std::string descriptor = Make("alone.jad", "MIDlet-Name: Alone");
    const struct {
        Lines paths;
        std::map<int, int> results;
        bool isThere;
        TransferEnd end;
        Lines shown;
        std::size_t sent;
    } cases[] = {
        {{photo}, {}, false, TransferEnd::stopped, {"status no handset"}, 0},
        {{photo, photo, photo}, {{2, -2}}, true, TransferEnd::failed, {"1/3", "2/3", "no space"}, 2},
        {{photo, photo, photo}, {{2, 0}}, true, TransferEnd::failed, {"1/3", "2/3", "failed"}, 2},
        {{photo, descriptor, photo}, {}, true, TransferEnd::stopped, {"1/3", "2/3", "bad JAD"}, 1},
        {{photo, tone, photo}, {}, true, TransferEnd::stopped, {"1/3", "2/3"}, 1},
        {{}, {}, true, TransferEnd::stopped, {}, 0},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(testing::PrintToString(one.shown));
        CNotingLink fresh;
        platform::Os().handset = &fresh;
        fresh.results = one.results;
        fresh.isThere = one.isThere;
        host.shown.clear();

        EXPECT_EQ(Send(one.paths), one.end);

        EXPECT_EQ(host.shown, one.shown);
        EXPECT_EQ(fresh.calls.size(), one.sent);
    }
}

TEST_F(Transfer, AUserWhoGivesUpIsToldOnceAndTheFileIsNotCalledFailed)
{
    handset::CHandsetSend run({Make("large.png", "200x100"), Make("b.jpg", "10x10")}, 3, host);
    link.results[1] = platform::kHandsetCancelled;
    link.duringTransfer = [&](int) { run.Cancel(); };

    EXPECT_EQ(Run(run), TransferEnd::cancelled);

    EXPECT_THAT(host.shown, ElementsAre("1/2", "cancelled"));
    EXPECT_THAT(link.calls, ElementsAre("send 6 large.jpg (128x64)", "abort"));
    EXPECT_FALSE(HasTemporaryFiles());
}

TEST_F(Transfer, DescriptorsAreChecked)
{
    const std::pair<const char*, DescriptorFault> cases[] = {
        {"MIDlet-Name: Game", DescriptorFault::none},
        {"\xEF\xBB\xBFMIDlet-Name:\t Game 2~ \r\nMIDlet-Version: 1", DescriptorFault::none},
        {"MIDlet-Version: 1\nMIDlet-Name:\n  Next Line\n", DescriptorFault::none},
        {"MIDlet-Name: Gr\xC3\xBC\xC3\x9F"
         "e",
         DescriptorFault::badName},
        {"MIDlet-Name: A\tB", DescriptorFault::badName},
        {"MIDlet-Name: \r\n\t", DescriptorFault::badName},
        {"MIDlet-Name:", DescriptorFault::badName},
        {"X-MIDlet-Name: Game", DescriptorFault::badName},
        {"", DescriptorFault::badName},
    };
    const std::string path = Make("game.jad", "");
    EXPECT_EQ(handset::CheckDescriptor(path), DescriptorFault::noArchive);
    Make("game.JAR", "classes");
    for (const auto& [text, fault] : cases) {
        Make("game.jad", text);
        EXPECT_EQ(handset::CheckDescriptor(path), fault) << text;
    }
    Make("game.jad", "MIDlet-Name: Game" + std::string(handset::kLongestDescriptor, ' '));
    EXPECT_EQ(handset::CheckDescriptor(path), DescriptorFault::unreadable);
}

TEST_F(Transfer, APlanTellsWhatWillBeSentAndMakesNothing)
{
    Make("good.jar", "classes");
    const struct {
        std::string path;
        SendVerdict verdict;
        std::string sentAs;
        std::uint64_t size;
    } cases[] = {
        {Make("a.png", "200x100"), SendVerdict::good, "a.jpg", 6},
        {Make("b.bmp", "20x10"), SendVerdict::good, "b.jpg", 5},
        {Make("c.mid", std::string(65'536, 'x')), SendVerdict::good, "c.mid", 65'536},
        {Make("d.mid", std::string(65'537, 'x')), SendVerdict::tooLong, "d.mid", 65'537},
        {Make("good.jad", "MIDlet-Name: G"), SendVerdict::good, "good.jad", 21},
        {Make("bad.jad", "MIDlet-Name: G"), SendVerdict::badDescriptor, "bad.jad", 14},
        {services.folder.Path("none.jpg"), SendVerdict::gone, "none.jpg", 0},
    };
    const auto before = std::distance(std::filesystem::directory_iterator(services.folder.Path(".")), {});
    handset::CHandsetPreparation preparation;
    for (const auto& one : cases) {
        SCOPED_TRACE(one.path);
        const handset::SendPlan plan = handset::PlanSending(one.path, preparation);
        EXPECT_EQ(plan.verdict, one.verdict);
        EXPECT_EQ(plan.sentAs, one.sentAs);
        EXPECT_EQ(plan.size, one.size);
    }
    const Lines program = {services.folder.Path("good.jar"), services.folder.Path("good.jad"),
                           services.folder.Path("other.jar")};
    EXPECT_THAT(handset::WithoutArchives(program), ElementsAre(program[1], program[2]));
    EXPECT_EQ(handset::PlanSending(services.folder.Path("."), preparation).verdict, SendVerdict::notAFile);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(services.folder.Path(".")), {}), before);
    EXPECT_FALSE(HasTemporaryFiles());
}

TEST_F(Transfer, TickedCategoriesAreFetchedInTheirOrder)
{
    link.counts = {{2, 9}, {3, 2}, {6, 0}, {9, 3}};

    const TransferEnd end = Fetch({.subWallpaper = true, .myAlbum = true, .frame = true});

    EXPECT_EQ(end, TransferEnd::finished);
    EXPECT_THAT(link.calls, ElementsAre("count 3", "count 6", "count 9", "fetch 3.0 into Sub Wallpaper",
                                        "fetch 3.1 into Sub Wallpaper", "fetch 9.0 into Frame",
                                        "fetch 9.1 into Frame", "fetch 9.2 into Frame"));
    EXPECT_THAT(host.shown, ElementsAre("1/5", "2/5", "3/5", "4/5", "5/5", "successful"));
    EXPECT_TRUE(std::filesystem::is_empty(services.folder.Path("My Album")));
    EXPECT_FALSE(std::filesystem::exists(services.folder.Path("Main Wallpaper")));
    EXPECT_FALSE(link.connectionLost);
}

TEST_F(Transfer, FetchingEndsWhereItHasTo)
{
    const struct {
        FileDataType mode;
        int count;
        int secondResult;
        Lines shown;
        std::size_t calls;
    } cases[] = {
        {FileDataType::ring, 0, 1, {"no item"}, 1},
        {FileDataType::ring, -1, 1, {"no item"}, 1},
        {FileDataType::ring, 2, 1, {"1/2", "2/2", "successful"}, 3},
        {FileDataType::animation, 3, -2, {"1/3", "2/3", "no space"}, 3},
        {FileDataType::animation, 3, 0, {"1/3", "2/3", "failed"}, 3},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(testing::PrintToString(one.shown));
        CNotingLink fresh;
        platform::Os().handset = &fresh;
        fresh.counts[static_cast<int>(one.mode)] = one.count;
        fresh.results[2] = one.secondResult;
        host.shown.clear();

        Fetch({.mode = one.mode});

        EXPECT_EQ(host.shown, one.shown);
        EXPECT_EQ(fresh.calls.size(), one.calls);
    }
    platform::Os().handset = &link;
    link.isThere = false;
    host.shown.clear();
    Fetch({.mainWallpaper = true});
    EXPECT_THAT(host.shown, ElementsAre("status no handset"));
    EXPECT_THAT(link.calls, IsEmpty());
}

TEST_F(Transfer, ADestinationThatCannotBeWrittenIsToldBeforeAnythingIsAsked)
{
    Make("Ring", "a file in the way");

    EXPECT_EQ(Fetch({.mode = FileDataType::ring}), TransferEnd::failed);

    EXPECT_THAT(host.shown, ElementsAre("failed"));
    EXPECT_THAT(link.calls, IsEmpty());
}

}  // namespace
