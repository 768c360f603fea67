// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "score/midi_clock.h"

namespace score
{

namespace
{

constexpr std::uint16_t kTimeCode = 0x8000;
constexpr std::uint64_t kSecond = 1'000'000;  // microseconds

// The high byte of a time code, a negative number.
int FrameRate(std::uint16_t division)
{
    return 256 - (division >> 8);
}

}  // namespace

bool CMidiClock::Knows(std::uint16_t division)
{
    if ((division & kTimeCode) == 0)
        return division != 0;
    const int rate = FrameRate(division);
    return (division & 0xFF) != 0 && (rate == 24 || rate == 25 || rate == 29 || rate == 30);
}

CMidiClock::CMidiClock(std::uint16_t division) : divisor(division), isTimeCode((division & kTimeCode) != 0)
{
    if (isTimeCode) {
        const std::uint64_t ticks = division & 0xFF;
        const int rate = FrameRate(division);
        // 29 stands for 30,000 frames in 1001 seconds.
        tickLength = rate == 29 ? 1001 * kSecond : kSecond;
        divisor = rate == 29 ? 30'000 * ticks : rate * ticks;
    }
}

void CMidiClock::Advance(std::uint64_t tick)
{
    sum += static_cast<Wide>(tick - at) * tickLength;
    at = tick;
}

void CMidiClock::SetTempo(std::uint32_t microseconds)
{
    if (!isTimeCode)
        tickLength = microseconds;
}

std::uint64_t CMidiClock::Units(unsigned milliseconds) const
{
    const Wide unit = static_cast<Wide>(divisor) * 1000 * milliseconds;
    return static_cast<std::uint64_t>((sum + unit / 2) / unit);
}

}  // namespace score
