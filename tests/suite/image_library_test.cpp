// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/image_support.h"

#include <cstring>
#include <sys/stat.h>
#include <unistd.h>

using platform::CImage;
using support::ReadBytes;

namespace
{

constexpr int kMethod = 7;
constexpr std::uint32_t kFlags = 0x21808;

platform::BitmapHandle Thumbnail(const CImage& image, int width, int height)
{
    return image.GetThumbnail(width, height, kMethod, kFlags);
}

// A start of frame for a picture of three components, 4:4:4, after the two bytes of the file's start.
std::string FrameHeader(char marker, int width, int height)
{
    std::string bytes = {'\xFF', '\xD8', '\xFF', marker, 0, 17, 8};
    for (const int side : {height, width})
        bytes += {static_cast<char>(side >> 8), static_cast<char>(side)};
    return bytes + std::string("\x03\x01\x11\x00\x02\x11\x00\x03\x11\x00", 10);
}

}  // namespace

TEST_F(CImageTest, EveryFormatShowsTheSamePicture)
{
    struct Case {
        const char* name;
        const char* quarters = "RGBW";
    };
    const Case cases[] = {
        {"colour.jpg"},       {"full_chroma.jpg"},
        {"half_chroma.jpg"},  {"progressive.jpg"},
        {"ycck.jpg"},         {"cmyk.jpg"},
        {"grey.jpg", "dlKW"}, {"colour.png"},
        {"deep.png"},         {"palette.png"},
        {"interlaced.png"},   {"transparent.png", ".GBW"},
        {"animated.gif"},     {"colour.bmp"},
        {"runs.rle"},         {"bare.dib"},
        {"lzw.tif"},          {"deep.tif"},
        {"cmyk.tif"},         {"lossy.webp"},
        {"lossless.webp"},    {"bilevel.tif", "KWKW"},
        {"colour.heic"},      {"colour.avif"},
        {"clip.avi"},         {"clip.mp4"},
        {"clip.mpg"},         {"clip.wmv"},
    };

    for (const auto& [name, quarters] : cases) {
        const std::string disguised = folder.Make("picture.txt", ReadBytes(Sample(name)));
        const CImage image(disguised);

        EXPECT_EQ(image.Width(), 64) << name;
        EXPECT_EQ(image.Height(), 48) << name;
        EXPECT_EQ(Quarters(Thumbnail(image, 64, 48)), quarters) << name;
        EXPECT_EQ(Quarters(Thumbnail(image, 8, 6)), quarters) << name << " made smaller";
        EXPECT_EQ(Quarters(Thumbnail(image, 90, 71)), quarters) << name << " made larger";
    }
}

TEST_F(CImageTest, PicturesAreTurnedUprightByTheirOrientation)
{
    const char* const expected[] = {"RGBW", "RGBW", "GRWB", "WBGR", "BWRG",
                                    "RBGW", "BRWG", "WGBR", "GWRB", "RGBW"};
    const std::string stored = ReadBytes(Sample("colour.jpg"));

    for (int orientation = 0; orientation < 10; ++orientation) {
        for (const bool motorola : {false, true}) {
            const CImage image(folder.Make("turned.jpg", WithExif(stored, orientation, motorola)));
            const bool sideways = orientation >= 5 && orientation <= 8;

            EXPECT_EQ(image.Width(), sideways ? 48 : 64) << orientation;
            EXPECT_EQ(Quarters(Thumbnail(image, image.Width(), image.Height())), expected[orientation])
                << orientation;
            EXPECT_EQ(Quarters(Thumbnail(image, 12, 10)), expected[orientation]) << orientation;
        }
    }
    const CImage tiff(Sample("turned.tif"));
    EXPECT_EQ(tiff.Width(), 48);
    EXPECT_EQ(Quarters(Thumbnail(tiff, 48, 64)), "BRWG");
}

