// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The large view without its window: which picture comes next, what is decoded and kept, how it is zoomed.
#include "browser/picture_stock.h"
#include "browser/picture_walk.h"
#include "browser/picture_zoom.h"
#include "support/test_services.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace browser;

namespace
{

using Names = std::vector<std::string>;

constexpr platform::Extent kPane{1000, 600};

PictureRequest Whole(const std::string& path)
{
    return {path, kPane, BoxUse::fitInto};
}

DecodedPicture Decoded(int width, int height, std::uint64_t fileSize = 1)
{
    const auto pixels = std::make_shared<platform::Bitmap>(platform::Bitmap{width, height, {}});
    pixels->pixels.resize(static_cast<std::size_t>(width) * height);
    return {{fileSize, 1}, {4000, 3000}, pixels, true};
}

std::string NextPath(const CPictureStock& stock)
{
    const auto job = stock.NextJob();
    return job ? job->request.path : "";
}

}  // namespace

TEST(PictureWalk, StepsStopAtTheEndsOrGoAround)
{
    const struct {
        WalkEnds ends;
        std::string from;
        int by;
        std::string to;
        Names nearby;
    } rows[] = {
        {WalkEnds::stop, "a", 1, "b", {"b", "c", "a"}},
        {WalkEnds::stop, "c", -1, "b", {"b", "a", "c"}},
        {WalkEnds::stop, "c", 1, "d", {"d", "c"}},
        {WalkEnds::stop, "d", 1, "d", {"d", "c"}},
        {WalkEnds::stop, "b", -10, "a", {"a", "b"}},
        {WalkEnds::stop, "b", 10, "d", {"d", "c"}},
        {WalkEnds::goAround, "d", 1, "a", {"a", "b", "d"}},
        {WalkEnds::goAround, "a", -1, "d", {"d", "c", "a"}},
        {WalkEnds::goAround, "b", -11, "c", {"c", "b", "d"}},
    };
    for (const auto& row : rows) {
        CPictureWalk walk(row.ends);
        walk.SetNames({"a", "b", "c", "d"});
        ASSERT_TRUE(walk.GoTo(row.from));

        EXPECT_EQ(walk.Step(row.by), row.from != row.to);

        EXPECT_EQ(walk.Current(), row.to) << row.from << row.by;
        EXPECT_EQ(walk.Nearby(), row.nearby) << row.from << row.by;
    }
}

TEST(PictureWalk, ANewListKeepsThePictureOrGoesToTheNextOneStillThere)
{
    const struct {
        std::string at;
        Names now;
        std::string then;
    } rows[] = {
        {"c", {"0", "a", "b", "c", "d"}, "c"},
        {"c", {"d", "c"}, "c"},
        {"c", {"a", "b", "d"}, "d"},
        {"c", {"a", "e"}, "e"},
        {"e", {"a", "c"}, "c"},
        {"a", {"x", "y"}, "x"},
        {"b", {}, ""},
    };
    for (const auto& row : rows) {
        CPictureWalk walk;
        walk.SetNames({"a", "b", "c", "d", "e"});
        walk.GoTo(row.at);

        walk.SetNames(row.now);

        EXPECT_EQ(walk.Current(), row.then) << row.at;
    }
}

