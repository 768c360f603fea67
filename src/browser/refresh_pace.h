// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CRefreshPace: how soon a list whose folder keeps changing is read again.
//
// The first change is followed at once. While changes go on, the pauses between two readings grow, and they
// are the longer the more time a reading takes. Times are milliseconds on one clock that only goes forward.
#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>

namespace browser
{

class CRefreshPace
{
public:
    static constexpr std::uint64_t kShortestPause = 250;
    static constexpr std::uint64_t kLongestPause = 2000;
    // After a slow reading the pause is this many times as long as that took, within bounds.
    static constexpr std::uint64_t kShare = 10;
    static constexpr std::uint64_t kLongestForCost = 20'000;

    // How long a change that is heard of now has to wait.
    std::uint64_t Wait(std::uint64_t now) const
    {
        return lastEnd && now < *lastEnd + pause ? *lastEnd + pause - now : 0;
    }
    void Begin(std::uint64_t now)
    {
        const bool goesOn = lastEnd && now < *lastEnd + 2 * pause;
        pause = goesOn ? std::min(2 * pause, kLongestPause) : kShortestPause;
        begin = now;
    }
    void End(std::uint64_t now)
    {
        lastEnd = now;
        pause = std::max(pause, std::min(kShare * (now - begin), kLongestForCost));
    }

private:
    std::optional<std::uint64_t> lastEnd;
    std::uint64_t begin = 0;
    std::uint64_t pause = kShortestPause;
};

}  // namespace browser
