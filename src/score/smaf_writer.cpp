// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "score/smaf_writer.h"

#include "score/crc16.h"
#include "score/smaf_audio_writer.h"
#include "score/smaf_bytes.h"
#include "score/smaf_text.h"

#include <fmt/format.h>

#include <algorithm>
#include <limits>

namespace score
{

namespace
{

constexpr std::uint32_t kLongestWait = (1U << 21) - 1;
constexpr std::size_t kCrcSize = 2;

// What is wrong with an event of a Mobile track, or nothing.
const char* Complaint(const SmafScoreTrack& track, const SmafEvent& event)
{
    if (event.channel > 15 || ((event.first | event.second) & 0x80) != 0) {
        return "has a value over 7 bits or a channel over 15";
    }
    switch (event.kind) {
    case SmafEventKind::note:
        return event.gate == 0 || event.gate > kSmafMaximumGate ? "has a gate out of range" : nullptr;
    case SmafEventKind::control:
        return IsSmafControl(event.first) ? nullptr : "is a control that the format does not know";
    case SmafEventKind::exclusive:
        return event.index < track.exclusives.size() ? nullptr : "names an exclusive that is not there";
    case SmafEventKind::bank:
    case SmafEventKind::octaveShift:
        return "is of a kind that a Mobile track does not have";
    default:
        return nullptr;
    }
}

bool IsExclusive(const std::vector<std::uint8_t>& exclusive)
{
    constexpr std::size_t kLongest = 1 << 20;
    return !exclusive.empty() && exclusive.back() == 0xF7 && exclusive.size() <= kLongest;
}

void PutExclusive(CSmafBytes& out, const std::vector<std::uint8_t>& exclusive)
{
    out.Byte(0xF0);
    out.MobileNumber(static_cast<std::uint32_t>(exclusive.size()));
    out.Block(exclusive);
}

// The sequence of a Mobile track.
class CMobileSequence
{
public:
    CMobileSequence(CSmafBytes& target, const SmafScoreTrack& source) : out(target), track(source)
    {
        velocities.fill(0xFF);
    }

    void Write()
    {
        for (const SmafEvent& event : track.events) {
            Wait(event.time);
            Put(event);
        }
        Wait(track.end);
        out.Byte(0xFF);
        out.Byte(0x2F);
        out.Byte(0);
    }

private:
    // The duration in front of what comes at that time.
    void Wait(std::uint64_t time)
    {
        for (; time - now > kLongestWait; now += kLongestWait) {
            out.MobileNumber(kLongestWait);
            out.Byte(0xFF);
            out.Byte(0);
        }
        out.MobileNumber(static_cast<std::uint32_t>(time - now));
        now = time;
    }

    void PutNote(const SmafEvent& event)
    {
        const bool isRemembered = velocities[event.channel] == event.second;
        out.Byte((isRemembered ? 0x80 : 0x90) | event.channel);
        out.Byte(event.first);
        if (!isRemembered) {
            out.Byte(event.second);
            velocities[event.channel] = event.second;
        }
        out.MobileNumber(event.gate);
    }

    void Put(const SmafEvent& event)
    {
        switch (event.kind) {
        case SmafEventKind::note:
            PutNote(event);
            break;
        case SmafEventKind::exclusive:
            PutExclusive(out, track.exclusives[event.index]);
            break;
        case SmafEventKind::program:
            out.Byte(0xC0 | event.channel);
            out.Byte(event.first);
            break;
        default:
            out.Byte((event.kind == SmafEventKind::bend ? 0xE0 : 0xB0) | event.channel);
            out.Byte(event.first);
            out.Byte(event.second);
        }
    }

