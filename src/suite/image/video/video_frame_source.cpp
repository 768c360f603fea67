// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/image/video/video_frame_source.h"

#include "suite/image/area_scaler.h"
#include "suite/image/bitmap_tools.h"
#include "suite/image/picture_module.h"

extern "C" {
#include <libavutil/log.h>
}
#include <libffmpegthumbnailer/videothumbnailerc.h>
#include <string>

namespace suite
{
namespace
{

struct Release {
    void operator()(video_thumbnailer* thumbnailer) const { video_thumbnailer_destroy(thumbnailer); }
    void operator()(image_data* image) const { video_thumbnailer_destroy_image_data(image); }
};

}  // namespace

std::unique_ptr<platform::CImageSource> CVideoFrameSource::Open(const CInputFile& file)
{
    const std::unique_ptr<video_thumbnailer, Release> thumbnailer(video_thumbnailer_create());
    const std::unique_ptr<image_data, Release> image(video_thumbnailer_create_image_data());
    // By itself libav prints to standard error what it finds in a broken file.
    av_log_set_level(AV_LOG_QUIET);
    thumbnailer->thumbnail_image_type = Rgb;
    video_thumbnailer_set_size(thumbnailer.get(), 0, 0);
    // Opened through the descriptor: a name could be taken for a protocol's address.
    const std::string path = "file:/proc/self/fd/" + std::to_string(file.Descriptor());
    if (video_thumbnailer_generate_thumbnail_to_buffer(thumbnailer.get(), path.c_str(), image.get()) != 0)
        return nullptr;
    auto source = std::make_unique<CVideoFrameSource>();
    source->size = {image->image_data_width, image->image_data_height};
    if (!IsBitmapSize(source->size) || image->image_data_ptr == nullptr ||
        image->image_data_size / 3 / source->size.width < source->size.height)
        return nullptr;
    source->pixels.assign(image->image_data_ptr, image->image_data_ptr + image->image_data_size);
    return source;
}

platform::BitmapHandle CVideoFrameSource::Render(int width, int height)
{
    const platform::Extent target = {width, height};
    if (!IsBitmapSize(target))
        return nullptr;
    CAreaScaler scaler(size, target, 3);
    for (int y = 0; y < size.height; ++y)
        scaler.AddRow(pixels.data() + static_cast<std::size_t>(y) * size.width * 3);
    platform::Bitmap bitmap{width, height, {}};
    bitmap.pixels.reserve(static_cast<std::size_t>(width) * height);
    const std::vector<std::uint8_t>& scaled = scaler.Pixels();
    for (std::size_t at = 0; at + 2 < scaled.size(); at += 3)
        bitmap.pixels.push_back(0xFF000000U | static_cast<std::uint32_t>(scaled[at]) << 16 |
                                static_cast<std::uint32_t>(scaled[at + 1]) << 8 | scaled[at + 2]);
    return std::make_shared<platform::Bitmap>(std::move(bitmap));
}

}  // namespace suite

KELVO_PICTURE_MODULE platform::CImageSource* KelvoOpenPicture(int descriptor, suite::PictureKind)
{
    const suite::CInputFile file(descriptor);
    return suite::CVideoFrameSource::Open(file).release();
}