TEST_F(CImageTest, ExifValuesComeRawInNativeByteOrder)
{
    const std::string stored = ReadBytes(Sample("colour.jpg"));

    for (const bool motorola : {false, true}) {
        const CImage image(folder.Make("dated.jpg", WithExif(stored, 6, motorola)));
        const auto date = image.GetPropertyItem(platform::kTagDateTimeOriginal);
        const auto resolution = image.GetPropertyItem(0x011A);

        ASSERT_TRUE(date && resolution);
        EXPECT_EQ(date->type, 2);
        EXPECT_EQ(date->count, 20U);
        EXPECT_STREQ(reinterpret_cast<const char*>(date->value.data()), "2004:05:06 07:08:09");
        std::uint32_t fraction[2] = {};
        ASSERT_EQ(resolution->value.size(), sizeof fraction);
        std::memcpy(fraction, resolution->value.data(), sizeof fraction);
        EXPECT_EQ(fraction[0], 72U);
        EXPECT_EQ(fraction[1], 1U);
        EXPECT_FALSE(image.GetPropertyItem(0x9999));
        EXPECT_EQ(image.GetPropertyItemSize(0x9999), 0U);
        EXPECT_GE(image.GetPropertyItemSize(platform::kTagDateTimeOriginal), 20U);
    }
    EXPECT_FALSE(CImage(Sample("colour.jpg")).GetPropertyItem(platform::kTagDateTimeOriginal));
}

TEST_F(CImageTest, ExifValuesOfATiffAreFoundWhereverItsDirectoriesStand)
{
    // Puts a directory with one entry more, and an EXIF directory, behind the picture.
    std::string tiff = ReadBytes(Sample("lzw.tif"));
    const auto bytes = [](std::uint32_t number, std::size_t length) {
        return std::string(reinterpret_cast<const char*>(&number), length);
    };
    std::uint32_t first = 0;
    std::uint16_t count = 0;
    std::memcpy(&first, tiff.data() + 4, sizeof first);
    std::memcpy(&count, tiff.data() + first, sizeof count);
    const std::string entries = tiff.substr(first + 2, count * 12U);
    tiff.resize((tiff.size() + 1) / 2 * 2);
    const auto main = static_cast<std::uint32_t>(tiff.size());
    const std::uint32_t exif = main + 2 + (count + 1U) * 12 + 4;
    tiff.replace(4, 4, bytes(main, 4));
    tiff += bytes(count + 1U, 2) + entries + bytes(0x8769, 2) + bytes(4, 2) + bytes(1, 4) + bytes(exif, 4) +
            bytes(0, 4);
    tiff += bytes(2, 2) + bytes(36867, 2) + bytes(2, 2) + bytes(20, 4) + bytes(exif + 30, 4) +
            bytes(0x9207, 2) + bytes(3, 2) + bytes(9000, 4) + bytes(8, 4) + bytes(0, 4) +
            "2004:05:06 07:08:09" + '\0';

    const CImage image(folder.Make("dated.tif", tiff));

    const auto date = image.GetPropertyItem(platform::kTagDateTimeOriginal);
    ASSERT_TRUE(date);
    EXPECT_STREQ(reinterpret_cast<const char*>(date->value.data()), "2004:05:06 07:08:09");
    EXPECT_FALSE(image.GetPropertyItem(0x9207));  // longer than the file
    EXPECT_TRUE(image.GetPropertyItem(0x0100));
}

TEST_F(CImageTest, WhatIsNoPictureHasNoSize)
{
    const std::string jpeg = ReadBytes(Sample("colour.jpg"));
    folder.Make("empty.jpg", "");
    folder.Make("words.jpg", "no picture at all, but long enough to be looked at by every reader there is");
    folder.Make("cut.jpg", jpeg.substr(0, 40));
    folder.Make("signature.png", "\x89PNG\r\n\x1A\n");
    folder.Make("signature.webp", std::string("RIFF\xFF\xFF\xFF\x7FWEBPVP8 ", 16));
    folder.Make("signature.mp4", std::string("\0\0\0\x18"
                                             "ftypisom",
                                             12));
    folder.Make("signature.heic", std::string("\0\0\0\x18"
                                              "ftypheic",
                                              12));
    folder.Make("signature.tif", std::string("II*\0\x08\0\0\0\xFF\xFF", 10));
    folder.Make("list.m3u8", "#EXTM3U\n#EXTINF:1,\nfile:/etc/passwd\n");
    ASSERT_EQ(mkfifo(folder.Path("pipe.jpg").c_str(), 0600), 0);
    ASSERT_EQ(symlink("loop.jpg", folder.Path("loop.jpg").c_str()), 0);

    for (const char* name :
         {"empty.jpg", "words.jpg", "cut.jpg", "signature.png", "signature.webp", "signature.mp4",
          "signature.heic", "signature.tif", "list.m3u8", "pipe.jpg", "loop.jpg", "missing.jpg", "."}) {
        const CImage image(folder.Path(name));

        EXPECT_EQ(image.Width(), 0) << name;
        EXPECT_EQ(image.Height(), 0) << name;
        EXPECT_EQ(Thumbnail(image, 10, 10), nullptr) << name;
        EXPECT_EQ(library.OpenVideoFrame(folder.Path(name)), nullptr) << name;
    }
    EXPECT_EQ(library.OpenVideoFrame(Sample("colour.jpg")), nullptr);
}

