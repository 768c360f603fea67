// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/image/area_scaler.h"

#include <algorithm>
#include <cstddef>

namespace suite
{

// Along each axis the source is cut into source * target steps, so that a source pixel is `target` steps
// long, a target pixel `source` steps, and every overlap a whole number. A row's sum stays below
// 255 * 65535, an area's below 2^48.

CAreaScaler::CAreaScaler(platform::Extent from, platform::Extent to, int channelCount)
    : source(from), target(to), channels(channelCount),
      sums(static_cast<std::size_t>(from.width) * channelCount),
      pixels(static_cast<std::size_t>(to.width) * to.height * channelCount)
{
}

void CAreaScaler::AddRow(const std::uint8_t* row)
{
    if (rowsTaken == source.height)
        return;
    if (source == target) {
        const std::size_t rowBytes = sums.size();
        std::copy_n(row, rowBytes, pixels.begin() + rowBytes * rowsTaken);
        ++rowsTaken;
        return;
    }
    std::int64_t from = static_cast<std::int64_t>(rowsTaken) * target.height;
    const std::int64_t end = from + target.height;
    while (from < end) {
        const std::int64_t targetEnd = (static_cast<std::int64_t>(rowsMade) + 1) * source.height;
        const std::int64_t to = std::min(end, targetEnd);
        Accumulate(row, static_cast<std::uint32_t>(to - from));
        if (to == targetEnd)
            FinishRow();
        from = to;
    }
    ++rowsTaken;
}

void CAreaScaler::Accumulate(const std::uint8_t* row, std::uint32_t weight)
{
    std::uint32_t* const out = sums.data();
    const std::size_t count = sums.size();
    for (std::size_t i = 0; i < count; ++i)
        out[i] += row[i] * weight;
}

void CAreaScaler::FinishRow()
{
    std::uint8_t* const out = pixels.data() + static_cast<std::size_t>(target.width) * channels * rowsMade;
    switch (channels) {
    case 1:
        ReduceRow<1>(out);
        break;
    case 3:
        ReduceRow<3>(out);
        break;
    default:
        ReduceRow<4>(out);
        break;
    }
    std::fill(sums.begin(), sums.end(), 0U);
    ++rowsMade;
}

template <int kChannels> void CAreaScaler::ReduceRow(std::uint8_t* out) const
{
    const std::uint64_t step = static_cast<std::uint64_t>(target.width);
    const std::uint64_t span = static_cast<std::uint64_t>(source.width);
    const double scale = 1.0 / (static_cast<double>(source.width) * source.height);
    const std::uint32_t* pixel = sums.data();
    std::uint64_t left = step;  // steps of `pixel` that no target pixel has taken yet
    for (int column = 0; column < target.width; ++column) {
        std::uint64_t totals[kChannels] = {};
        std::uint64_t wanted = span;
        while (wanted > 0) {
            const std::uint64_t taken = std::min(wanted, left);
            for (int c = 0; c < kChannels; ++c)
                totals[c] += pixel[c] * taken;
            wanted -= taken;
            left -= taken;
            if (left == 0) {
                pixel += kChannels;
                left = step;
            }
        }
        for (int c = 0; c < kChannels; ++c)
            *out++ = static_cast<std::uint8_t>(static_cast<double>(totals[c]) * scale + 0.5);
    }
}

}  // namespace suite
