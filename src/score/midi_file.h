// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// ReadMidi: the events of a standard MIDI file, all tracks merged into one line of time.
//
// A RIFF wrapper ("RMID"), chunks that are not known, a header of more than six bytes and a wrong number of
// tracks are no hindrance. A track that is cut off or makes no sense from some place on gives its events up
// to there, and is counted as damaged. A second file behind the first is left alone. What refuses the whole
// file is told by MidiError. Memory stays in proportion to the bytes: no number of the file makes anything
// larger. Nothing throws but for a lack of memory.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace score
{

enum class MidiError : std::uint8_t {
    none,
    notMidi,      // no "MThd"
    badHeader,    // shorter than six bytes
    badFormat,    // other than 0, 1 and 2
    badDivision,  // 0, or a time code that is none of 24, 25, 29 and 30 frames a second
    longNumber,   // a time or length of more than four bytes
    noTrack,
};

enum class MidiEventKind : std::uint8_t {
    noteOff,
    noteOn,  // always with a velocity
    keyPressure,
    control,
    program,
    channelPressure,
    bend,  // low seven bits first
    tempo,
    masterVolume,  // the universal exclusive; its high seven bits in `second`
    exclusive,     // any other, but for those that switch General MIDI on
    badTempo,      // of zero, or of another length than three bytes
};

struct MidiEvent {
    std::uint64_t tick = 0;   // since the start
    std::uint32_t tempo = 0;  // of a tempo: microseconds a quarter, not 0
    MidiEventKind kind = MidiEventKind::noteOff;
    std::uint8_t channel = 0;  // 0 to 15
    std::uint8_t first = 0;    // key, control, program, pressure
    std::uint8_t second = 0;   // velocity, value
};

struct MidiFile {
    MidiError error = MidiError::none;
    std::uint16_t format = 0;
    std::uint16_t division = 0;     // as it stands in the file; CMidiClock knows its meaning
    std::vector<MidiEvent> events;  // by tick; at equal ticks by track, then as they stand
    std::uint64_t end = 0;          // the tick of the last track's end
    unsigned tracks = 0;            // with the damaged ones
    unsigned damagedTracks = 0;
    unsigned otherSongs = 0;  // of format 2, where each track is a song: those that are not in `events`
    std::string title;        // at most 255 bytes of any kind
    std::string copyright;
};

// Of format 2, the first song that holds a note.
MidiFile ReadMidi(std::span<const std::uint8_t> bytes);

}  // namespace score
