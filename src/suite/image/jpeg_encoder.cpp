// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/image/jpeg_encoder.h"

#include <algorithm>
#include <csetjmp>
#include <cstdint>
#include <cstdio>  // jpeglib.h needs FILE and does not say so
#include <cstdlib>
#include <jpeglib.h>

namespace suite
{
namespace
{

struct Encoder {
    jpeg_compress_struct info = {};
    jpeg_error_mgr errors = {};
    std::jmp_buf onError;
    unsigned char* bytes = nullptr;
    unsigned long length = 0;

    Encoder() = default;
    Encoder(const Encoder&) = delete;
    Encoder& operator=(const Encoder&) = delete;
    ~Encoder()
    {
        jpeg_destroy_compress(&info);
        std::free(bytes);
    }
};

std::uint8_t OnWhite(std::uint32_t colour, std::uint32_t alpha)
{
    return static_cast<std::uint8_t>((colour * alpha + 255 * (255 - alpha) + 127) / 255);
}

void PackRow(const std::uint32_t* pixels, int width, std::uint8_t* row)
{
    for (int x = 0; x < width; ++x, row += 3) {
        const std::uint32_t pixel = pixels[x];
        const std::uint32_t alpha = pixel >> 24;
        row[0] = OnWhite(pixel >> 16 & 255, alpha);
        row[1] = OnWhite(pixel >> 8 & 255, alpha);
        row[2] = OnWhite(pixel & 255, alpha);
    }
}

// Leaves by longjmp on failure, so nothing here may own anything.
void Run(Encoder& encoder, const platform::Bitmap& bitmap, int quality, std::uint8_t* row)
{
    jpeg_compress_struct& info = encoder.info;
    jpeg_create_compress(&info);
    jpeg_mem_dest(&info, &encoder.bytes, &encoder.length);
    info.image_width = static_cast<unsigned>(bitmap.width);
    info.image_height = static_cast<unsigned>(bitmap.height);
    info.input_components = 3;
    info.in_color_space = JCS_RGB;
    jpeg_set_defaults(&info);
    jpeg_set_quality(&info, std::clamp(quality, 1, 100), TRUE);
    jpeg_start_compress(&info, TRUE);
    const std::uint32_t* pixels = bitmap.pixels.data();
    for (int y = 0; y < bitmap.height; ++y, pixels += bitmap.width) {
        PackRow(pixels, bitmap.width, row);
        JSAMPROW rows[1] = {row};
        jpeg_write_scanlines(&info, rows, 1);
    }
    jpeg_finish_compress(&info);
}

}  // namespace

std::optional<std::vector<std::byte>> EncodeJpeg(const platform::Bitmap& bitmap, int quality)
{
    if (bitmap.width < 1 || bitmap.height < 1 || bitmap.width > JPEG_MAX_DIMENSION ||
        bitmap.height > JPEG_MAX_DIMENSION)
        return std::nullopt;
    Encoder encoder;
    std::vector<std::uint8_t> row(static_cast<std::size_t>(bitmap.width) * 3);
    encoder.info.err = jpeg_std_error(&encoder.errors);
    encoder.info.client_data = &encoder;
    encoder.errors.error_exit = [](j_common_ptr common) {
        std::longjmp(static_cast<Encoder*>(common->client_data)->onError, 1);
    };
    encoder.errors.output_message = [](j_common_ptr) {};
    if (setjmp(encoder.onError) != 0)
        return std::nullopt;
    Run(encoder, bitmap, quality, row.data());
    const std::byte* const bytes = reinterpret_cast<const std::byte*>(encoder.bytes);
    return std::vector<std::byte>(bytes, bytes + encoder.length);
}

}  // namespace suite
