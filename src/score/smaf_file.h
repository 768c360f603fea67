// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The content of a SMAF file (".mmf"), as the writer takes it and the reader gives it.
//
// Times and gates are counted in units of the track's time base (4 ms as this program writes it).
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace score
{

enum class SmafEventKind : std::uint8_t { note, control, program, bend, exclusive };

// One event of a score track. Its order among events of the same time is the order in the track.
struct SmafEvent {
    std::uint64_t time = 0;   // units since the start of the track
    std::uint32_t gate = 0;   // of a note: its length in units, at least 1
    std::uint32_t index = 0;  // of an exclusive: its place in SmafScoreTrack::exclusives
    SmafEventKind kind = SmafEventKind::note;
    std::uint8_t channel = 0;  // 0 to 15
    std::uint8_t first = 0;    // key, control, program, or the bend's low 7 bits
    std::uint8_t second = 0;   // velocity, value, or the bend's high 7 bits
};

// A sound that a score track carries: raw ADPCM, two samples a byte, low nibble first.
struct SmafWave {
    std::uint8_t id = 1;        // from 1
    std::uint16_t rate = 8000;  // Hz
    std::vector<std::uint8_t> adpcm;
};

struct SmafScoreTrack {
    std::uint8_t number = 5;                       // the chip: 1 to 4 MA-2, 5 MA-3, 6 MA-5
    std::array<std::uint8_t, 16> channelStatus{};  // type in the low two bits: 1 melody, 2 none, 3 rhythm
    std::vector<std::vector<std::uint8_t>> setup;  // exclusives before the first event, without F0, with F7
    std::vector<std::vector<std::uint8_t>> exclusives;  // those that events name, in the same form
    std::vector<SmafEvent> events;                      // by time
    std::uint64_t end = 0;                              // units; not before the last gate's end
    std::vector<SmafWave> waves;
};

}  // namespace score
