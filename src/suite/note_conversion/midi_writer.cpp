// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/note_conversion/midi_writer.h"

#include <algorithm>
#include <queue>

namespace suite
{

namespace
{

using score::ChipNote;
using score::MidiEvent;
using score::MidiEventKind;

constexpr std::uint64_t kLongestWait = 0x0FFFFFFF;

enum MetaType : std::uint8_t {
    text = 0x01,
    copyrightText = 0x02,
    trackName = 0x03,
    endOfTrack = 0x2F,
    setTempo = 0x51
};

// One track in the making. Past `most` bytes it takes nothing more.
class CTrack
{
public:
    explicit CTrack(std::size_t limit) : most(limit) {}

    void Channel(std::uint64_t tick, std::uint8_t status, std::uint8_t first, int second = -1)
    {
        Wait(tick);
        if (status != running)
            Put(status);
        running = status;
        Put(first);
        if (second >= 0)
            Put(static_cast<std::uint8_t>(second));
    }

    template <typename Bytes> void Meta(std::uint64_t tick, MetaType type, const Bytes& data)
    {
        Wait(tick);
        PutMeta(type, data);
    }

    void MasterVolume(std::uint64_t tick, std::uint8_t value)
    {
        Wait(tick);
        for (const int byte : {0xF0, 0x07, 0x7F, 0x7F, 0x04, 0x01, 0x00, +value, 0xF7})
            Put(static_cast<std::uint8_t>(byte));
        running = 0;
    }

    bool IsOver() const { return bytes.size() > most; }

    std::vector<std::uint8_t> bytes;

private:
    void Put(std::uint8_t byte)
    {
        if (!IsOver())
            bytes.push_back(byte);
    }

    void PutNumber(std::uint64_t value)
    {
        for (int shift = 21; shift > 0; shift -= 7) {
            if (value >> shift != 0)
                Put(static_cast<std::uint8_t>(0x80 | (value >> shift & 0x7F)));
        }
        Put(value & 0x7F);
    }

    template <typename Bytes> void PutMeta(MetaType type, const Bytes& data)
    {
        Put(0xFF);
        Put(type);
        PutNumber(data.size());
        for (const auto byte : data)
            Put(static_cast<std::uint8_t>(byte));
        running = 0;
    }

    // A wait that no number holds is made of several, with empty texts in between.
    void Wait(std::uint64_t tick)
    {
        std::uint64_t wait = tick - at;
        at = tick;
        for (; wait > kLongestWait && !IsOver(); wait -= kLongestWait) {
            PutNumber(kLongestWait);
            PutMeta(text, std::string());
        }
        PutNumber(wait);
    }

    std::size_t most;
    std::uint64_t at = 0;
    std::uint8_t running = 0;
};

void WriteChange(CTrack& track, const MidiEvent& event, bool isTimeCode)
{
    switch (event.kind) {
    case MidiEventKind::control:
        return track.Channel(event.tick, 0xB0 | event.channel, event.first, event.second);
    case MidiEventKind::program:
        return track.Channel(event.tick, 0xC0 | event.channel, event.first);
    case MidiEventKind::bend:
        return track.Channel(event.tick, 0xE0 | event.channel, event.first, event.second);
    case MidiEventKind::masterVolume:
        return track.MasterVolume(event.tick, event.second);
    case MidiEventKind::tempo:
        if (!isTimeCode) {
            const std::uint8_t data[] = {static_cast<std::uint8_t>(event.tempo >> 16),
                                         static_cast<std::uint8_t>(event.tempo >> 8),
                                         static_cast<std::uint8_t>(event.tempo)};
            track.Meta(event.tick, setTempo, std::span(data));
        }
        return;
    default:
        return;
    }
}

// Brings starts, ends and changes into one order and writes them.
class CPerformance
{
public:
    CPerformance(CTrack& target, const score::Arrangement& arrangement, bool timeCode)
        : track(target), notes(arrangement.notes), changes(arrangement.changes), isTimeCode(timeCode)
    {
    }

    void Write()
    {
        while (!track.IsOver()) {
            while (note < notes.size() && notes[note].isDropped)
                ++note;
            const std::uint64_t tick = std::min({NextStart(), NextChange(), NextEnd()});
            if (tick == kNever)
                return;
            WriteTick(tick);
        }
    }

private:
    static constexpr std::uint64_t kNever = UINT64_MAX;
    struct EndsLater {
        bool operator()(const ChipNote* a, const ChipNote* b) const { return a->endTick > b->endTick; }
    };

    std::uint64_t NextStart() const { return note < notes.size() ? notes[note].startTick : kNever; }
    std::uint64_t NextChange() const { return change < changes.size() ? changes[change].event.tick : kNever; }
    std::uint64_t NextEnd() const { return sounding.empty() ? kNever : sounding.top()->endTick; }

    void WriteTick(std::uint64_t tick)
    {
        for (; NextEnd() == tick; sounding.pop())
            track.Channel(tick, 0x90 | sounding.top()->channel, sounding.top()->key, 0);
        for (; NextChange() == tick; ++change)
            WriteChange(track, changes[change].event, isTimeCode);
        for (; NextStart() == tick; ++note) {
            if (notes[note].isDropped)
                continue;
            track.Channel(tick, 0x90 | notes[note].channel, notes[note].key, notes[note].velocity);
            sounding.push(&notes[note]);
        }
    }

    CTrack& track;
    const std::vector<ChipNote>& notes;
    const std::vector<score::ChipChange>& changes;
    bool isTimeCode;
    std::size_t note = 0;
    std::size_t change = 0;
    std::priority_queue<const ChipNote*, std::vector<const ChipNote*>, EndsLater> sounding;
};

void PutHead(std::vector<std::uint8_t>& bytes, std::uint16_t division, std::size_t trackLength)
{
    const auto low = [](std::size_t value) { return static_cast<std::uint8_t>(value); };
    bytes = {'M',           'T', 'h', 'd', 0,  0, 0, 6, 0, 0, 0, 1, low(division >> 8),
             low(division), 'M', 'T', 'r', 'k'};
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes.push_back(low(trackLength >> shift));
}

}  // namespace

std::optional<std::vector<std::uint8_t>> WriteMidi(const score::MidiFile& source,
                                                   const score::Arrangement& arrangement, std::size_t most)
{
    CTrack track(most);
    if (!source.title.empty())
        track.Meta(0, trackName, source.title);
    if (!source.copyright.empty())
        track.Meta(0, copyrightText, source.copyright);
    CPerformance(track, arrangement, (source.division & 0x8000) != 0).Write();
    track.Meta(arrangement.endTick, endOfTrack, std::string());
    std::vector<std::uint8_t> bytes;
    PutHead(bytes, source.division, track.bytes.size());
    if (bytes.size() + track.bytes.size() > most)
        return std::nullopt;
    bytes.insert(bytes.end(), track.bytes.begin(), track.bytes.end());
    return bytes;
}

}  // namespace suite
