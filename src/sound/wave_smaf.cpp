// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/wave_smaf.h"

#include "sound/adpcm.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace sound
{

namespace
{

using score::SmafEvent;
using Kind = score::SmafEventKind;

constexpr std::uint8_t kWaveNumber = 1;
constexpr std::uint8_t kLoudest = 127;
constexpr std::uint8_t kAudioType = 0x01;
constexpr std::uint8_t kRhythm = 3;
constexpr std::uint8_t kRhythmBank = 0x7D;

std::uint32_t Units(const WaveRecord& record, std::uint8_t base)
{
    const std::uint64_t perSecond = 1000 / score::SmafBaseMilliseconds(base);
    const std::uint64_t samples = std::uint64_t{record.length} * 2;
    const std::uint64_t units = (samples * perSecond + record.sampleRate - 1) / record.sampleRate;
    return static_cast<std::uint32_t>(std::max<std::uint64_t>(units, 1));
}

score::SmafWave MakeWave(const WaveRecord& record)
{
    score::SmafWave wave;
    wave.id = kWaveNumber;
    wave.rate = record.sampleRate;
    wave.data = record.data;
    return wave;
}

SmafEvent Control(std::uint8_t control, std::uint8_t value)
{
    return {0, 0, 0, Kind::control, 0, control, value};
}

score::SmafScoreTrack StreamTrack(const WaveRecord& record)
{
    constexpr std::uint8_t kKeyOfFirstWave = 0;
    score::SmafScoreTrack track;
    track.channelStatus[0] = kRhythm;
    track.end = Units(record, track.timeBase);
    const auto gate = static_cast<std::uint32_t>(track.end);
    track.events = {Control(0, kRhythmBank), Control(32, 0), SmafEvent{0, 0, 0, Kind::program, 0, 0, 0},
                    Control(7, kLoudest), SmafEvent{0, gate, 0, Kind::note, 0, kKeyOfFirstWave, kLoudest}};
    track.waves = {MakeWave(record)};
    return track;
}

// The finest time base that has room for the sound; nothing when none has.
std::optional<score::SmafAudioTrack> AudioTrack(const WaveRecord& record)
{
    constexpr std::array<std::uint8_t, 5> kBases = {score::kSmafBase4Ms, 0x10, 0x11, 0x12, 0x13};
    const auto fits = [&record](std::uint8_t base) {
        return Units(record, base) <= score::kSmafMaximumAudioGate;
    };
    const auto base = std::ranges::find_if(kBases, fits);
    if (base == kBases.end()) {
        return std::nullopt;
    }
    score::SmafAudioTrack track;
    track.timeBase = *base;
    track.end = Units(record, track.timeBase);
    const auto gate = static_cast<std::uint32_t>(track.end);
    track.events = {Control(7, kLoudest), SmafEvent{0, gate, 0, Kind::note, 0, kWaveNumber, kLoudest}};
    track.waves = {MakeWave(record)};
    return track;
}

void PutNumber(std::vector<std::uint8_t>& bytes, std::uint32_t value, int count)
{
    for (; count > 0; --count, value >>= 8) {
        bytes.push_back(static_cast<std::uint8_t>(value));
    }
}

void PutText(std::vector<std::uint8_t>& bytes, std::string_view text)
{
    bytes.insert(bytes.end(), text.begin(), text.end());
}

}  // namespace

std::optional<score::SmafFile> WaveAsSmaf(const WaveRecord& record, const std::string& title, WavePlace place)
{
    score::SmafFile file;
    if (!title.empty()) {
        file.contents.options = {{"ST", title}};
    }
    if (place == WavePlace::streamPcm) {
        file.scores = {StreamTrack(record)};
        return file.scores[0].end <= score::kSmafMaximumGate ? std::optional(file) : std::nullopt;
    }
    file.contents.type = kAudioType;
    const auto track = AudioTrack(record);
    if (!track) {
        return std::nullopt;
    }
    file.audios = {*track};
    return file;
}

std::vector<const score::SmafWave*> WavesOf(const score::SmafFile& file)
{
    std::vector<const score::SmafWave*> waves;
    const auto add = [&waves](const auto& tracks) {
        for (const auto& track : tracks) {
            for (const score::SmafWave& wave : track.waves) {
                waves.push_back(&wave);
            }
        }
    };
    add(file.audios);
    add(file.scores);
    return waves;
}

bool IsMonoAdpcm(const score::SmafWave& wave)
{
    return wave.kind == score::SmafWaveKind::adpcm && wave.bits == 4 && !wave.stereo;
}

std::vector<std::uint8_t> PcmAsWav(std::span<const std::int16_t> samples, std::uint32_t rate)
{
    constexpr std::uint32_t kBytesPerSample = 2;
    constexpr std::uint32_t kFormatSize = 16;
    constexpr std::uint32_t kHeaderSize = 44;
    const auto size = static_cast<std::uint32_t>(samples.size() * kBytesPerSample);
    std::vector<std::uint8_t> bytes;
    bytes.reserve(kHeaderSize + size);
    PutText(bytes, "RIFF");
    PutNumber(bytes, kHeaderSize - 8 + size, 4);
    PutText(bytes, "WAVEfmt ");
    PutNumber(bytes, kFormatSize, 4);
    PutNumber(bytes, 1, 2);  // PCM
    PutNumber(bytes, 1, 2);  // channel
    PutNumber(bytes, rate, 4);
    PutNumber(bytes, rate * kBytesPerSample, 4);
    PutNumber(bytes, kBytesPerSample, 2);
    PutNumber(bytes, 8 * kBytesPerSample, 2);
    PutText(bytes, "data");
    PutNumber(bytes, size, 4);
    for (const std::int16_t sample : samples) {
        PutNumber(bytes, static_cast<std::uint16_t>(sample), 2);
    }
    return bytes;
}

std::optional<std::vector<std::uint8_t>> WaveAsWav(const score::SmafWave& wave)
{
    constexpr std::size_t kMostBytes = 512 << 20;
    if (!IsMonoAdpcm(wave) || wave.data.size() > kMostBytes) {
        return std::nullopt;
    }
    return PcmAsWav(DecodeAdpcm(wave.data), wave.rate);
}

}  // namespace sound
