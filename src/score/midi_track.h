// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CMidiTrackReader: the events of one track chunk's body.
#pragma once

#include "score/midi_file.h"

#include <optional>

namespace score
{

class CMidiTrackReader
{
public:
    // Appends to the events and fills texts that are still empty. The bytes outlive the reader.
    CMidiTrackReader(std::span<const std::uint8_t> body, MidiFile& target) : bytes(body), file(target) {}

    void Read();
    // False when the track breaks off in an event, or where something stands that is no event.
    bool IsWhole() const { return isWhole; }
    bool HasEndMarker() const { return hasEndMarker; }
    bool HasNotes() const { return hasNotes; }
    // The tick of the track's end.
    std::uint64_t End() const { return tick; }

private:
    enum class Step { next, end, damaged };

    Step ReadEvent();
    Step ReadChannelEvent(std::uint8_t status);
    Step ReadMeta();
    Step ReadExclusive(bool isContinuation);
    Step SkipSystem(std::uint8_t status);
    void ReadTempo(std::span<const std::uint8_t> data);
    std::optional<std::uint32_t> ReadNumber();
    std::optional<std::span<const std::uint8_t>> ReadCounted();
    std::optional<std::uint8_t> ReadDataByte();
    void Add(MidiEventKind kind, std::uint8_t channel = 0, std::uint8_t first = 0, std::uint8_t second = 0);

    std::span<const std::uint8_t> bytes;
    MidiFile& file;
    std::size_t place = 0;
    std::uint64_t tick = 0;
    std::uint8_t running = 0;
    bool isWhole = true;
    bool hasEndMarker = false;
    bool hasNotes = false;
};

}  // namespace score
