// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CMidiClock: exact times of the ticks of a MIDI file, through all changes of tempo.
//
// Nothing is rounded on the way: the time is kept as a whole number of 128 bits, so that every answer is
// within half a unit of the true time, however long the file. A division with bit 15 is a time code (24,
// 25, 29.97 or 30 frames a second, ticks a frame in the low byte), to which a tempo means nothing.
#pragma once

#include <cstdint>

namespace score
{

class CMidiClock
{
public:
    // Whether the division is one that the clock can count by.
    static bool Knows(std::uint16_t division);
    // For a division that Knows.
    explicit CMidiClock(std::uint16_t division);

    // Goes on to a tick, never back.
    void Advance(std::uint64_t tick);
    // From here on; microseconds a quarter. 500,000 at the start.
    void SetTempo(std::uint32_t microseconds);
    // The present time in units of so many milliseconds, rounded to the nearest.
    std::uint64_t Units(unsigned milliseconds) const;

private:
    __extension__ using Wide = unsigned __int128;

    Wide sum = 0;               // ticks times what each lasts, as a numerator over `divisor` microseconds
    std::uint64_t divisor = 1;  // ticks that make one of `tickLength`
    std::uint64_t tickLength = 500'000;
    std::uint64_t at = 0;
    bool isTimeCode = false;
};

}  // namespace score
