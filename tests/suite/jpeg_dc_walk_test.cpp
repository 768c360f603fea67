// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The quick reader of JPEG means, by itself: through the library a refusal would hide behind libjpeg.
#include "suite/image/bitmap_tools.h"
#include "suite/image/jpeg_dc_walk.h"
#include "suite/image_support.h"

#include <cstdlib>

namespace
{

struct Encoding {
    int across = 1;
    int down = 1;
    unsigned restart = 0;
    bool isGrey = false;
    bool isOptimised = false;
    bool isProgressive = false;
    int quality = 92;
};

std::string Encode(const platform::Bitmap& bitmap, const Encoding& how)
{
    jpeg_compress_struct info = {};
    jpeg_error_mgr errors = {};
    unsigned char* bytes = nullptr;
    unsigned long length = 0;
    info.err = jpeg_std_error(&errors);
    jpeg_create_compress(&info);
    jpeg_mem_dest(&info, &bytes, &length);
    info.image_width = static_cast<unsigned>(bitmap.width);
    info.image_height = static_cast<unsigned>(bitmap.height);
    info.input_components = 4;
    info.in_color_space = JCS_EXT_BGRX;
    jpeg_set_defaults(&info);
    if (how.isGrey)
        jpeg_set_colorspace(&info, JCS_GRAYSCALE);
    if (how.isProgressive)
        jpeg_simple_progression(&info);
    info.comp_info[0].h_samp_factor = how.across;
    info.comp_info[0].v_samp_factor = how.down;
    info.restart_interval = how.restart;
    info.optimize_coding = how.isOptimised ? TRUE : FALSE;
    jpeg_set_quality(&info, how.quality, TRUE);
    jpeg_start_compress(&info, TRUE);
    for (int y = 0; y < bitmap.height; ++y) {
        const auto* row = bitmap.pixels.data() + static_cast<std::size_t>(y) * bitmap.width;
        auto* bytesOfRow = reinterpret_cast<JSAMPROW>(const_cast<std::uint32_t*>(row));
        jpeg_write_scanlines(&info, &bytesOfRow, 1);
    }
    jpeg_finish_compress(&info);
    const std::string file(reinterpret_cast<const char*>(bytes), length);
    jpeg_destroy_compress(&info);
    std::free(bytes);
    return file;
}

// The walk's result at an eighth of the picture's size.
std::optional<platform::Bitmap> Walk(const std::string& path)
{
    const auto file = suite::CInputFile::Open(path);
    suite::CJpegInput input(*file);
    if (!input.Guarded([](jpeg_decompress_struct& info) { jpeg_read_header(&info, TRUE); }))
        return std::nullopt;
    const platform::Extent target = {static_cast<int>(input.info.image_width + 7) / 8,
                                     static_cast<int>(input.info.image_height + 7) / 8};
    const auto pixels = suite::WalkDcTerms(*file, input.Position(), input.info, target);
    if (!pixels)
        return std::nullopt;
    return suite::BitmapFromOpaque(target, *pixels);
}

}  // namespace

TEST(CDcWalk, GivesTheMeanOfEachBlockOfWhatCamerasWrite)
{
    const support::CTempFolder folder;
    const Encoding encodings[] = {{},
                                  {.across = 2, .down = 2},
                                  {.across = 2},
                                  {.down = 2},
                                  {.across = 2, .down = 2, .restart = 1},
                                  {.across = 2, .down = 2, .restart = 7, .isOptimised = true},
                                  {.across = 2, .down = 2, .isOptimised = true, .quality = 100},
                                  {.across = 2, .down = 2, .quality = 30},
                                  {.isGrey = true},
                                  {.across = 2, .down = 2, .restart = 3, .isGrey = true}};

    for (const Encoding& how : encodings) {
        for (const platform::Extent size : {platform::Extent{320, 240}, {401, 307}, {9, 40}}) {
            const platform::Bitmap whole = Landscape(size.width, size.height);

            const auto walked = Walk(folder.Make("photo.jpg", Encode(whole, how)));

            ASSERT_TRUE(walked);
            const int width = walked->width, height = walked->height;
            platform::Bitmap mean = Mean(Landscape(width * 8, height * 8), width, height);
            if (how.isGrey)
                for (std::uint32_t& pixel : mean.pixels)
                    pixel =
                        0x010101U *
                        (((pixel >> 16 & 255) * 299 + (pixel >> 8 & 255) * 587 + (pixel & 255) * 114) / 1000);
            EXPECT_LT(MeanDifference(&*walked, &mean), 4)
                << how.across << how.down << how.restart << how.isGrey << how.quality << ' ' << size.width;
        }
    }
}

TEST(CDcWalk, RefusesWhatItDoesNotServe)
{
    const support::CTempFolder folder;
    const platform::Bitmap whole = Landscape(64, 48);
    const std::string good = Encode(whole, {.across = 2, .down = 2, .restart = 4});
    std::string wrongRestart = good;
    wrongRestart[wrongRestart.find("\xFF\xD1") + 1] = '\xD2';

    EXPECT_FALSE(Walk(folder.Make("a.jpg", Encode(whole, {.isProgressive = true}))));
    EXPECT_FALSE(Walk(folder.Make("a.jpg", Encode(whole, {.across = 4}))));
    EXPECT_FALSE(Walk(folder.Make("a.jpg", wrongRestart)));
    EXPECT_FALSE(Walk(std::string(KELVO_SAMPLES) + "cmyk.jpg"));
    const std::size_t data = good.find("\xFF\xDA") + 14;
    for (std::size_t length = data; length < good.size() - 4; length += 5)
        EXPECT_FALSE(Walk(folder.Make(std::to_string(length), good.substr(0, length)))) << length;
    EXPECT_TRUE(Walk(folder.Make("a.jpg", good)));
}