TEST(PictureStock, DecodesTheMostUrgentAndKeepsOnlyWhatIsWanted)
{
    CPictureStock stock;
    stock.Want({Whole("b"), Whole("c"), Whole("a")});
    EXPECT_EQ(NextPath(stock), "b");
    stock.Deliver(Whole("b"), Decoded(800, 600));
    EXPECT_EQ(NextPath(stock), "c");

    // On to the next before that one was decoded: what comes for it is used, what comes too late is not.
    stock.Want({Whole("d"), Whole("e"), Whole("c")});
    stock.Deliver(Whole("c"), Decoded(800, 600));
    stock.Deliver(Whole("a"), Decoded(800, 600));

    EXPECT_EQ(NextPath(stock), "d");
    EXPECT_NE(stock.Find(Whole("c")), nullptr);
    EXPECT_EQ(stock.Find(Whole("a")), nullptr);
    EXPECT_EQ(stock.Find(Whole("b")), nullptr);
    EXPECT_EQ(stock.BytesHeld(), 800 * 600 * 4U);

    // One that cannot be decoded is not tried again.
    stock.Deliver(Whole("d"), DecodedPicture{});
    EXPECT_EQ(NextPath(stock), "e");
    stock.Want({});
    EXPECT_EQ(stock.BytesHeld(), 0U);
    EXPECT_FALSE(stock.NextJob());
}

TEST(PictureStock, AnotherSizeServesUntilTheWantedOneIsThere)
{
    CPictureStock stock;
    const PictureRequest zoomed{"a", {2000, 1500}, BoxUse::fill};
    const PictureRequest full{"a", {4000, 3000}, BoxUse::fill};
    stock.Want({Whole("a"), Whole("b")});
    stock.Deliver(Whole("a"), Decoded(800, 600));

    stock.Want({zoomed, Whole("a"), Whole("b")});
    EXPECT_EQ(stock.NextJob()->request, zoomed);
    EXPECT_EQ(stock.Find(zoomed)->pixels->width, 800);
    stock.Deliver(zoomed, Decoded(2000, 1500));
    EXPECT_EQ(stock.Find(zoomed)->pixels->width, 2000);

    stock.Want({full, Whole("a"), Whole("b")});
    EXPECT_EQ(stock.Find(full)->pixels->width, 2000);
    stock.Deliver(full, Decoded(4000, 3000));
    EXPECT_EQ(stock.Find(zoomed)->pixels->width, 4000) << "the size between is let go";
    EXPECT_EQ(stock.Find(Whole("a"))->pixels->width, 800);
}

TEST(PictureStock, NothingIsDecodedAheadWhenMemoryIsShort)
{
    CPictureStock stock;
    const PictureRequest large{"a", {8000, 4500}, BoxUse::fill};
    stock.Want({large, Whole("b")});
    EXPECT_EQ(stock.NextJob()->request, large);

    stock.Deliver(large, Decoded(8000, 4500));

    EXPECT_FALSE(stock.NextJob());
    stock.Want({Whole("b"), Whole("a")});
    EXPECT_EQ(NextPath(stock), "b");
}

TEST(PictureStock, ChangedFilesAreDecodedAnewAndTheOthersAreNot)
{
    CPictureStock stock;
    stock.Want({Whole("a"), Whole("b")});
    stock.Deliver(Whole("a"), Decoded(800, 600, 11));
    stock.Deliver(Whole("b"), Decoded(800, 600, 22));
    EXPECT_FALSE(stock.NextJob());

    stock.Recheck();

    EXPECT_EQ(stock.NextJob()->heldStamp, (FileStamp{11, 1}));
    stock.Deliver(Whole("a"), std::nullopt);
    EXPECT_EQ(stock.NextJob()->heldStamp, (FileStamp{22, 1}));
    stock.Deliver(Whole("b"), Decoded(500, 600, 23));
    EXPECT_FALSE(stock.NextJob());
    EXPECT_EQ(stock.Find(Whole("a"))->pixels->width, 800);
    EXPECT_EQ(stock.Find(Whole("b"))->pixels->width, 500);
}

