// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/wave_record.h"

#include "platform/services.h"
#include "sound/adpcm.h"

#include <algorithm>

namespace sound
{

namespace
{

constexpr std::uint64_t kMostData = 256 << 20;  // more than four hours at 8000 Hz
constexpr std::size_t kBlock = 256 << 10;

const char* Complaint(const CWavFile& file)
{
    const WavFormat& format = file.Format();
    if (SuitsHandset(format)) {
        return file.DataSize() > kMostData ? "the sound is too long" : nullptr;
    }
    if (format.sampleRate != 4000 && format.sampleRate != 8000) {
        return "the sample rate is neither 4000 nor 8000 Hz";
    }
    if (format.bitsPerSample != 16) {
        return "the samples are not of 16 bits";
    }
    return "there is more than one channel";
}

// The samples of little-endian bytes, or every second of them.
std::vector<std::int16_t> Samples(std::span<const std::byte> bytes, std::size_t stride)
{
    std::vector<std::int16_t> samples((bytes.size() / 2 + stride - 1) / stride);
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const std::size_t at = i * stride * 2;
        samples[i] = static_cast<std::int16_t>(std::to_integer<unsigned>(bytes[at]) |
                                               std::to_integer<unsigned>(bytes[at + 1]) << 8);
    }
    return samples;
}

void SetName(WaveRecord& record, std::string_view name)
{
    const auto isInside = [&name](std::size_t at) {
        return (static_cast<unsigned>(name[at]) & 0xC0) == 0x80;
    };
    std::size_t length = std::min(name.size(), record.name.size());
    while (length < name.size() && length > 0 && isInside(length)) {
        --length;
    }
    std::copy_n(name.begin(), length, record.name.begin());
}

}  // namespace

bool SuitsHandset(const WavFormat& format)
{
    return (format.sampleRate == 4000 || format.sampleRate == 8000) && format.bitsPerSample == 16 &&
           format.channels == 1;
}

std::uint16_t WaveNumber(std::uint8_t a, std::uint8_t b)
{
    constexpr int kFirstFolded = 92;
    constexpr int kFold = 79;
    return static_cast<std::uint16_t>(a * 49 + b - (b >= kFirstFolded ? kFold : 0));
}

std::string_view WaveName(const WaveRecord& record)
{
    const auto end = std::ranges::find(record.name, '\0');
    return {record.name.data(), static_cast<std::size_t>(end - record.name.begin())};
}

std::optional<WaveRecord> EncodeWave(const std::string& path, const WaveRequest& request, std::string& error)
{
    CWavFile file;
    if (!file.Open(path)) {
        error = file.Error();
        return std::nullopt;
    }
    if (const char* complaint = Complaint(file)) {
        error = complaint;
        return std::nullopt;
    }
    const bool halves = request.halved && file.Format().sampleRate == 8000;
    WaveRecord record;
    record.number = WaveNumber(request.a, request.b);
    SetName(record, request.name);
    record.b = request.b;
    record.a = request.a;
    record.sampleRate = static_cast<std::uint16_t>(halves ? 4000 : file.Format().sampleRate);
    record.data.reserve(static_cast<std::size_t>(file.DataSize() / (halves ? 8 : 4) + 1));

    CAdpcmEncoder encoder;
    std::vector<std::byte> block(static_cast<std::size_t>(std::min<std::uint64_t>(kBlock, file.DataSize())));
    std::uint64_t total = 0;
    while (const std::size_t count = file.Read(block)) {
        total += count;
        encoder.Encode(Samples(std::span(block).first(count), halves ? 2 : 1), record.data);
    }
    if (total != file.DataSize()) {
        error = platform::Os().files->LastError();
        return std::nullopt;
    }
    record.length = static_cast<std::uint32_t>(record.data.size());
    return record;
}

}  // namespace sound
