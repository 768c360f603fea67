// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "score/smaf_audio_writer.h"

#include <fmt/format.h>

#include <algorithm>

namespace score
{

namespace
{

constexpr std::uint32_t kLongestWait = kSmafMaximumAudioGate;

// The codes of controls in Handy Phone Standard sequences; 0 for those that have none.
std::uint8_t ControlCode(std::uint8_t control)
{
    return control == 7 ? 0x37 : control == 10 ? 0x3A : control == 11 ? 0x3B : 0;
}

bool HoldsWave(const SmafAudioTrack& track, std::uint8_t id)
{
    return std::ranges::any_of(track.waves, [id](const SmafWave& wave) { return wave.id == id; });
}

const char* Complaint(const SmafAudioTrack& track, const SmafEvent& event)
{
    if (event.channel > 3 || ((event.first | event.second) & 0x80) != 0) {
        return "has a value over 7 bits or a channel over 3";
    }
    if (event.kind == SmafEventKind::note) {
        if (event.gate == 0 || event.gate > kSmafMaximumAudioGate) {
            return "has a gate out of range";
        }
        return HoldsWave(track, event.first) ? nullptr : "names a wave that is not there";
    }
    const bool isKnown = event.kind == SmafEventKind::control && ControlCode(event.first) != 0;
    return isKnown ? nullptr : "is of a kind that an audio track does not have";
}

void Wait(CSmafBytes& out, std::uint64_t& now, std::uint64_t time)
{
    for (; time - now > kLongestWait; now += kLongestWait) {
        out.HandyPhoneNumber(kLongestWait);
        out.Byte(0xFF);
        out.Byte(0);
    }
    out.HandyPhoneNumber(static_cast<std::uint32_t>(time - now));
    now = time;
}

// The end marker's own duration is 0: what is left until the end passes before a NOP.
void PutSequence(CSmafBytes& out, const SmafAudioTrack& track)
{
    std::uint64_t now = 0;
    for (const SmafEvent& event : track.events) {
        Wait(out, now, event.time);
        const unsigned channel = static_cast<unsigned>(event.channel) << 6;
        if (event.kind == SmafEventKind::note) {
            out.Byte(channel | event.first);
            out.HandyPhoneNumber(event.gate);
        } else {
            out.Byte(0);
            out.Byte(channel | ControlCode(event.first));
            out.Byte(event.second);
        }
    }
    if (now < track.end) {
        Wait(out, now, track.end);
        out.Byte(0xFF);
        out.Byte(0);
    }
}

}  // namespace

std::string CheckSmafAudio(const SmafAudioTrack& track)
{
    if (SmafBaseMilliseconds(track.timeBase) == 0) {
        return "the time base is none";
    }
    if (track.waves.empty() || SmafRateCode(track.waves[0].rate) < 0) {
        return "an audio track needs waves of one of the five rates";
    }
    for (const SmafWave& wave : track.waves) {
        const SmafWave& first = track.waves[0];
        const bool isAlike = wave.rate == first.rate && wave.kind == first.kind && wave.bits == first.bits &&
                             wave.stereo == first.stereo;
        if (!IsSmafWave(wave) || wave.kind == SmafWaveKind::offsetPcm || !isAlike) {
            return fmt::format("wave {} is not of the form that the track holds", wave.id);
        }
    }
    for (std::size_t i = 0; i < track.events.size(); ++i) {
        if (const char* complaint = Complaint(track, track.events[i])) {
            return fmt::format("event {} {}", i, complaint);
        }
    }
    return CheckSmafTimes(track.events, track.end);
}

void PutSmafAudio(CSmafBytes& out, const SmafAudioTrack& track)
{
    const SmafWave& form = track.waves[0];
    const std::size_t chunk = out.BeginChunk("ATR", track.number);
    out.Byte(0);
    out.Byte(0);
    out.Word((form.stereo ? 0x8000U : 0U) | (form.kind == SmafWaveKind::adpcm ? 0x1000U : 0U) |
             static_cast<unsigned>(SmafRateCode(form.rate)) << 8 | (form.bits / 4U - 1) << 4);
    out.Byte(track.timeBase);
    out.Byte(track.timeBase);

    CSmafBytes sequence;
    PutSequence(sequence, track);
    const std::size_t seek = out.BeginChunk("AspI");
    out.Text("st:");
    out.Long(0);
    out.Text(",sp:");
    out.Long(static_cast<std::uint32_t>(sequence.Size()));
    out.Text(",");
    out.EndChunk(seek);
    const std::size_t events = out.BeginChunk("Atsq");
    out.Block(sequence.Bytes());
    out.Long(0);
    out.EndChunk(events);
    for (const SmafWave& wave : track.waves) {
        const std::size_t data = out.BeginChunk("Awa", wave.id);
        out.Block(wave.data);
        out.EndChunk(data);
    }
    out.EndChunk(chunk);
}

}  // namespace score