TEST_F(CImageTest, FilesCutShortShowWhatTheyHold)
{
    const platform::Bitmap whole = Landscape(320, 240);
    ASSERT_TRUE(library.SaveJpeg(whole, folder.Path("whole.jpg"), 90));
    const std::string bytes = ReadBytes(folder.Path("whole.jpg"));
    folder.Make("cut.jpg", bytes.substr(0, bytes.size() / 2));
    const std::string bitmap = ReadBytes(Sample("colour.bmp"));
    folder.Make("cut.bmp", bitmap.substr(0, bitmap.size() * 2 / 3));
    const std::string progressive = ReadBytes(Sample("progressive.jpg"));
    folder.Make("cut_progressive.jpg", progressive.substr(0, progressive.size() * 3 / 4));

    const auto cut = Thumbnail(CImage(folder.Path("cut.jpg")), 320, 240);
    const auto uncut = Thumbnail(CImage(folder.Path("whole.jpg")), 320, 240);

    ASSERT_TRUE(cut && uncut);
    const std::size_t third = 320 * 80;
    EXPECT_TRUE(std::equal(cut->pixels.begin(), cut->pixels.begin() + third, uncut->pixels.begin()));
    EXPECT_EQ(cut->pixels.back(), 0xFF808080U);
    EXPECT_EQ(Quarters(Thumbnail(CImage(folder.Path("cut.bmp")), 64, 48)).substr(2), "BW");
    EXPECT_EQ(Quarters(Thumbnail(CImage(folder.Path("cut_progressive.jpg")), 64, 48)), "RGBW");
    folder.Make("no_data.jpg", progressive.substr(0, progressive.find("\xFF\xDA")));
    EXPECT_EQ(Thumbnail(CImage(folder.Path("no_data.jpg")), 64, 48), nullptr);
}

TEST_F(CImageTest, HugeSizesInSmallFilesCostNeitherTimeNorMemory)
{
    const std::string tables = ReadBytes(Sample("colour.jpg"));
    const std::size_t frame = tables.find("\xFF\xC0");
    const std::size_t rest = frame + 19;
    struct Case {
        const char* name;
        char marker;
        int side;
    };

    for (const Case& hostile : {Case{"baseline.jpg", '\xC0', 65500}, Case{"progressive.jpg", '\xC2', 65500},
                                Case{"over_limit.jpg", '\xC0', 65535}}) {
        std::string bytes =
            FrameHeader(hostile.marker, hostile.side, hostile.side) + tables.substr(2, frame - 2);
        bytes += tables.substr(rest);
        const CImage image(folder.Make(hostile.name, bytes));

        EXPECT_EQ(image.Width(), hostile.side);
        EXPECT_EQ(Thumbnail(image, image.Width(), image.Height()), nullptr);
        Thumbnail(image, 180, 180);
    }
}

