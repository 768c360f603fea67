// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/exif_reader.h"

#include "exif_builder.h"
#include "photo/section_read_ahead.h"
#include "support/memory_file.h"
#include "support/test_services.h"

#include <cstring>
#include <functional>
#include <gtest/gtest.h>

namespace
{

using photo::CExifReader;

// The reader after it has walked `bytes`.
struct Read {
    explicit Read(const std::string& bytes) : file(bytes), result(reader.ReadJpegSections(file)) {}

    support::CMemoryFile file;
    CExifReader reader;
    bool result;
    const photo::ExifImageInfo& Record() const { return reader.Record(); }
    std::string Error() const { return reader.ErrorText(); }
};

const CExifBuilder kIntel(false);

TEST(ExifReaderTest, EveryFieldIsFilledInEitherByteOrder)
{
    for (const bool motorola : {false, true}) {
        const CExifBuilder build(motorola);
        const std::vector<BuiltEntry> exif = {
            build.Ratio(0x829A, 1, 60),    build.Ratio(0x829D, 28, 10),
            build.Short(0x8822, 2),        build.Short(0x8827, 400),
            build.Text(0x9000, "0220", 7), build.Text(0x9003, std::string("2004:05:17 10:22:31") + '\0'),
            build.Ratio(0x9102, 7, 2),     build.Ratio(0x9203, -3, 2),
            build.Ratio(0x9204, -1, 3),    build.Ratio(0x9206, 5, 2),
            build.Short(0x9207, 5),        build.Short(0x9208, 17),
            build.Short(0x9209, 0x19),     build.Ratio(0x920A, 50, 1),
            build.Long(0xA002, 3000),      build.Short(0xA003, 2000),
            build.Ratio(0xA20E, 1500, 1),  build.Ratio(0xA20F, 1000, 1),
            build.Short(0xA210, 3),        build.Text(0x9286, std::string("ASCII\0\0\0Hello   ", 16), 7)};
        const std::vector<BuiltEntry> first = {
            build.Text(0x010F, "Halden"), build.Text(0x0110, std::string(50, 'm')),
            build.Short(0x0112, 6),       build.Ratio(0x011A, 72, 1),
            build.Ratio(0x011B, 96, 1),   build.Short(0x0128, 4)};
        const auto place = [&](unsigned subDirectory) {
            std::vector<BuiltEntry> entries = first;
            entries.push_back(build.Long(0x8769, subDirectory));
            return build.Directory(8, entries);
        };
        const std::size_t start = 8 + place(0).size();

        const Read read(build.File(place(static_cast<unsigned>(start)) + build.Directory(start, exif)));

        const photo::ExifImageInfo& record = read.Record();
        EXPECT_TRUE(read.result && record.IsExif) << read.Error();
        EXPECT_STREQ(record.ExifVersion, "0220");
        EXPECT_STREQ(record.CameraMake, "Halden");
        EXPECT_EQ(record.CameraModel, std::string(39, 'm'));
        EXPECT_STREQ(record.DateTime, "2004:05:17 10:22:31");
        EXPECT_STREQ(record.Comments, "Hello");
        EXPECT_EQ((std::vector{record.Height, record.Width, record.Orientation, record.IsColor,
                               record.Process, record.FlashUsed, record.LightSource, record.MeteringMode,
                               record.ExposureProgram, record.ISOequivalent, record.CompressionLevel}),
                  (std::vector{480, 640, 6, 1, 0xC0, 1, 17, 5, 2, 400, 3}));
        EXPECT_EQ((std::vector{record.FocalLength, record.ExposureTime, record.ApertureFNumber,
                               record.Distance, record.CCDWidth, record.ExposureBias, record.FocalplaneXRes,
                               record.FocalplaneYRes, record.FocalplaneUnits, record.XResolution,
                               record.YResolution, record.ResolutionUnit, record.Brightness}),
                  (std::vector{50.0F, 1 / 60.0F, 2.8F, 2.5F, 2 * 0.3937007784843445F, -1 / 3.0F, 1500.0F,
                               1000.0F, 0.3937007784843445F, 72.0F, 96.0F, 0.03937007859349251F, -1.5F}));
    }
}

TEST(ExifReaderTest, TheWalkOverSectionsEndsWhereItMust)
{
    const auto sections = [](int marker, int count) {
        std::string all = kStart;
        for (int i = 0; i < count; ++i)
            all += Section(marker, std::string("text", 4));
        return all;
    };
    const std::string fill6(6, '\xFF');
    const std::string padding = "too many padding unsigned chars\n";
    const struct {
        const char* what;
        std::string bytes;
        bool result;
        std::string error;
        std::string notice;
    } cases[] = {
        {"nothing", "", false, "", ""},
        {"no JPEG", "\x89PNG and more", false, "", ""},
        {"plain", kStart + kFrame + kScan, true, "", ""},
        {"no prefix", kStart + kScan.substr(1), true, "", ""},
        {"six fill bytes", kStart + fill6 + kScan.substr(1), true, "", ""},
        {"seven fill bytes", kStart + fill6 + kScan, false, "", padding},
        {"end of file", kStart + kFrame, false, "", padding},
        {"end in a length", kStart + kFrame + "\xFF\xDA", false, "Premature end of file?", ""},
        {"end in a section", kStart + kScan.substr(0, 6), false, "Premature end of file?", ""},
        {"end in one passed over", kStart + std::string("\xFF\xE0\xFF\xFFJFIF", 8), false,
         "Premature end of file?", ""},
        {"length 1", kStart + std::string("\xFF\xDB\0\1", 4) + kScan, false, "invalid marker", ""},
        {"length 2", kStart + Section(0xDB, "") + kScan, true, "", ""},
        {"end of image", kStart + Section(0xD9, "") + kScan, false, "", "No image in jpeg!\n"},
        {"19 and the scan", sections(0xDB, 19) + kScan, true, "", ""},
        {"20 and the scan", sections(0xDB, 20) + kScan, false, "Too many sections in jpg file", ""},
        {"others' data", sections(0xE1, 50) + sections(0xE0, 50).substr(2) + kScan, true, "", ""},
        {"comments", sections(0xFE, 50) + kScan, true, "", ""},
        {"no camera's", sections(0xE0, 5000) + kScan, false, "Too many sections in jpg file", ""},
        {"cut frame header", kStart + Section(0xC2, "\x08\x01") + kScan, true, "", ""},
    };
    for (const auto& each : cases) {
        const Read read(each.bytes);

        EXPECT_EQ(read.result, each.result) << each.what;
        EXPECT_EQ(read.Error(), each.error) << each.what;
        EXPECT_EQ(read.reader.Notice(), each.notice) << each.what;
        EXPECT_FALSE(read.Record().IsExif) << each.what;
    }
}

TEST(ExifReaderTest, TheFirstCommentIsCleanedAndKept)
{
    const auto comment = [](const std::string& text) {
        return std::string(
            Read(kStart + Section(0xFE, text) + Section(0xFE, "later") + kScan).Record().Comments);
    };

    EXPECT_EQ(comment(std::string("one\r\ntwo\rthree\tfour\0five\x1B S\xC3\xBC\x64", 30)),
              "one\ntwo?three\tfour?five? S\xC3\xBC\x64");
    EXPECT_EQ(comment(std::string(2000, 'x')), std::string(998, 'x'));
    EXPECT_EQ(comment(""), "");
}

TEST(ExifReaderTest, ABlockThatBreaksLeavesItsMessageAndTheWalkGoesOn)
{
    const std::string directory = kIntel.Directory(8, {kIntel.Short(0x0112, 3)});
    const auto block = [](const std::string& bytes) {
        return kStart + Section(0xE1, bytes) + kFrame + kScan;
    };
    const auto entries = [](std::vector<BuiltEntry> broken) {
        broken.insert(broken.begin(), kIntel.Short(0x0112, 3));
        return kIntel.File(broken);
    };
    const std::string suspicious = "Suspicious offset of first IFD value";
    const std::string format = "Illegal format code in EXIF dir";
    const std::string pointer = "Illegal pointer offset value in EXIF.";
    const std::string link = "Illegal subdirectory link";
    const struct {
        const char* what;
        std::string bytes;
        std::string error;
        bool isExif;
        int orientation;
    } cases[] = {
        {"signature only", block("Exif"), "Incorrect Exif header", false, 0},
        {"no zeros", block("Exif\1\1II*"), "Incorrect Exif header", false, 0},
        {"byte order", block(std::string("Exif\0\0IM*\0", 10)), "Invalid Exif alignment marker.", false, 0},
        {"42", block(std::string("Exif\0\0MM*\0", 10)), "Invalid Exif start (1)", false, 0},
        {"offset 7", block(kIntel.Header(7) + directory), suspicious, false, 0},
        {"offset 12", block(kIntel.Header(12) + directory), "", true, 3},
        {"offset 16", block(kIntel.Header(16) + directory), "", true, 3},
        {"offset 17", block(kIntel.Header(17) + directory), suspicious, false, 0},
        {"cut directory", block(kIntel.Header() + directory.substr(0, 11)), "Illegally sized directory",
         false, 0},
        // The length that counts is two bytes more than the section holds, and zeros stand there.
        {"no directory", block(kIntel.Header()), "", true, 0},
        {"cut by two", block(kIntel.Header() + directory.substr(0, 12)), "", true, 3},
        {"format 0", entries({{0x829A, 0, "abcd"}}), "", true, 3},
        {"format 13", entries({{0x829A, 13, "abcd"}}), format, false, 3},
        {"far value", entries({{0x010F, 2, kIntel.Number(9000, 4), 5}}), pointer, false, 3},
        {"huge count", entries({{0x010F, 12, kIntel.Number(8, 4), 0x20000001}}), pointer, false, 3},
        {"huge offset", entries({{0x010F, 2, kIntel.Number(0xFFFFFFFF, 4), 8}}), pointer, false, 3},
        {"link outside", entries({kIntel.Long(0x8769, 9000)}), link, false, 3},
        {"link before", entries({kIntel.Long(0xA005, 0xFFFFFFF0)}), link, false, 3},
        {"broken target", entries({kIntel.Long(0x8769, 0)}), "Illegally sized directory", true, 3},
        {"next outside", block(kIntel.Header() + kIntel.Directory(8, {kIntel.Short(0x0112, 3)}, 9000)), link,
         false, 3},
        {"next in upper half",
         block(kIntel.Header() + kIntel.Directory(8, {kIntel.Short(0x0112, 3)}, 0x00090000)), "", true, 3},
        {"orientation 9", entries({kIntel.Short(0x0112, 9)}), "Undefined rotation value", true, 0},
    };
    for (const auto& each : cases) {
        const Read read(each.bytes);

        EXPECT_TRUE(read.result) << each.what;
        EXPECT_EQ(read.Error(), each.error) << each.what;
        EXPECT_EQ(read.Record().IsExif, each.isExif) << each.what;
        EXPECT_EQ(read.Record().Orientation, each.orientation) << each.what;
        EXPECT_EQ(read.Record().Width, 640) << each.what;
    }
}

TEST(ExifReaderTest, NumbersAreConvertedByTheirTagsRules)
{
    using Record = photo::ExifImageInfo;
    double native = 2.5;
    std::string nativeBytes(sizeof native, '\0');
    std::memcpy(nativeBytes.data(), &native, sizeof native);
    const struct {
        const char* what;
        std::vector<BuiltEntry> entries;
        std::function<double(const Record&)> field;
        double value;
    } cases[] = {
        {"ISO 3", {kIntel.Short(0x8827, 3)}, &Record::ISOequivalent, 600},
        {"ISO 50", {kIntel.Short(0x8827, 50)}, &Record::ISOequivalent, 50},
        {"ISO far below", {{0x8827, 9, kIntel.Number(0x80000000, 4)}}, &Record::ISOequivalent, -2147483648.0},
        {"shutter speed", {kIntel.Ratio(0x9201, 6, 1)}, &Record::ExposureTime, 1 / 64.0},
        {"shutter speed, then time",
         {kIntel.Ratio(0x9201, 6, 1), kIntel.Ratio(0x829A, 1, 4)},
         &Record::ExposureTime,
         0.25},
        {"time, then shutter speed",
         {kIntel.Ratio(0x829A, 1, 4), kIntel.Ratio(0x9201, 6, 1)},
         &Record::ExposureTime,
         0.25},
        {"widest aperture, then aperture",
         {kIntel.Ratio(0x9205, 4, 1), kIntel.Ratio(0x9202, 6, 1)},
         &Record::ApertureFNumber,
         4},
        {"no denominator", {kIntel.Ratio(0x920A, 5, 0)}, &Record::FocalLength, 0},
        {"unsigned ratio, read signed",
         {{0x920A, 5, kIntel.Number(0xFFFFFFFE, 4) + kIntel.Number(1, 4)}},
         &Record::FocalLength,
         -2},
        {"inches", {kIntel.Short(0x0128, 2)}, &Record::ResolutionUnit, 1},
        {"micrometres", {kIntel.Short(0x0128, 5)}, &Record::ResolutionUnit, 3.937007932108827e-05},
        {"unknown unit", {kIntel.Short(0x0128, 2), kIntel.Short(0x0128, 6)}, &Record::ResolutionUnit, 1},
        {"signed byte", {{0x9204, 6, "\xFE"}}, &Record::ExposureBias, -2},
        {"unsigned byte", {{0x9204, 1, "\xFE"}}, &Record::ExposureBias, 254},
        {"signed short", {{0x9204, 8, kIntel.Number(0xFFFE, 2)}}, &Record::ExposureBias, -2},
        {"double", {{0x9204, 12, nativeBytes}}, &Record::ExposureBias, 2.5},
        {"text as number", {kIntel.Text(0x9204, "12")}, &Record::ExposureBias, 0},
        {"truncated", {kIntel.Ratio(0x9207, -7, 2)}, &Record::MeteringMode, -3},
        {"beyond an integer", {kIntel.Long(0x9208, 0xFFFFFFFF)}, &Record::LightSource, 2147483647},
        {"flash did not fire", {kIntel.Short(0x9209, 0x18)}, &Record::FlashUsed, 0},
    };
    for (const auto& each : cases) {
        const Read read(kIntel.File(each.entries));

        EXPECT_TRUE(read.Record().IsExif) << each.what;
        EXPECT_NEAR(each.field(read.Record()), each.value, std::abs(each.value) * 1e-7) << each.what;
    }
}

TEST(ExifReaderTest, TheUserCommentLosesItsCodeAndItsLastSpaces)
{
    const std::pair<std::string, std::string> cases[] = {
        {std::string("ASCII\0\0\0Hello  ", 15), "Hello"},
        {"ASCII   Hello", "Hello"},
        {"ASCIIHello", "Hello"},
        {std::string("ASCII\0\0\0\0\0Hello", 15), ""},
        {std::string("UNICODE\0Hello", 13), "UNICODE"},
        {"Hello there   ", "Hello there"},
        {"ASCI", "ASCI"},
        {"      ", ""},
        {std::string("ASCII\0\0\0", 8) + std::string(500, 'x'), std::string(199, 'x')},
    };
    for (const auto& [stored, text] : cases) {
        EXPECT_EQ(Read(kIntel.File({kIntel.Text(0x9286, stored, 7)})).Record().Comments, text) << stored;
    }
}

TEST(ExifReaderTest, TheThumbnailIsFoundWhereTheNextDirectoryIsFollowed)
{
    for (const bool motorola : {false, true}) {
        const CExifBuilder build(motorola);
        const std::string first = build.Directory(8, {build.Short(0x0112, 1)}, 26);
        const std::string second = build.Directory(26, {build.Long(0x0201, 56), build.Long(0x0202, 5)});

        const Read read(build.File(first + second + "thumb"));

        // In Motorola order the upper half of the link is looked at, which is 0.
        EXPECT_EQ(read.Record().ThumbnailSize, motorola ? 0 : 5);
        EXPECT_EQ(read.reader.ThumbnailOffset(), motorola ? std::nullopt : std::optional<std::size_t>(64));
        const auto thumbnail = read.reader.Thumbnail();
        EXPECT_EQ(std::string(thumbnail.begin(), thumbnail.end()), motorola ? "" : "thumb");
    }
    const struct {
        unsigned offset;
        unsigned length;
        std::size_t held;
    } cases[] = {{38, 7, 5}, {44, 1, 0}, {38, 8, 0}, {38, 0, 0}, {0, 5, 0}, {0xFFFFFFFF, 4, 0}};
    for (const auto& each : cases) {
        const Read read(kIntel.File(
            kIntel.Directory(8, {kIntel.Long(0x0201, each.offset), kIntel.Long(0x0202, each.length)}) +
            "thumb"));
        EXPECT_EQ(read.reader.Thumbnail().size(), each.held) << each.offset;
    }
}

TEST(ExifReaderTest, DirectoriesThatPointAtEachOtherEnd)
{
    // Each of `count` directories links `fan` times to every other one, and to the next.
    const auto web = [](unsigned count, unsigned fan) {
        const unsigned length = 2 + 12 * (fan + 1) + 4;
        std::string all;
        for (unsigned i = 0; i < count; ++i) {
            std::vector<BuiltEntry> entries = {kIntel.Short(0x9207, i)};
            for (unsigned j = 0; j < fan; ++j)
                entries.push_back(kIntel.Long(0x8769, 8 + (i + j) % count * length));
            all += kIntel.Directory(8 + i * length, entries, i + 1 < count ? 8 + (i + 1) * length : 8);
        }
        return all;
    };

    EXPECT_EQ(Read(kIntel.File(web(1, 1))).Record().MeteringMode, 0);
    EXPECT_EQ(Read(kIntel.File(web(2, 2))).Record().MeteringMode, 1);
    EXPECT_EQ(Read(kIntel.File(web(10, 0))).Record().MeteringMode, 9);
    EXPECT_EQ(Read(kIntel.File(web(3000, 0))).Record().MeteringMode, 63);
    const Read tangled(kIntel.File(web(60, 60)));
    EXPECT_TRUE(tangled.result && tangled.Record().IsExif);
}

TEST(ExifReaderTest, AFileCutAnywhereKeepsWhatStoodBefore)
{
    const std::string thumbnailed = kIntel.Directory(8, {kIntel.Short(0x0112, 6)}, 26) +
                                    kIntel.Directory(26, {kIntel.Long(0x0201, 56), kIntel.Long(0x0202, 9)}) +
                                    "thumbnail";
    const std::string whole = kIntel.File(thumbnailed);
    const std::size_t exifEnd = whole.size() - kFrame.size() - kScan.size();

    for (std::size_t length = 0; length < whole.size(); ++length) {
        const Read read(whole.substr(0, length));

        EXPECT_FALSE(read.result) << length;
        EXPECT_EQ(read.Record().Orientation, length >= exifEnd ? 6 : 0) << length;
        EXPECT_EQ(read.Record().ThumbnailSize, length >= exifEnd ? 9 : 0) << length;
        EXPECT_EQ(read.Record().Width, length >= exifEnd + kFrame.size() ? 640 : 0) << length;
    }
    for (std::size_t length = 0; length < thumbnailed.size(); ++length)
        EXPECT_TRUE(Read(kIntel.File(thumbnailed.substr(0, length))).result) << length;
}

TEST(ExifReaderTest, NoBlockBeyondTheSectionsIsReadAndNoneTwice)
{
    const std::string photo =
        kStart + Section(0xE0, std::string(50000, 'j')) +
        Section(0xE1, kIntel.Header() + kIntel.Directory(8, {}) + std::string(9000, 't')) +
        Section(0xE1, "http://" + std::string(30000, 'x')) + kFrame + kScan;
    const Read read(photo + std::string(1 << 20, 'p'));

    EXPECT_TRUE(read.result && read.Record().IsExif) << read.Error();
    EXPECT_LE(read.file.readTo, photo.size() + photo::CSectionInput::kBlock);
    // The two sections that are not kept are passed over.
    EXPECT_LT(read.file.bytesRead, 9000 + 4 * photo::CSectionInput::kBlock);
}

TEST(ExifReaderTest, FilesReadAheadComeInOrderAndMissingOnesAreTold)
{
    support::TestServices services;
    std::vector<std::string> paths;
    for (int i = 0; i < 150; ++i) {
        const std::string bytes =
            kIntel.File({kIntel.Short(0x9208, static_cast<unsigned>(i)),
                         kIntel.Text(0x9286, std::string(static_cast<std::size_t>(i) * 100, 'c'), 7)});
        paths.push_back(i % 7 == 3 ? services.folder.Path("missing")
                                   : services.folder.Make(std::to_string(i), bytes));
    }

    photo::CSectionReadAhead files(paths);

    for (int i = 0; i < 150; ++i) {
        photo::CSectionInput* const input = files.Next();
        CExifReader reader;
        ASSERT_EQ(input != nullptr, i % 7 != 3) << i;
        if (input) {
            EXPECT_TRUE(reader.ReadJpegSections(*input)) << i;
            EXPECT_EQ(reader.Record().LightSource, i);
        }
    }
    EXPECT_EQ(files.Next(), nullptr);
}

TEST(ExifReaderTest, ADateIsSplitAsFarAsItCanBeRead)
{
    const auto split = [](const char* text) {
        photo::ExifImageInfo record;
        std::string_view(text).copy(record.DateTime, sizeof record.DateTime - 1);
        return photo::SplitDate(record);
    };

    const photo::ExifDate date = split("2004:05:17 10:22:31");
    EXPECT_EQ((std::vector{date.year, date.month, date.day, date.hour, date.minute, date.second, date.weekDay,
                           date.yearDay, date.summerTime}),
              (std::vector{2004, 5, 17, 10, 22, 31, 0, 0, 0}));
    EXPECT_TRUE(date.IsKnown());
    EXPECT_EQ(split("2004:05:17").hour, 0);
    for (const char* unknown : {"", "0000:00:00 00:00:00", "2004:05", "    :  :     :  :  ", "2004-05-17"})
        EXPECT_FALSE(split(unknown).IsKnown()) << unknown;
}

}  // namespace