    CSmafBytes& out;
    const SmafScoreTrack& track;
    std::uint64_t now = 0;
    std::array<std::uint8_t, 16> velocities{};
};

std::string CheckScore(const SmafScoreTrack& track)
{
    if (track.format != SmafFormat::mobile || SmafBaseMilliseconds(track.timeBase) == 0) {
        return "only Mobile uncompressed score tracks with a known time base are written";
    }
    const std::string times = CheckSmafTimes(track.events, track.end);
    if (!times.empty()) {
        return times;
    }
    for (std::size_t i = 0; i < track.events.size(); ++i) {
        if (const char* complaint = Complaint(track, track.events[i])) {
            return fmt::format("event {} {}", i, complaint);
        }
    }
    if (!std::ranges::all_of(track.setup, IsExclusive) ||
        !std::ranges::all_of(track.exclusives, IsExclusive)) {
        return "an exclusive does not end with F7 or is too long";
    }
    for (const SmafWave& wave : track.waves) {
        if (!IsSmafWave(wave)) {
            return fmt::format("wave {} has a number or a width that there is not", wave.id);
        }
    }
    return {};
}

void PutWaves(CSmafBytes& out, const SmafScoreTrack& track)
{
    const std::size_t chunk = out.BeginChunk("Mtsp");
    for (const SmafWave& wave : track.waves) {
        const std::size_t inner = out.BeginChunk("Mwa", wave.id);
        out.Byte((wave.stereo ? 0x80U : 0U) | static_cast<unsigned>(wave.kind) << 4 | (wave.bits / 4U - 1));
        out.Word(wave.rate);
        out.Block(wave.data);
        out.EndChunk(inner);
    }
    out.EndChunk(chunk);
}

void PutScore(CSmafBytes& out, const SmafScoreTrack& track)
{
    const std::size_t chunk = out.BeginChunk("MTR", track.number);
    out.Byte(static_cast<unsigned>(track.format));
    out.Byte(0);
    out.Byte(track.timeBase);
    out.Byte(track.timeBase);
    out.Block(track.channelStatus);
    if (!track.setup.empty()) {
        const std::size_t setup = out.BeginChunk("Mtsu");
        for (const auto& exclusive : track.setup) {
            PutExclusive(out, exclusive);
        }
        out.EndChunk(setup);
    }
    const std::size_t sequence = out.BeginChunk("Mtsq");
    CMobileSequence(out, track).Write();
    out.EndChunk(sequence);
    if (!track.waves.empty()) {
        PutWaves(out, track);
    }
    out.EndChunk(chunk);
}

std::string PutContents(CSmafBytes& out, const SmafContents& contents)
{
    const std::size_t chunk = out.BeginChunk("CNTI");
    out.Byte(0);
    out.Byte(contents.type);
    out.Byte(static_cast<unsigned>(contents.textCode));
    out.Byte(contents.copyStatus);
    out.Byte(contents.copyCount);
    for (const SmafOption& option : contents.options) {
        const auto text = EncodeSmafText(option.text, contents.textCode);
        const auto isLetter = [](char letter) { return letter >= 'A' && letter <= 'Z'; };
        if (!text || option.tag.size() != 2 || !std::ranges::all_of(option.tag, isLetter)) {
            return "a text cannot be written in that text code, or its tag is none";
        }
        out.Text(option.tag);
        out.Byte(':');
        for (const char letter : *text) {
            if (letter == ',' || letter == '\\') {
                out.Byte('\\');
            }
            out.Byte(static_cast<std::uint8_t>(letter));
        }
        out.Byte(',');
    }
    out.EndChunk(chunk);
    return {};
}

}  // namespace

std::string CheckSmafTimes(const std::vector<SmafEvent>& events, std::uint64_t end)
{
    std::uint64_t now = 0;
    for (std::size_t i = 0; i < events.size(); ++i) {
        const SmafEvent& event = events[i];
        const std::uint64_t gate = event.kind == SmafEventKind::note ? event.gate : 0;
        if (event.time < now || event.time > end || gate > end - event.time) {
            return fmt::format("event {} is out of order or lasts beyond the track's end", i);
        }
        now = event.time;
    }
    return end > kSmafMaximumTime ? "the track is too long" : "";
}

bool IsSmafWave(const SmafWave& wave)
{
    return wave.id != 0 && wave.id <= kSmafMaximumWave && wave.bits % 4 == 0 && wave.bits >= 4 &&
           wave.bits <= 16;
}

bool IsSmafControl(std::uint8_t control)
{
    constexpr std::array<std::uint8_t, 14> kControls = {0,  1,   6,   7,   10,  11,  32,
                                                        64, 100, 101, 120, 121, 126, 127};
    return std::ranges::binary_search(kControls, control);
}

std::optional<std::vector<std::uint8_t>> WriteSmaf(const SmafFile& file, std::string& error)
{
    CSmafBytes out;
    const std::size_t chunk = out.BeginChunk("MMMD");
    error = PutContents(out, file.contents);
    for (const SmafScoreTrack& track : file.scores) {
        if (error.empty() && (error = CheckScore(track)).empty()) {
            PutScore(out, track);
        }
    }
    for (const SmafAudioTrack& track : file.audios) {
        if (error.empty() && (error = CheckSmafAudio(track)).empty()) {
            PutSmafAudio(out, track);
        }
    }
    if (error.empty() && out.Size() > std::numeric_limits<std::uint32_t>::max() - kCrcSize) {
        error = "the file would be over 4 GB";
    }
    if (!error.empty()) {
        return std::nullopt;
    }
    out.EndChunk(chunk, kCrcSize);
    out.Word(Crc16(out.Bytes()));
    return std::move(out.Bytes());
}

}  // namespace score
