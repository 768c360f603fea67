// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/smf2smaf/score_track.h"

#include "platform/smaf_conversion.h"

#include <algorithm>

namespace suite
{

namespace
{

using score::MidiEventKind;
using score::SmafEvent;
using score::SmafEventKind;

constexpr std::uint8_t kBankHigh = 0;
constexpr std::uint8_t kBankLow = 32;
constexpr std::uint8_t kVolume = 7;
constexpr std::uint8_t kUsualVolume = 100;

class CTrackMaker
{
public:
    CTrackMaker(score::SmafScoreTrack& target, const CVoiceBank& voices) : track(target), bank(voices) {}

    void Note(const score::ChipNote& note)
    {
        Channel& channel = channels[note.channel];
        Open(note.channel, note.start);
        if (!channel.hasVolume)
            Add(SmafEventKind::control, note.start, note.channel, kVolume, kUsualVolume);
        channel.hasVolume = true;
        Add(SmafEventKind::note, note.start, note.channel, note.key, note.velocity);
        track.events.back().gate = note.end - note.start;
        track.end = std::max<std::uint64_t>(track.end, note.end);
    }

    void Change(const score::ChipChange& change)
    {
        const score::MidiEvent& event = change.event;
        if (event.kind == MidiEventKind::masterVolume)
            return MasterVolume(change.time, event.second);
        if (event.kind == MidiEventKind::program)
            return Choose(event.channel, bank.Melody(event.first), change.time);
        const bool isControl = event.kind == MidiEventKind::control;
        if (!isControl && event.kind != MidiEventKind::bend)
            return;
        Open(event.channel, change.time);
        channels[event.channel].hasVolume |= isControl && event.first == kVolume;
        Add(isControl ? SmafEventKind::control : SmafEventKind::bend, change.time, event.channel, event.first,
            event.second);
    }

private:
    struct Channel {
        bool isOpen = false;
        bool hasVolume = false;
        Voice voice;
    };

    // Gives a channel its sound before anything else.
    void Open(std::uint8_t channel, std::uint32_t time)
    {
        if (!channels[channel].isOpen)
            Choose(channel, channel == score::kDrumChannel ? bank.Drums() : bank.Melody(0), time);
    }

    void Choose(std::uint8_t number, const Voice& voice, std::uint32_t time)
    {
        Channel& channel = channels[number];
        const bool isOtherBank = !channel.isOpen || voice.bankHigh != channel.voice.bankHigh ||
                                 voice.bankLow != channel.voice.bankLow;
        if (isOtherBank) {
            Add(SmafEventKind::control, time, number, kBankHigh, voice.bankHigh);
            Add(SmafEventKind::control, time, number, kBankLow, voice.bankLow);
        }
        Add(SmafEventKind::program, time, number, voice.program, 0);
        channel.voice = voice;
        channel.isOpen = true;
    }

    void MasterVolume(std::uint32_t time, std::uint8_t value)
    {
        Add(SmafEventKind::exclusive, time, 0, 0, 0);
        track.events.back().index = static_cast<std::uint32_t>(track.exclusives.size());
        track.exclusives.push_back({0x43, 0x79, Family(), 0x7F, 0x00, value, 0xF7});
    }

    void Add(SmafEventKind kind, std::uint32_t time, std::uint8_t channel, std::uint8_t first,
             std::uint8_t second)
    {
        track.events.push_back({time, 0, 0, kind, channel, first, second});
    }

public:
    // The byte of exclusives that tells the chip.
    std::uint8_t Family() const { return track.number == platform::kSmafMa5 ? 7 : 6; }

private:
    score::SmafScoreTrack& track;
    const CVoiceBank& bank;
    std::array<Channel, 16> channels;
};

}  // namespace

score::SmafScoreTrack MakeScoreTrack(const score::Arrangement& arrangement, const CVoiceBank& bank,
                                     std::uint8_t chip)
{
    constexpr std::uint8_t kMelodyChannel = 1;
    constexpr std::uint8_t kSilentChannel = 2;
    constexpr std::uint8_t kRhythmChannel = 3;
    score::SmafScoreTrack track;
    track.number = chip;
    CTrackMaker maker(track, bank);
    const auto isUsed = [&](unsigned channel) { return (arrangement.report.channels >> channel & 1) != 0; };
    for (unsigned i = 0; i < track.channelStatus.size(); ++i) {
        track.channelStatus[i] = !isUsed(i)                 ? kSilentChannel
                                 : i == score::kDrumChannel ? kRhythmChannel
                                                            : kMelodyChannel;
    }
    track.setup.push_back({0x43, 0x79, maker.Family(), 0x7F, 0x7F, 0xF7});
    auto change = arrangement.changes.begin();
    for (const score::ChipNote& note : arrangement.notes) {
        for (; change != arrangement.changes.end() && change->event.tick <= note.startTick; ++change) {
            if (isUsed(change->event.channel) || change->event.kind == MidiEventKind::masterVolume)
                maker.Change(*change);
        }
        if (!note.isDropped)
            maker.Note(note);
    }
    for (; change != arrangement.changes.end() && change->time < track.end; ++change) {
        if (isUsed(change->event.channel) || change->event.kind == MidiEventKind::masterVolume)
            maker.Change(*change);
    }
    return track;
}

}  // namespace suite
