// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "score/smaf_file.h"

#include <algorithm>

namespace score
{

namespace
{

constexpr std::array<std::uint16_t, 5> kRates = {4000, 8000, 11025, 22050, 44100};

}  // namespace

std::uint32_t SmafBaseMilliseconds(std::uint8_t code)
{
    constexpr std::array<std::uint8_t, 4> kShort = {1, 2, 4, 5};
    constexpr std::array<std::uint8_t, 4> kLong = {10, 20, 40, 50};
    if ((code & 0xEC) != 0) {
        return 0;
    }
    return (code & 0x10) != 0 ? kLong[code & 3] : kShort[code & 3];
}

int SmafRateCode(std::uint16_t rate)
{
    const auto found = std::ranges::find(kRates, rate);
    return found == kRates.end() ? -1 : static_cast<int>(found - kRates.begin());
}

std::uint16_t SmafRate(unsigned code)
{
    return code < kRates.size() ? kRates[code] : std::uint16_t{0};
}

}  // namespace score
