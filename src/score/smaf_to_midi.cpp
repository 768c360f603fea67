// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "score/smaf_to_midi.h"

#include "score/smaf_bytes.h"

#include <algorithm>

namespace score
{

namespace
{

constexpr std::uint8_t kDrums = 9;
constexpr std::uint8_t kChannels = 16;
constexpr std::uint8_t kRhythm = 3;
constexpr std::uint8_t kDrumBank = 0x7D;
constexpr std::uint8_t kHandyPhoneDrums = 0x80;
constexpr std::uint64_t kLongestDelta = (1U << 28) - 1;
constexpr unsigned kQuarter = 500;  // ticks

// One event of the MIDI file. At equal times notes end first and begin last.
struct Message {
    enum Order : std::uint8_t { noteOff, control, noteOn };
    std::uint64_t time = 0;
    Order order = control;
    std::uint8_t status = 0;
    std::uint8_t first = 0;
    std::uint8_t second = 0;
};

bool IsBankOfDrums(const SmafEvent& event)
{
    return (event.kind == SmafEventKind::control && event.first == 0 && event.second == kDrumBank) ||
           (event.kind == SmafEventKind::bank && event.first >= kHandyPhoneDrums);
}

class CMidiLine
{
public:
    void Add(const SmafScoreTrack& track)
    {
        const std::uint64_t base = SmafBaseMilliseconds(track.timeBase);
        isHandyPhone = track.format == SmafFormat::handyPhone;
        programs.fill(0);
        ChooseChannels(track);
        for (const SmafEvent& event : track.events)
            Add(event, base);
    }

    std::vector<std::uint8_t> Finish()
    {
        std::ranges::stable_sort(messages, [](const Message& left, const Message& right) {
            return left.time != right.time ? left.time < right.time : left.order < right.order;
        });
        CSmafBytes out;
        const std::size_t header = out.BeginChunk("MThd");
        out.Word(0);
        out.Word(1);
        out.Word(kQuarter);
        out.EndChunk(header);
        const std::size_t track = out.BeginChunk("MTrk");
        std::uint64_t now = 0;
        for (const Message& message : messages) {
            out.MobileNumber(static_cast<std::uint32_t>(std::min(message.time - now, kLongestDelta)));
            now = message.time;
            out.Byte(message.status);
            out.Byte(message.first);
            if (message.status >> 4 != 0xC)
                out.Byte(message.second);
        }
        out.MobileNumber(0);
        out.Block(std::to_array<std::uint8_t>({0xFF, 0x2F, 0x00}));
        out.EndChunk(track);
        return std::move(out.Bytes());
    }

private:
    void ChooseChannels(const SmafScoreTrack& track)
    {
        isDrums = {};
        std::array<bool, kChannels> isUsed{};
        for (const SmafEvent& event : track.events) {
            const std::uint8_t channel = event.channel % kChannels;
            isUsed[channel] = true;
            isDrums[channel] = isDrums[channel] || IsBankOfDrums(event) ||
                               (track.channelStatus[channel] & kRhythm) == kRhythm;
        }
        for (std::uint8_t channel = 0; channel < kChannels; ++channel) {
            if (isUsed[channel])
                target[channel] = isDrums[channel] ? kDrums : NextFree(channel);
        }
    }

    // The same number where it is free; when all are taken, the number all the same.
    std::uint8_t NextFree(std::uint8_t wanted)
    {
        for (std::uint8_t step = 0; step < kChannels; ++step) {
            const std::uint8_t channel = (wanted + step) % kChannels;
            if (channel != kDrums && !isTaken[channel]) {
                isTaken[channel] = true;
                return channel;
            }
        }
        return wanted == kDrums ? std::uint8_t{0} : wanted;
    }

    void Add(const SmafEvent& event, std::uint64_t base)
    {
        const std::uint8_t from = event.channel % kChannels;
        switch (event.kind) {
        case SmafEventKind::note:
            return AddNote(event, base);
        case SmafEventKind::program:
            programs[from] = event.first;
            // The chip's number 0 is the standard kit, and so is General MIDI's.
            return Put(event, base, 0xC0, isDrums[from] ? std::uint8_t{0} : event.first);
        case SmafEventKind::bend:
            return Put(event, base, 0xE0, event.first);
        case SmafEventKind::control:
            if (event.first != 0 && event.first != 32)
                Put(event, base, 0xB0, event.first);
            return;
        default:
            return;
        }
    }

    void AddNote(const SmafEvent& event, std::uint64_t base)
    {
        const std::uint8_t from = event.channel % kChannels;
        const std::uint8_t key = isHandyPhone && isDrums[from] ? programs[from] : event.first;
        const std::uint64_t end = (event.time + event.gate) * base;
        const auto status = static_cast<std::uint8_t>(0x90 | target[from]);
        const std::uint8_t velocity = std::max<std::uint8_t>(event.second, 1);
        messages.push_back({event.time * base, Message::noteOn, status, key, velocity});
        messages.push_back({end, Message::noteOff, status, key, 0});
    }

    void Put(const SmafEvent& event, std::uint64_t base, unsigned status, std::uint8_t first)
    {
        const std::uint8_t channel = target[event.channel % kChannels];
        messages.push_back({event.time * base, Message::control, static_cast<std::uint8_t>(status | channel),
                            first, event.second});
    }

    std::vector<Message> messages;
    std::array<std::uint8_t, kChannels> target{};
    std::array<bool, kChannels> isTaken{};
    std::array<bool, kChannels> isDrums{};
    std::array<std::uint8_t, kChannels> programs{};
    bool isHandyPhone = false;
};

}  // namespace

std::vector<std::uint8_t> SmafAsMidi(const SmafFile& file)
{
    CMidiLine line;
    for (const SmafScoreTrack& track : file.scores)
        line.Add(track);
    return line.Finish();
}

}  // namespace score
