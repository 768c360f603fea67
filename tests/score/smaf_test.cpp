// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "golden_smaf.h"
#include "score/smaf_reader.h"
#include "score/smaf_summary.h"
#include "score/smaf_writer.h"

#include <gmock/gmock.h>

#include <functional>

namespace
{

using golden::Bytes;
using score::SmafFile;
using Kind = score::SmafEventKind;
using testing::HasSubstr;

Bytes Written(const SmafFile& file)
{
    std::string error;
    const auto bytes = score::WriteSmaf(file, error);
    EXPECT_EQ(error, "");
    return bytes.value_or(Bytes());
}

SmafFile Read(const Bytes& bytes)
{
    std::string error;
    const auto reading = score::ReadSmaf(bytes, error);
    EXPECT_EQ(error, "");
    return reading ? reading->file : SmafFile();
}

std::string ReadingError(const Bytes& bytes)
{
    std::string error;
    const bool isRead = score::ReadSmaf(bytes, error).has_value();
    EXPECT_EQ(isRead, error.empty());
    return error;
}

TEST(Smaf, GoldenFilesAreReadEventForEventAndWrittenByteForByte)
{
    EXPECT_EQ(Read(golden::kMobile), golden::MobileFile());
    EXPECT_EQ(Read(golden::kHandyPhone), golden::HandyPhoneFile());
    EXPECT_EQ(Read(golden::kAudio), golden::AudioFile());
    EXPECT_EQ(Written(golden::MobileFile()), golden::kMobile);
    EXPECT_EQ(Written(golden::AudioFile()), golden::kAudio);
}

TEST(Smaf, WhatWasWrittenIsReadBack)
{
    SmafFile file = golden::MobileFile();
    file.contents.textCode = score::SmafTextCode::utf8;
    file.contents.options = {{"ST", "a, b \\ c, \xC3\xA4\xF0\x9F\x8E\xB5"}, {"AN", ""}};
    score::SmafScoreTrack& track = file.scores[0];
    track.exclusives = {{0xF7}, Bytes(200, 1)};
    track.exclusives[1].back() = 0xF7;
    track.events.push_back({400, 0, 0, Kind::exclusive, 0, 0, 0});
    track.events.push_back({400, 0, 1, Kind::exclusive, 0, 0, 0});
    track.events.push_back({400, 0, 0, Kind::bend, 15, 127, 64});
    track.events.push_back(golden::Note(3'000'000'0, 60, 100, score::kSmafMaximumGate));
    track.events.push_back(golden::Note(3'000'000'0, 60, 64, 128));
    track.end = score::kSmafMaximumTime;
    track.waves = {{1, score::SmafWaveKind::pcm, 16, true, 44100, {1, 2}},
                   {63, score::SmafWaveKind::adpcm, 4, false, 8000, {}}};
    file.audios = golden::AudioFile().audios;
    file.audios[0].events.push_back(golden::Note(40'000, 1, 127, score::kSmafMaximumAudioGate));
    file.audios[0].end = 100'000;

    const Bytes bytes = Written(file);

    const SmafFile again = Read(bytes);
    EXPECT_TRUE(again.contents == file.contents);
    EXPECT_TRUE(again.scores == file.scores);
    EXPECT_TRUE(again.audios == file.audios);
    EXPECT_LT(bytes.size(), 1500U);  // a wait of twelve days is some hundred NOPs
}

TEST(Smaf, TextsOfAnyBytesAndCodesBecomeUtf8)
{
    const auto title = [](score::SmafTextCode code, const std::string& text) {
        SmafFile file = golden::MobileFile();
        file.contents.textCode = code;
        file.contents.options = {{"ST", text}};
        return Read(Written(file)).contents.options.at(0).text;
    };
    const auto stored = [](std::uint8_t code, std::string_view bytes) {
        Bytes file(golden::kMobile.begin(), golden::kMobile.begin() + 21);
        file.insert(file.end(), {'O', 'P', 'D', 'A',
                                 0,   0,   0,   static_cast<std::uint8_t>(12 + bytes.size()),
                                 'D', 'c', 'h', code,
                                 0,   0,   0,   static_cast<std::uint8_t>(4 + bytes.size()),
                                 'S', 'T', 0,   static_cast<std::uint8_t>(bytes.size())});
        file.insert(file.end(), bytes.begin(), bytes.end());
        file.insert(file.end(), {0, 0});
        return Read(golden::Sealed(file)).contents.options.at(0).text;
    };

    EXPECT_EQ(title(score::SmafTextCode::utf8, "\xE4\x01 \xED\xA0\x80 \xC0\x80 \xC3"),
              "\xC3\xA4 \xC3\xAD\xC2\xA0 \xC3\x80 \xC3\x83");
    EXPECT_EQ(title(score::SmafTextCode::latin1, "\xC3\xA4,"), "\xC3\xA4,");
    EXPECT_EQ(stored(0, "a\x81\x5C\xB1"), "a\xEF\xBF\xBD\xEF\xBD\xB1");
    EXPECT_EQ(stored(0x24, std::string_view("\0A\xD8\x3C\xDF\xB5\xD8\x3C", 8)),
              "A\xF0\x9F\x8E\xB5\xEF\xBF\xBD");
}

TEST(Smaf, WhatTheFormatCannotHoldIsRefused)
{
    struct Case {
        const char* error;
        std::function<void(SmafFile&)> change;
    };
    const auto score = [](auto change) { return [change](SmafFile& file) { change(file.scores[0]); }; };
    const auto audio = [](auto change) { return [change](SmafFile& file) { change(file.audios[0]); }; };
    const Case kCases[] = {
        {"out of order", score([](auto& track) { track.events[6].time = 1; })},
        {"beyond the track's end", score([](auto& track) { track.end = 624; })},
        {"too long", score([](auto& track) { track.end = score::kSmafMaximumTime + 1; })},
        {"gate", score([](auto& track) { track.events[3].gate = 0; })},
        {"gate", score([](auto& track) {
             track.end = 1 + (track.events[6].gate = score::kSmafMaximumGate + 1) * 2ULL;
         })},
        {"over 7 bits", score([](auto& track) { track.events[3].second = 128; })},
        {"over 15", score([](auto& track) { track.events[3].channel = 16; })},
        {"control", score([](auto& track) { track.events[0].first = 91; })},
        {"exclusive", score([](auto& track) { track.events[0].kind = Kind::exclusive; })},
        {"kind", score([](auto& track) { track.events[0].kind = Kind::octaveShift; })},
        {"F7", score([](auto& track) { track.setup[0].pop_back(); })},
        {"Mobile", score([](auto& track) { track.format = score::SmafFormat::handyPhone; })},
        {"time base", score([](auto& track) { track.timeBase = 4; })},
        {"wave 0", score([](auto& track) {
             track.waves.resize(1);
             track.waves[0].id = 0;
         })},
        {"wave 1", score([](auto& track) {
             track.waves.resize(1);
             track.waves[0].bits = 5;
         })},
        {"text",
         [](SmafFile& file) {
             file.contents.options = {{"ST", "\xE2\x82\xAC"}};
         }},
        {"tag",
         [](SmafFile& file) {
             file.contents.options = {{"S,", ""}};
         }},
        {"rates", audio([](auto& track) { track.waves[0].rate = 16000; })},
        {"waves", audio([](auto& track) { track.waves.clear(); })},
        {"form", audio([](auto& track) { track.waves.push_back(track.waves[0]), track.waves[1].bits = 8; })},
        {"wave that is not there", audio([](auto& track) { track.events[1].first = 2; })},
        {"gate", audio([](auto& track) { track.end = track.events[1].gate = 16512; })},
        {"over 3", audio([](auto& track) { track.events[1].channel = 4; })},
        {"kind", audio([](auto& track) { track.events[0].first = 64; })},
    };
    for (const Case& one : kCases) {
        SmafFile file = golden::MobileFile();
        file.audios = golden::AudioFile().audios;
        one.change(file);
        std::string error;

        EXPECT_FALSE(score::WriteSmaf(file, error)) << one.error;
        EXPECT_THAT(error, HasSubstr(one.error));
    }
}

TEST(Smaf, DamageIsToldWithItsPlace)
{
    struct Case {
        const Bytes& file;
        std::size_t at;
        Bytes bytes;  // these stand there instead
        const char* error;
    };
    const Case kCases[] = {
        {golden::kMobile, 0, {'X'}, "byte 0: this is no SMAF file"},
        {golden::kMobile, 8, {'X'}, "byte 8: the contents information has to be the first chunk"},
        {golden::kMobile, 12, {1}, "byte 12: a chunk is longer than what it lies in"},
        {golden::kMobile, 15, {3}, "byte 19: more bytes are announced"},
        {golden::kMobile,
         21,
         {'C', 'N', 'T', 'I'},
         "byte 21: the contents information has to be the first chunk"},
        {golden::kMobile, 29, {1}, "byte 29: the score track is compressed (format 1)"},
        {golden::kMobile, 29, {3}, "byte 29: there is no track format 3"},
        {golden::kMobile, 31, {4, 4}, "byte 31: the time bases"},
        {golden::kMobile, 31, {3, 2}, "byte 31: the time bases"},
        {golden::kMobile, 57, {0xF1}, "byte 57: a setup holds something other"},
        {golden::kMobile, 64, {0}, "byte 59: an exclusive does not end with F7"},
        {golden::kMobile, 58, {7}, "byte 59: more bytes are announced"},
        {golden::kMobile, 65, {'X'}, "a track needs one sequence"},
        {golden::kMobile, 74, {0xA0}, "byte 74: there is no such event"},
        {golden::kMobile, 75, {0x80}, "byte 75: a value of an event is over 7 bits"},
        {golden::kMobile, 73, {0x80, 0x80, 0x80, 0x80}, "byte 73: a number has more than four bytes"},
        {golden::kMobile, 106, {0x00}, "byte 108: more bytes are announced"},
        {golden::kMobile, 77, {0x00, 0xFF, 0x2F, 0x00}, "byte 81: there are bytes behind the end"},
        {golden::kMobile, 74, {0xFF, 0x01}, "byte 74: an event is neither NOP"},
        {golden::kMobile, 74, {0xF0, 0x7F}, "byte 76: more bytes are announced"},
        {golden::kHandyPhone, 53, {0x20}, "byte 52: there is no such event"},
        {golden::kHandyPhone, 54, {0x80}, "byte 54: a value of an event is over 7 bits"},
        {golden::kHandyPhone, 56, {0x1D}, "byte 56: there is no such note"},
        {golden::kHandyPhone, 71, {0x01}, "byte 70: an event is neither NOP"},
        {golden::kHandyPhone, 75, {0x01}, "byte 73: there is no such event"},
        {golden::kAudio, 29, {1}, "byte 29: there is no such format of an audio track"},
        {golden::kAudio, 31, {0x15}, "byte 31: there is no such type of a wave"},
        {golden::kAudio, 31, {0x21}, "byte 31: there is no such type of a wave"},
        {golden::kAudio, 32, {0x40}, "byte 32: there is no such form of a wave"},
    };
    for (const Case& one : kCases) {
        Bytes damaged = one.file;
        std::ranges::copy(one.bytes, damaged.begin() + static_cast<std::ptrdiff_t>(one.at));

        EXPECT_THAT(ReadingError(golden::Sealed(damaged)), HasSubstr(one.error)) << one.at;
    }
    Bytes swarm = golden::kMobile;
    for (int i = 0; i < 5000; ++i)
        swarm.insert(swarm.begin() + 21, {'X', 'X', 'X', 'X', 0, 0, 0, 0});
    EXPECT_THAT(ReadingError(golden::Sealed(swarm)), HasSubstr("too many chunks"));
}

TEST(Smaf, NoFileIsTakenThatIsCutOrHasOneByteChanged)
{
    for (const Bytes* file : {&golden::kMobile, &golden::kHandyPhone, &golden::kAudio}) {
        for (std::size_t i = 0; i < file->size(); ++i) {
            Bytes changed = *file;
            changed[i] ^= 0x10;
            const Bytes cut(file->begin(), file->begin() + static_cast<std::ptrdiff_t>(i));
            Bytes longer = *file;
            longer.insert(longer.begin() + static_cast<std::ptrdiff_t>(i), 0);

            EXPECT_NE(ReadingError(changed), "") << i;
            EXPECT_NE(ReadingError(cut), "") << i;
            EXPECT_NE(ReadingError(longer), "") << i;
        }
    }
}

TEST(Smaf, ASummaryCountsWhatSoundsAtOnce)
{
    SmafFile file = golden::MobileFile();
    file.contents.options = {{"AN", "somebody"}, {"ST", "a title"}};
    file.scores[0].events[6].time = 374;  // begins while the third note sounds, which the second ends before
    file.scores[0].events[6].channel = 9;
    file.audios = golden::AudioFile().audios;
    file.audios[0].timeBase = 0x13;
    file.audios[0].events[1].time = file.audios[0].end = 60;

    const score::SmafSummary summary = score::SummariseSmaf(file);

    EXPECT_EQ(summary.milliseconds, 3000U);
    EXPECT_EQ(summary.notes, 5U);
    EXPECT_EQ(summary.channels, 3U);
    EXPECT_EQ(summary.polyphony, 2U);
    EXPECT_EQ(summary.waves, 1U);
    EXPECT_EQ(summary.title, "a title");
}

}  // namespace