TEST_F(CImageTest, FilesOfCountlessScansOrRestartsEndSoon)
{
    std::string scans = ReadBytes(Sample("progressive.jpg"));
    const std::size_t last = scans.rfind("\xFF\xDA");
    const std::string scan = scans.substr(last, 2U + static_cast<unsigned char>(scans[last + 3]));
    scans.resize(scans.size() - 2);  // the end marker
    std::string restarts = ReadBytes(Sample("full_chroma.jpg"));
    restarts.resize(restarts.find("\xFF\xDA") + 14);
    restarts.insert(restarts.find("\xFF\xDA"), std::string("\xFF\xDD\0\4\xFF\xFF", 6));
    for (int i = 0; i < 70'000; ++i) {
        scans += i < 40'000 ? scan : "";
        restarts += {'\xFF', static_cast<char>(0xD0 + i % 8)};
    }
    // 12,900 pixels a side are just within the memory that scans may take.
    scans.replace(scans.find("\xFF\xC2") + 5, 4, "\x32\x64\x32\x64");
    restarts.replace(restarts.find("\xFF\xC0") + 5, 4, "\xFF\xDC\xFF\xDC");

    EXPECT_EQ(Thumbnail(CImage(folder.Make("scans.jpg", scans)), 180, 180), nullptr);
    const CImage restarted(folder.Make("restarts.jpg", restarts));
    EXPECT_EQ(restarted.Width(), 65'500);
    Thumbnail(restarted, 180, 180);
}

TEST_F(CImageTest, ImpossibleSizesAreRefusedAndOpenedFilesOutliveTheirNames)
{
    const CImage image(folder.Make("a.png", ReadBytes(Sample("colour.png"))));
    std::filesystem::remove(folder.Path("a.png"));

    EXPECT_EQ(Thumbnail(image, 0, 10), nullptr);
    EXPECT_EQ(Thumbnail(image, 10, -1), nullptr);
    EXPECT_EQ(Thumbnail(image, 65'536, 1), nullptr);
    EXPECT_EQ(Thumbnail(image, 60'000, 60'000), nullptr);
    EXPECT_EQ(Quarters(Thumbnail(image, 8, 6)), "RGBW");
}

TEST_F(CImageTest, ThumbnailsEqualTheMeanOfTheWholePicture)
{
    const platform::Bitmap whole = Landscape(1600, 1200);
    ASSERT_TRUE(library.SaveJpeg(whole, folder.Path("whole.jpg"), 95));
    const CImage image(folder.Path("whole.jpg"));

    for (const auto& [width, height] : {std::pair(180, 135), std::pair(200, 150), std::pair(201, 150),
                                        std::pair(400, 300), std::pair(799, 601), std::pair(1, 1)}) {
        const platform::Bitmap mean = Mean(whole, width, height);

        const auto thumbnail = Thumbnail(image, width, height);

        ASSERT_TRUE(thumbnail);
        EXPECT_LT(MeanDifference(thumbnail.get(), &mean), 2) << width;
        EXPECT_GE(MeanDifference(thumbnail.get(), &mean), 0) << width;
    }
}

TEST_F(CImageTest, SavingReplacesOnlyByAWholePictureAndTakesAnyName)
{
    platform::Bitmap veil{8, 8, std::vector<std::uint32_t>(64, 0x00FF0000U)};
    const std::string oddName = folder.Path(std::string(251, 'x') + "\xFF\n\xC3 ");
    const std::string existing = folder.Make("existing.jpg", "old");

    ASSERT_TRUE(library.SaveJpeg(veil, oddName, 100));
    ASSERT_TRUE(library.SaveJpeg(veil, existing, 100));

    EXPECT_EQ(Quarters(Thumbnail(CImage(oddName), 8, 8)), "WWWW");
    EXPECT_EQ(ReadBytes(existing), ReadBytes(oddName));
    EXPECT_FALSE(library.SaveJpeg({}, folder.Path("empty.jpg"), 85));
    EXPECT_FALSE(library.SaveJpeg(veil, folder.Path("missing/a.jpg"), 85));
    EXPECT_FALSE(library.SaveJpeg(veil, folder.Path(), 85));
    EXPECT_TRUE(CImage(Sample("colour.png")).SaveFile(folder.Path("saved.jpg")));
    EXPECT_EQ(CImage(folder.Path("saved.jpg")).Width(), 64);
    const auto count = std::distance(std::filesystem::directory_iterator(folder.Path()), {});
    EXPECT_EQ(count, 3) << "something half made was left behind";
}

TEST_F(CImageTest, HandsetImagesBecomeSrc0)
{
    struct Case {
        const char* sample;
        int flag;
        bool isTaken;
        bool succeeds;
    };
    const Case cases[] = {{"colour.png", 1, false, true},
                          {"colour.jpg", 0, false, true},
                          {"colour.gif", 1, false, false},
                          {"clip.avi", 1, false, false},
                          {"colour.png", 0, true, false}};

    for (const auto& [sample, flag, isTaken, succeeds] : cases) {
        const support::CTempFolder place;
        const std::string source = place.Make("image.sss", ReadBytes(Sample(sample)));
        if (isTaken)
            place.Make("Src0.jpg", "somebody's");

        EXPECT_EQ(library.Src2Jpg(source, flag), succeeds) << sample;

        EXPECT_EQ(std::filesystem::exists(source), flag == 1 || !succeeds) << sample;
        if (succeeds)
            EXPECT_EQ(Quarters(Thumbnail(CImage(place.Path("Src0.jpg")), 64, 48)), "RGBW") << sample;
        else
            EXPECT_EQ(ReadBytes(place.Path("Src0.jpg")), isTaken ? "somebody's" : "") << sample;
    }
}
