// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "score/arrangement.h"

#include "score/chip_controls.h"
#include "score/midi_clock.h"

#include <algorithm>
#include <bit>

namespace score
{

namespace
{

constexpr std::uint64_t kOpen = UINT64_MAX;
constexpr std::uint32_t kNone = UINT32_MAX;

// Walks through the events once; notes are closed as their ends come.
class CPairing
{
public:
    CPairing(const MidiFile& source, Arrangement& target)
        : file(source), result(target), clock(source.division), controls(target.changes, target.report)
    {
        pending.fill({kNone, kNone});
    }

    void Run()
    {
        for (std::size_t i = 0; i < file.events.size(); ++i) {
            if (!GoTo(file.events[i].tick)) {
                result.report.ignored[static_cast<std::size_t>(Ignored::afterEnd)] +=
                    static_cast<std::uint32_t>(file.events.size() - i);
                break;
            }
            Take(file.events[i]);
        }
        GoTo(file.end);
        result.endTick = tick;
        CloseAll();
    }

private:
    // The notes of one key that wait for their ends, as a list; only the last of them can still sound.
    struct Queue {
        std::uint32_t first;
        std::uint32_t last;
    };

    // False, and nothing has happened, where the longest tune ends before.
    bool GoTo(std::uint64_t next)
    {
        if (next == tick)
            return true;
        CMidiClock ahead = clock;
        ahead.Advance(next);
        const std::uint64_t units = ahead.Units(kChipUnit);
        if (units > kLongestTune)
            return false;
        clock = ahead;
        tick = next;
        time = static_cast<std::uint32_t>(units);
        return true;
    }

    void Take(const MidiEvent& event)
    {
        switch (event.kind) {
        case MidiEventKind::noteOn:
            return Start(event);
        case MidiEventKind::noteOff:
            return End(event);
        case MidiEventKind::control:
            return controls.Control(event, time);
        case MidiEventKind::program:
            return controls.Program(event, time);
        case MidiEventKind::tempo:
            clock.SetTempo(event.tempo);
            [[fallthrough]];
        case MidiEventKind::bend:
        case MidiEventKind::masterVolume:
            result.changes.push_back({event, time});
            return;
        case MidiEventKind::keyPressure:
        case MidiEventKind::channelPressure:
            return controls.Ignore(Ignored::pressure);
        case MidiEventKind::exclusive:
            return controls.Ignore(Ignored::exclusive);
        case MidiEventKind::badTempo:
            return controls.Ignore(Ignored::badTempo);
        }
    }

    void Start(const MidiEvent& event)
    {
        const auto index = static_cast<std::uint32_t>(result.notes.size());
        Queue& queue = pending[event.channel * 128u + event.first];
        if (queue.first == kNone) {
            queue.first = index;
        } else {
            Close(result.notes[queue.last]);
            following[queue.last] = index;
        }
        queue.last = index;
        following.push_back(kNone);
        result.notes.push_back({tick, kOpen, time, 0, event.second * controls.Loudness(event.channel),
                                event.channel, event.first, event.second, false});
        result.report.channels |= static_cast<std::uint16_t>(1u << event.channel);
    }

    void End(const MidiEvent& event)
    {
        Queue& queue = pending[event.channel * 128u + event.first];
        if (queue.first == kNone)
            return;
        Close(result.notes[queue.first]);
        queue.first = following[queue.first];
    }

    void Close(ChipNote& note)
    {
        if (note.endTick != kOpen)
            return;
        note.endTick = tick;
        note.end = std::clamp(time, note.start + 1, note.start + kSmafMaximumGate);
        if (note.end < time)
            ++result.report.notesTooLong;
    }

    void CloseAll()
    {
        for (const Queue& queue : pending) {
            if (queue.first != kNone && result.notes[queue.last].endTick == kOpen) {
                Close(result.notes[queue.last]);
                ++result.report.notesUnended;
            }
        }
    }

    const MidiFile& file;
    Arrangement& result;
    CMidiClock clock;
    CChipControls controls;
    std::array<Queue, 16 * 128> pending;   // by channel and key
    std::vector<std::uint32_t> following;  // by note: the next of its key
    std::uint64_t tick = 0;
    std::uint32_t time = 0;
};

std::uint32_t MostAtOnce(const std::vector<ChipNote>& notes)
{
    std::vector<std::uint32_t> ends(notes.size());
    std::ranges::transform(notes, ends.begin(), &ChipNote::end);
    std::ranges::sort(ends);
    std::size_t ended = 0;
    std::size_t most = 0;
    for (std::size_t i = 0; i < notes.size(); ++i) {
        while (ends[ended] <= notes[i].start)
            ++ended;
        most = std::max(most, i + 1 - ended);
    }
    return static_cast<std::uint32_t>(most);
}

// Whether the first gives way to a new note sooner than the second.
bool GivesWay(const ChipNote* a, const ChipNote* b)
{
    const bool aDrum = a->channel == kDrumChannel;
    const bool bDrum = b->channel == kDrumChannel;
    if (aDrum != bDrum)
        return bDrum;
    return a->loudness != b->loudness ? a->loudness < b->loudness : a->start < b->start;
}

void GiveWay(ChipNote& victim, const ChipNote& newest, ArrangementReport& report)
{
    if (victim.start == newest.start) {
        victim.isDropped = true;
        ++report.notesDropped;
        return;
    }
    victim.end = newest.start;
    victim.endTick = newest.startTick;
    ++report.notesShortened;
}

void LimitVoices(std::vector<ChipNote>& notes, unsigned voices, ArrangementReport& report)
{
    std::vector<ChipNote*> sounding;
    for (ChipNote& note : notes) {
        std::erase_if(sounding, [&](const ChipNote* other) { return other->end <= note.start; });
        if (sounding.size() == voices) {
            const auto victim = std::ranges::min_element(sounding, GivesWay);
            GiveWay(**victim, note, report);
            sounding.erase(victim);
        }
        sounding.push_back(&note);
    }
}

}  // namespace

unsigned ArrangementReport::ChannelCount() const
{
    return static_cast<unsigned>(std::popcount(channels));
}

Arrangement Arrange(const MidiFile& file, unsigned voices)
{
    Arrangement result;
    CPairing(file, result).Run();
    ArrangementReport& report = result.report;
    report.notes = static_cast<std::uint32_t>(result.notes.size());
    report.voices = voices;
    report.polyphony = MostAtOnce(result.notes);
    report.damagedTracks = file.damagedTracks;
    report.otherSongs = file.otherSongs;
    if (report.polyphony > voices)
        LimitVoices(result.notes, voices, report);
    for (const ChipNote& note : result.notes)
        report.milliseconds =
            std::max<std::uint64_t>(report.milliseconds, std::uint64_t{note.end} * kChipUnit);
    return result;
}

}  // namespace score
