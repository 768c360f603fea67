// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CHeifSource: an opened HEIF or AVIF picture, read by libheif. Rotations and mirrorings that the file asks
// for are applied by the library. A picture is decoded anew, whole, by each Render.
#pragma once

#include "platform/image.h"
#include "suite/image/exif_block.h"
#include "suite/image/input_file.h"

#include <memory>
#include <vector>

struct heif_context;
struct heif_image_handle;

namespace suite
{

class CHeifSource : public platform::CImageSource
{
public:
    static std::unique_ptr<platform::CImageSource> Open(CInputFile file);

    ~CHeifSource() override;
    int Width() const override;
    int Height() const override;
    platform::BitmapHandle Render(int width, int height) override;
    std::optional<platform::PropertyItem> GetPropertyItem(std::uint16_t tag) override;

private:
    CHeifSource() = default;
    bool Read();

    std::vector<std::uint8_t> bytes;
    heif_context* context = nullptr;
    heif_image_handle* handle = nullptr;
};

}  // namespace suite
