// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/services.h"
#include "sound/adpcm.h"
#include "sound/wav_file.h"
#include "sound/wave_record.h"
#include "support/faulty_file_system.h"
#include "support/memory_file.h"
#include "support/services_guard.h"
#include "support/temp_folder.h"
#include "wav_builder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

namespace
{

using Bytes = std::vector<std::uint8_t>;
using testing::ElementsAre;
using testing::HasSubstr;

// The data of a WAV file, or why there is none.
std::string DataOf(const std::string& bytes)
{
    sound::CWavFile file;
    if (!file.Open(std::make_unique<support::CMemoryFile>(bytes)))
        return file.Error();
    std::string data(static_cast<std::size_t>(file.DataSize()) + 10, '\0');
    data.resize(file.Read(std::as_writable_bytes(std::span(data))));
    return data;
}

TEST(WavFile, SamplesAreFoundWhateverStandsAroundThem)
{
    const std::string format = wav::Format();
    const std::string list = wav::Chunk("LIST", "odd");
    const std::string data = wav::Chunk("data", "abcd");
    const std::string large = wav::Chunk("LIST", "", 0xFFFFFFF0);
    const std::string longFormat = wav::Chunk("fmt ", format.substr(8) + std::string("\2\0xx", 4));
    struct Case {
        const char* what;
        std::string bytes;
        const char* expected;
    };
    const Case kCases[] = {
        {"plain", wav::File(format + data), "abcd"},
        {"other chunks", wav::File(list + format + list + data + list), "abcd"},
        {"data before format", wav::File(data + format), "abcd"},
        {"a longer format", wav::File(longFormat + data), "abcd"},
        {"two data chunks", wav::File(format + data + wav::Chunk("data", "x")), "abcd"},
        {"RIFF size too small", wav::File(format + data, 4), "abcd"},
        {"RIFF size too large", wav::File(format + data, 0x7FFFFFFF), "abcd"},
        {"data size too large", wav::File(format + wav::Chunk("data", "ab", 50)), "ab"},
        {"stream", wav::File(format + wav::Chunk("data", "abcd", 0xFFFFFFFF), 0xFFFFFFFF), "abcd"},
        {"stream of size 0", wav::File(format + wav::Chunk("data", "abcd", 0), 36), "abcd"},
        {"stream without RIFF size", wav::File(format + wav::Chunk("data", "abcd", 0), 0), "abcd"},
        {"no samples", wav::File(format + wav::Chunk("data", "") + list), ""},
        {"no samples at the end", wav::File(format + wav::Chunk("data", "")), ""},
        {"nothing", "", "is no WAV file: too short"},
        {"not RIFF", "RIFX" + wav::File(format + data).substr(4), "RIFX files are not supported"},
        {"64 bits", "RF64" + wav::File(format + data).substr(4), "RF64 files are not supported"},
        {"not WAVE", wav::Chunk("RIFF", "AVI " + format + data), "is no WAV file"},
        {"no format", wav::File(data), "has no chunk \"fmt \""},
        {"no data", wav::File(format + list), "has no chunk \"data\""},
        {"a short format", wav::File(wav::Chunk("fmt ", format.substr(8, 14)) + data),
         "has a chunk \"fmt \" that is too short"},
        {"a cut format", wav::File(format).substr(0, 30), "has a chunk \"fmt \" that is too short"},
        {"floats", wav::File(wav::Format(8000, 16, 1, 3) + data), "does not hold PCM samples"},
        {"a chunk beyond the end", wav::File(format + large + data), "has no chunk \"data\""},
    };
    for (const Case& one : kCases)
        EXPECT_EQ(DataOf(one.bytes), one.expected) << one.what;
}

// As it is told: the quarter steps are counted one by one.
Bytes EncodedByCounting(const std::vector<std::int16_t>& samples)
{
    constexpr int kFactors[] = {230, 230, 230, 230, 307, 409, 512, 614};
    Bytes encoded((samples.size() + 1) / 2);
    int predictor = 0;
    int step = 127;
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const int difference = samples[i] - predictor;
        int q = 0;
        while (q < 7 && std::abs(difference) >= step / 4 * (q + 1))
            ++q;
        const int change = (q >> 2) * step + (q >> 1 & 1) * (step / 2) + (q & 1) * (step / 4) + step / 8;
        predictor = std::clamp(difference < 0 ? predictor - change : predictor + change, -32768, 32767);
        step = std::clamp(step * kFactors[q] >> 8, 127, 24576);
        encoded[i / 2] =
            static_cast<std::uint8_t>(encoded[i / 2] + ((q + (difference < 0 ? 8 : 0)) << (i % 2 * 4)));
    }
    return encoded;
}