TEST(PictureDecoder, SizesFitTheBoxAndTheMemory)
{
    const struct {
        platform::Extent original;
        platform::Extent box;
        BoxUse use;
        platform::Extent decoded;
    } rows[] = {
        {{6000, 4000}, {900, 900}, BoxUse::fitInto, {900, 600}},
        {{4000, 6000}, {900, 900}, BoxUse::fitInto, {600, 900}},
        {{200, 100}, {900, 900}, BoxUse::fitInto, {200, 100}},
        {{60000, 2}, {900, 900}, BoxUse::fitInto, {900, 1}},
        {{6000, 4001}, {3000, 2001}, BoxUse::fill, {3000, 2001}},
        {{600, 400}, {1200, 800}, BoxUse::fill, {600, 400}},
        {{20000, 10000}, {20000, 10000}, BoxUse::fill, {10000, 5000}},
        {{0, 0}, {900, 900}, BoxUse::fitInto, {0, 0}},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(DecodedSize(row.original, {"", row.box, row.use}), row.decoded)
            << row.original.width << " by " << row.original.height;
    }
}

TEST(PictureDecoder, TellsWhatAFileIsWithoutFailing)
{
    support::TestServices services;
    const std::string picture = services.folder.Path("a.jpg");
    const std::string other = services.folder.Path("b.jpg");
    support::WriteBytes(picture, "2000x1000");
    support::WriteBytes(other, "nothing");

    const DecodedPicture decoded = DecodePicture(Whole(picture));
    EXPECT_EQ(decoded.original, (platform::Extent{2000, 1000}));
    EXPECT_EQ(decoded.pixels->width, 1000);
    EXPECT_EQ(decoded.pixels->height, 500);
    EXPECT_EQ(decoded.stamp.size, 9U);
    for (const std::string& path : {other, services.folder.Path("gone.jpg")})
        EXPECT_EQ(DecodePicture(Whole(path)).pixels, nullptr);
}

TEST(PictureZoom, WhatIsUnderThePointerStaysThere)
{
    CPictureZoom zoom;
    zoom.SetPane(kPane);
    zoom.SetPicture({6000, 4000});
    ASSERT_TRUE(zoom.IsFit());
    EXPECT_EQ(zoom.Place(), (platform::Rect{50, 0, 950, 600}));

    // A third of the way into the picture each way, at three sevenths of a pane that the picture fills.
    const PanePoint anchor{350, 200};
    zoom.ZoomTo(1, anchor);
    EXPECT_EQ(zoom.Place(), (platform::Rect{-1650, -1133, 4350, 2867}));
    EXPECT_TRUE(zoom.CanPan());

    zoom.Pan(1e6, 0);
    EXPECT_EQ(zoom.Place().left, 0);
    zoom.Pan(-1e6, -1e6);
    EXPECT_EQ(zoom.Place(), (platform::Rect{1000 - 6000, 600 - 4000, 1000, 600}));

    zoom.ZoomTo(0.01, anchor);
    EXPECT_TRUE(zoom.IsFit());
    zoom.SetPane({500, 600});
    EXPECT_EQ(zoom.Place().right, 500);
}

TEST(PictureZoom, StepsMeetTheWholePictureAndItsPixels)
{
    CPictureZoom zoom;
    zoom.SetPane(kPane);
    zoom.SetPicture({6000, 4000});
    const PanePoint middle{500, 300};
    std::vector<double> factors;
    for (int i = 0; i < 40; ++i) {
        zoom.ZoomBy(1, middle);
        factors.push_back(zoom.Factor());
    }
    EXPECT_EQ(std::ranges::count(factors, 1.0), 1);
    EXPECT_EQ(zoom.Factor(), CPictureZoom::kMostFactor);
    for (int i = 0; i < 40; ++i)
        zoom.ZoomBy(-1, middle);
    EXPECT_TRUE(zoom.IsFit());

    // A small picture is not enlarged, and lies in the middle however it is zoomed.
    zoom.SetPicture({200, 100});
    EXPECT_EQ(zoom.Place(), (platform::Rect{400, 250, 600, 350}));
    zoom.ZoomTo(2, {400, 250});
    EXPECT_EQ(zoom.Place(), (platform::Rect{300, 200, 700, 400}));
    EXPECT_FALSE(zoom.CanPan());
}
