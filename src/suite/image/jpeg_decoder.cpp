// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/image/jpeg_decoder.h"

#include "suite/image/area_scaler.h"
#include "suite/image/jpeg_dc_walk.h"
#include "suite/image/jpeg_input.h"

#include <algorithm>

namespace suite
{
namespace
{

constexpr std::uint8_t kGrey = 0x80;

int ScaledSide(int side, int divisor)
{
    return (side + divisor - 1) / divisor;
}

int SmallestScale(platform::Extent stored, platform::Extent target)
{
    for (const int divisor : {8, 4, 2}) {
        if (ScaledSide(stored.width, divisor) >= target.width &&
            ScaledSide(stored.height, divisor) >= target.height)
            return divisor;
    }
    return 1;
}

bool IsCmyk(const jpeg_decompress_struct& info)
{
    return info.jpeg_color_space == JCS_CMYK || info.jpeg_color_space == JCS_YCCK;
}

// Files of Adobe's programs, practically all there are, store how much light each ink lets through.
void ConvertCmykRow(std::uint8_t* row, unsigned width, bool storesLight)
{
    const std::uint8_t flip = storesLight ? 0 : 255;
    for (unsigned x = 0; x < width; ++x, row += 4) {
        const int black = row[3] ^ flip;
        const int red = (row[0] ^ flip) * black / 255;
        const int green = (row[1] ^ flip) * black / 255;
        const int blue = (row[2] ^ flip) * black / 255;
        row[0] = static_cast<std::uint8_t>(blue);
        row[1] = static_cast<std::uint8_t>(green);
        row[2] = static_cast<std::uint8_t>(red);
    }
}

// Takes in all of a file of several scans and begins to put out their sum. `wholeScans` becomes the length of
// the file up to the end of the last scan that is whole.
bool ReadScans(CJpegInput& input, std::uint64_t& wholeScans)
{
    const bool isRead = input.Guarded([&input, &wholeScans](jpeg_decompress_struct& info) {
        constexpr int kMarkerLength = 2;
        int state = JPEG_SUSPENDED;
        while (state != JPEG_REACHED_EOI && !input.HasTooManyScans()) {
            state = jpeg_consume_input(&info);
            if (state == JPEG_SCAN_COMPLETED)
                wholeScans = input.Position() - kMarkerLength;
        }
    });
    if (input.HasTooManyScans()) {
        wholeScans = 0;
        return false;
    }
    return isRead && input.Guarded([](jpeg_decompress_struct& info) {
        jpeg_start_output(&info, info.input_scan_number);
    });
}

bool ReadHeader(CJpegInput& input, platform::Extent stored)
{
    const jpeg_decompress_struct& info = input.info;
    return input.Guarded([](jpeg_decompress_struct& read) { jpeg_read_header(&read, TRUE); }) &&
           input.HasMore(3) && info.image_width == static_cast<unsigned>(stored.width) &&
           info.image_height == static_cast<unsigned>(stored.height);
}

// Starts decoding at the scale for `target`.
bool Start(CJpegInput& input, platform::Extent stored, platform::Extent target, std::uint64_t& wholeScans)
{
    jpeg_decompress_struct& info = input.info;
    info.scale_num = 1;
    info.scale_denom = static_cast<unsigned>(SmallestScale(stored, target));
    info.out_color_space = IsCmyk(info) ? JCS_CMYK : JCS_EXT_BGRX;
    // Smooth chroma shows at full size only.
    info.do_fancy_upsampling = target == stored ? TRUE : FALSE;
    info.buffered_image = jpeg_has_multiple_scans(&info);
    if (info.buffered_image != FALSE && input.IsTooShort())
        return false;
    return input.Guarded([](jpeg_decompress_struct& started) { jpeg_start_decompress(&started); }) &&
           (info.buffered_image == FALSE || ReadScans(input, wholeScans));
}

void ReadRows(CJpegInput& input, std::vector<std::uint8_t>& row, CAreaScaler& scaler)
{
    std::uint8_t* const rowStart = row.data();
    input.Guarded([&input, &scaler, rowStart](jpeg_decompress_struct& info) {
        const bool isCmyk = IsCmyk(info);
        const bool arrivesInStrips = info.buffered_image == FALSE;
        const unsigned stripHeight = static_cast<unsigned>(info.max_v_samp_factor * info.min_DCT_scaled_size);
        while (info.output_scanline < info.output_height) {
            JSAMPROW rows[1] = {rowStart};
            if (jpeg_read_scanlines(&info, rows, 1) != 1)
                return;
            if (isCmyk)
                ConvertCmykRow(rowStart, info.output_width, info.saw_Adobe_marker != FALSE);
            scaler.AddRow(rowStart);
            if (arrivesInStrips && input.EndedEarly() && info.output_scanline % stripHeight == 0)
                return;
        }
    });
}

using Pixels = std::optional<std::vector<std::uint8_t>>;

Pixels Decode(CJpegInput& input, platform::Extent stored, platform::Extent target, std::uint64_t& wholeScans)
{
    if (!Start(input, stored, target, wholeScans))
        return std::nullopt;
    const platform::Extent scaled = {static_cast<int>(input.info.output_width),
                                     static_cast<int>(input.info.output_height)};
    CAreaScaler scaler(scaled, target, 4);
    std::vector<std::uint8_t> row(static_cast<std::size_t>(scaled.width) * 4);
    ReadRows(input, row, scaler);
    if (scaler.RowsTaken() == 0)
        return std::nullopt;
    std::fill(row.begin(), row.end(), kGrey);
    while (scaler.RowsTaken() < scaled.height)
        scaler.AddRow(row.data());
    return scaler.TakePixels();
}

}  // namespace

Pixels DecodeJpeg(const CInputFile& file, platform::Extent stored, platform::Extent target)
{
    CJpegInput input(file);
    if (!ReadHeader(input, stored))
        return std::nullopt;
    if (SmallestScale(stored, target) == 8) {
        if (auto pixels = WalkDcTerms(file, input.Position(), input.info, target))
            return pixels;
    }
    std::uint64_t wholeScans = 0;
    if (auto pixels = Decode(input, stored, target, wholeScans))
        return pixels;
    if (wholeScans == 0)
        return std::nullopt;
    // The file breaks off between scans. libjpeg must not be asked again after an error: begin anew with the
    // part that is whole.
    CJpegInput part(file, wholeScans);
    return ReadHeader(part, stored) ? Decode(part, stored, target, wholeScans) : std::nullopt;
}

}  // namespace suite
