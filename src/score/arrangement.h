// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Arrange: what a sound chip of a handset plays of a MIDI file, and a report of what it does not.
//
// Notes and their ends are paired first in, first out for each channel and key; a note that is struck again
// ends there; one that is never ended lasts to the end of the file. When more notes sound than the chip has
// voices, the quietest gives way, and of those the oldest: it ends where the new note begins, or is dropped
// when both begin together. The new note always sounds, and drums give way to drums only.
//
// Arranging what was arranged before changes nothing more.
#pragma once

#include "score/midi_file.h"
#include "score/smaf_file.h"

#include <array>

namespace score
{

constexpr unsigned kChipUnit = 4;    // milliseconds
constexpr unsigned kMa3Voices = 32;  // of FM; its eight of wave tables need sounds of their own
constexpr unsigned kMa5Voices = 64;
constexpr std::uint8_t kDrumChannel = 9;
// A tune ends after a day: what comes later is left out.
constexpr std::uint32_t kLongestTune = 24 * 3600 * 1000 / kChipUnit;

// The events that the chip has no use for.
enum class Ignored : std::uint8_t {
    pressure,   // of keys and channels
    bank,       // other than General MIDI's
    kit,        // other than the standard drums
    parameter,  // registered other than the bend's range, or not registered
    control,    // any other
    exclusive,  // but for General MIDI on and the master volume
    badTempo,
    afterEnd,  // behind the longest tune
    count,
};

struct ArrangementReport {
    std::uint32_t notes = 0;           // of the file, with those dropped
    std::uint32_t notesDropped = 0;    // for want of a voice
    std::uint32_t notesShortened = 0;  // for want of a voice
    std::uint32_t notesUnended = 0;    // that last to the file's end because nothing ends them
    std::uint32_t notesTooLong = 0;    // cut at the longest gate
    std::uint16_t channels = 0;        // those with notes, a bit each
    std::uint32_t polyphony = 0;       // the most notes that the file has at once
    std::uint32_t voices = 0;          // what the chip has
    std::uint64_t milliseconds = 0;    // to the end of the last note
    std::array<std::uint32_t, static_cast<std::size_t>(Ignored::count)> ignored{};
    unsigned damagedTracks = 0;
    unsigned otherSongs = 0;

    std::uint32_t Count(Ignored kind) const { return ignored[static_cast<std::size_t>(kind)]; }
    unsigned ChannelCount() const;
};

struct ChipNote {
    std::uint64_t startTick = 0;
    std::uint64_t endTick = 0;
    std::uint32_t start = 0;     // units
    std::uint32_t end = 0;       // later than the start, by the longest gate at most
    std::uint32_t loudness = 0;  // velocity, volume and expression multiplied
    std::uint8_t channel = 0;
    std::uint8_t key = 0;
    std::uint8_t velocity = 0;
    bool isDropped = false;
};

// A control, program, bend, tempo or master volume that the chip follows.
struct ChipChange {
    MidiEvent event;
    std::uint32_t time = 0;  // units
};

struct Arrangement {
    std::vector<ChipNote> notes;      // by start; those dropped are marked
    std::vector<ChipChange> changes;  // by tick
    std::uint64_t endTick = 0;        // not before any event or note's end
    ArrangementReport report;
};

// For a file that was read without error.
Arrangement Arrange(const MidiFile& file, unsigned voices);

}  // namespace score
