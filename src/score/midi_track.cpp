// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "score/midi_track.h"

#include <algorithm>

namespace score
{

namespace
{

constexpr std::size_t kLongestText = 255;
constexpr int kLongestNumber = 4;

enum MetaType : std::uint8_t { copyrightText = 0x02, trackName = 0x03, endOfTrack = 0x2F, setTempo = 0x51 };

bool IsMasterVolume(std::span<const std::uint8_t> data)
{
    return data.size() == 7 && data[0] == 0x7F && data[2] == 0x04 && data[3] == 0x01 && data[5] < 0x80 &&
           data[6] == 0xF7;
}

bool SwitchesGeneralMidiOn(std::span<const std::uint8_t> data)
{
    return data.size() == 5 && data[0] == 0x7E && data[2] == 0x09 && (data[3] == 0x01 || data[3] == 0x03);
}

void TakeText(std::span<const std::uint8_t> data, std::string& text)
{
    if (text.empty())
        text.assign(data.begin(),
                    data.begin() + static_cast<std::ptrdiff_t>(std::min(data.size(), kLongestText)));
}

}  // namespace

void CMidiTrackReader::Read()
{
    Step step = Step::next;
    while (step == Step::next && place < bytes.size())
        step = ReadEvent();
    isWhole = step != Step::damaged;
    hasEndMarker = step == Step::end;
}

CMidiTrackReader::Step CMidiTrackReader::ReadEvent()
{
    const auto wait = ReadNumber();
    if (!wait || place == bytes.size())
        return Step::damaged;
    tick += *wait;
    const std::uint8_t status = bytes[place];
    if (status < 0x80)
        return running != 0 ? ReadChannelEvent(running) : Step::damaged;
    ++place;
    if (status < 0xF0)
        return ReadChannelEvent(running = status);
    // Running status goes on behind the others, as some writers expect of it.
    if (status == 0xFF)
        return ReadMeta();
    if (status == 0xF0 || status == 0xF7)
        return ReadExclusive(status == 0xF7);
    return SkipSystem(status);
}

CMidiTrackReader::Step CMidiTrackReader::ReadChannelEvent(std::uint8_t status)
{
    constexpr MidiEventKind kKinds[] = {MidiEventKind::noteOff,     MidiEventKind::noteOn,
                                        MidiEventKind::keyPressure, MidiEventKind::control,
                                        MidiEventKind::program,     MidiEventKind::channelPressure,
                                        MidiEventKind::bend};
    MidiEventKind kind = kKinds[(status >> 4) - 8];
    const bool hasOneByte = kind == MidiEventKind::program || kind == MidiEventKind::channelPressure;
    const auto first = ReadDataByte();
    const auto second = hasOneByte ? std::optional<std::uint8_t>(0) : ReadDataByte();
    if (!first || !second)
        return Step::damaged;
    if (kind == MidiEventKind::noteOn && *second == 0)
        kind = MidiEventKind::noteOff;
    hasNotes |= kind == MidiEventKind::noteOn;
    Add(kind, status & 0x0F, *first, *second);
    return Step::next;
}

CMidiTrackReader::Step CMidiTrackReader::ReadMeta()
{
    if (place == bytes.size())
        return Step::damaged;
    const std::uint8_t type = bytes[place++];
    const auto data = ReadCounted();
    if (!data)
        return type == endOfTrack ? Step::end : Step::damaged;
    if (type == setTempo)
        ReadTempo(*data);
    else if (type == copyrightText)
        TakeText(*data, file.copyright);
    else if (type == trackName && file.tracks == 0)
        TakeText(*data, file.title);
    return type == endOfTrack ? Step::end : Step::next;
}

void CMidiTrackReader::ReadTempo(std::span<const std::uint8_t> data)
{
    std::uint32_t tempo = 0;
    for (const std::uint8_t byte : data.first(std::min<std::size_t>(data.size(), 3)))
        tempo = (tempo << 8) | byte;
    const bool isTempo = data.size() == 3 && tempo != 0;
    Add(isTempo ? MidiEventKind::tempo : MidiEventKind::badTempo);
    file.events.back().tempo = tempo;
}

CMidiTrackReader::Step CMidiTrackReader::ReadExclusive(bool isContinuation)
{
    const auto data = ReadCounted();
    if (!data)
        return Step::damaged;
    if (isContinuation)
        return Step::next;
    if (IsMasterVolume(*data))
        Add(MidiEventKind::masterVolume, 0, 0, (*data)[5]);
    else if (!SwitchesGeneralMidiOn(*data))
        Add(MidiEventKind::exclusive);
    return Step::next;
}

// What has no place in a file, but a known length.
CMidiTrackReader::Step CMidiTrackReader::SkipSystem(std::uint8_t status)
{
    const int count = status == 0xF2 ? 2 : status == 0xF1 || status == 0xF3 ? 1 : 0;
    for (int i = 0; i < count; ++i) {
        if (!ReadDataByte())
            return Step::damaged;
    }
    return Step::next;
}

std::optional<std::uint32_t> CMidiTrackReader::ReadNumber()
{
    std::uint32_t value = 0;
    for (int i = 0; i < kLongestNumber; ++i) {
        if (place == bytes.size())
            return std::nullopt;
        const std::uint8_t byte = bytes[place++];
        value = (value << 7) | (byte & 0x7F);
        if (byte < 0x80)
            return value;
    }
    file.error = MidiError::longNumber;
    return std::nullopt;
}

std::optional<std::span<const std::uint8_t>> CMidiTrackReader::ReadCounted()
{
    const auto length = ReadNumber();
    if (!length || *length > bytes.size() - place)
        return std::nullopt;
    const auto data = bytes.subspan(place, *length);
    place += *length;
    return data;
}

// Some writers put 255 for the highest value.
std::optional<std::uint8_t> CMidiTrackReader::ReadDataByte()
{
    if (place == bytes.size())
        return std::nullopt;
    return std::min<std::uint8_t>(bytes[place++], 0x7F);
}

void CMidiTrackReader::Add(MidiEventKind kind, std::uint8_t channel, std::uint8_t first, std::uint8_t second)
{
    file.events.push_back({tick, 0, kind, channel, first, second});
}

}  // namespace score
