// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CJpegSource: an opened JPEG. The file stays open; pixels are decoded anew by each Render.
#pragma once

#include "platform/image.h"
#include "suite/image/exif_block.h"
#include "suite/image/input_file.h"
#include "suite/image/jpeg_header.h"

#include <memory>

namespace suite
{

class CJpegSource : public platform::CImageSource
{
public:
    static std::unique_ptr<platform::CImageSource> Open(CInputFile file);

    CJpegSource(CInputFile opened, JpegHeader header);
    int Width() const override { return UprightSize().width; }
    int Height() const override { return UprightSize().height; }
    platform::BitmapHandle Render(int width, int height) override;
    std::optional<platform::PropertyItem> GetPropertyItem(std::uint16_t tag) override;

private:
    platform::Extent UprightSize() const;

    CInputFile file;
    platform::Extent stored;
    CExifBlock exif;
    int orientation;
};

}  // namespace suite