TEST(Adpcm, AnySoundIsEncodedAsByCountingAlsoInPieces)
{
    std::mt19937 random(1);
    for (const int range : {1, 100, 3000, 32768}) {
        std::vector<std::int16_t> samples(20'001);
        int level = 0;
        for (std::int16_t& sample : samples) {
            level = range == 32768 ? static_cast<int>(random() % 65536) - 32768
                                   : std::clamp(level + static_cast<int>(random() % (2 * range + 1)) - range,
                                                -32768, 32767);
            sample =
                static_cast<std::int16_t>(random() % 50 == 0 ? (random() % 2 == 0 ? -32768 : 32767) : level);
        }
        sound::CAdpcmEncoder encoder;
        Bytes encoded;
        for (std::size_t at = 0; at < samples.size();) {
            const std::size_t length = std::min<std::size_t>(random() % 99, samples.size() - at);
            encoder.Encode(std::span(samples).subspan(at, length), encoded);
            at += length;
        }

        EXPECT_TRUE(encoded == EncodedByCounting(samples)) << range;
        EXPECT_EQ(sound::DecodeAdpcm(encoded).at(samples.size() - 1), encoder.State().predictor);
    }
}

TEST(Adpcm, SilenceSwaysByAnEighthOfTheLeastStep)
{
    sound::CAdpcmEncoder encoder;
    Bytes encoded;

    encoder.Encode(std::vector<std::int16_t>(5), encoded);

    EXPECT_THAT(encoded, ElementsAre(0x80, 0x80, 0x00));
    EXPECT_EQ(encoder.State().step, 127);
    EXPECT_EQ(encoder.State().predictor, 15);
}

class WaveRecords : public testing::Test
{
protected:
    std::optional<sound::WaveRecord> Encode(const std::string& bytes, const sound::WaveRequest& request = {})
    {
        return sound::EncodeWave(folder.Make("a.wav", bytes), request, error);
    }
    static std::string File(const std::vector<std::int16_t>& samples, unsigned rate = 8000)
    {
        return wav::File(wav::Format(rate) + wav::Chunk("data", wav::Samples(samples)));
    }

    support::CServicesGuard guard{platform::Services()};
    platform_linux::CLinuxServices services;
    support::CTempFolder folder;
    std::string error;

    void SetUp() override { services.Install(); }
};

TEST_F(WaveRecords, ARecordHoldsTheSoundAndWhatWasAskedFor)
{
    const auto record =
        Encode(File({100, -100, 3000, -3000, 50}), {1, 100, "Sixteen letters and more", false});

    ASSERT_TRUE(record) << error;
    EXPECT_EQ(record->number, 70);
    EXPECT_EQ(sound::WaveName(*record), "Sixteen letters ");
    EXPECT_EQ(record->a, 1);
    EXPECT_EQ(record->b, 100);
    EXPECT_EQ(record->format, 4);
    EXPECT_EQ(record->sampleRate, 8000);
    EXPECT_EQ(record->length, 3U);
    EXPECT_EQ(record->data, EncodedByCounting({100, -100, 3000, -3000, 50}));
    EXPECT_EQ(record->data[2] >> 4, 0);
}

TEST_F(WaveRecords, HalvingKeepsTheEvenSamplesOfEightThousandHertz)
{
    std::vector<std::int16_t> samples(300'001);
    std::vector<std::int16_t> even;
    for (std::size_t i = 0; i < samples.size(); ++i) {
        samples[i] = static_cast<std::int16_t>(i * i / 7);
        if (i % 2 == 0)
            even.push_back(samples[i]);
    }

    const auto halved = Encode(File(samples), {0, 0, "", true});
    const auto slow = Encode(File(samples, 4000), {0, 0, "", true});

    ASSERT_TRUE(halved && slow);
    EXPECT_EQ(halved->sampleRate, 4000);
    EXPECT_TRUE(halved->data == EncodedByCounting(even));
    EXPECT_EQ(slow->sampleRate, 4000);
    EXPECT_TRUE(slow->data == EncodedByCounting(samples));
}

TEST_F(WaveRecords, WhatTheChipCannotPlayIsRefused)
{
    const std::string data = wav::Chunk("data", std::string(16, '\0'));
    const std::pair<std::string, const char*> kCases[] = {
        {wav::Format(8000, 16, 2), "channel"}, {wav::Format(8000, 8), "16 bits"},
        {wav::Format(11025), "4000 nor 8000"}, {wav::Format(8000, 16, 0), "channel"},
        {wav::Format(8000, 16, 1, 6), "PCM"},
    };
    for (const auto& [format, why] : kCases) {
        EXPECT_FALSE(Encode(wav::File(format + data)));
        EXPECT_THAT(error, HasSubstr(why));
    }
    EXPECT_FALSE(sound::EncodeWave(folder.Path("none"), {}, error));
    EXPECT_TRUE(Encode(File({})));
}

TEST_F(WaveRecords, ADiskThatFailsHalfWayGivesNoHalfSound)
{
    support::CFaultyFileSystem faulty(*platform::Os().files);
    faulty.badFrom = 300'000;
    const support::CServicesGuard onFaulty(faulty);

    EXPECT_FALSE(Encode(File(std::vector<std::int16_t>(400'000))));
    EXPECT_NE(error, "");
}

TEST(WaveNumbers, FoldFromNinetyTwoOn)
{
    EXPECT_EQ(sound::WaveNumber(1, 100), 70);
    EXPECT_EQ(sound::WaveNumber(1, 91), 140);
    EXPECT_EQ(sound::WaveNumber(0, 92), 13);
    EXPECT_EQ(sound::WaveNumber(255, 255), 12671);
}

}  // namespace
