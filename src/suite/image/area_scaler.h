// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CAreaScaler: scales a picture that arrives row by row; each pixel made is the exact mean of the area that
// it covers.
//
// Memory is one source row and the result, whatever the height of the source. Sides may also grow: then a
// source pixel spreads over several. Rows are interleaved bytes, `channels` of them a pixel; colours with
// transparency must be premultiplied.
#pragma once

#include "platform/types.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace suite
{

class CAreaScaler
{
public:
    // All sides from 1 to 65535.
    CAreaScaler(platform::Extent source, platform::Extent target, int channels);

    // Takes the next source row, source.width * channels bytes.
    void AddRow(const std::uint8_t* row);
    int RowsTaken() const { return rowsTaken; }
    // The result, target.width * target.height * channels bytes; whole once every source row was given.
    const std::vector<std::uint8_t>& Pixels() const { return pixels; }
    // The same without a second copy; the object is of no use after that.
    std::vector<std::uint8_t> TakePixels() { return std::move(pixels); }

private:
    void Accumulate(const std::uint8_t* row, std::uint32_t weight);
    void FinishRow();
    template <int kChannels> void ReduceRow(std::uint8_t* out) const;

    platform::Extent source;
    platform::Extent target;
    int channels;
    int rowsTaken = 0;
    int rowsMade = 0;
    std::vector<std::uint32_t> sums;  // of the source rows under the target row being made, weighted
    std::vector<std::uint8_t> pixels;
};

}  // namespace suite
