// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CPngSource: an opened PNG. Rows go straight to the scaler, so that a large picture costs no memory; only
// an interlaced one is held whole, half a gigabyte at most. Where the data ends early the rest is
// transparent. Pixels are decoded anew by each Render.
#pragma once

#include "platform/image.h"
#include "suite/image/exif_block.h"
#include "suite/image/input_file.h"

#include <memory>
#include <vector>

namespace suite
{

class CPngSource : public platform::CImageSource
{
public:
    static std::unique_ptr<platform::CImageSource> Open(CInputFile file);

    CPngSource(CInputFile opened, platform::Extent size, const std::vector<std::uint8_t>& exifBytes);
    int Width() const override { return UprightSize().width; }
    int Height() const override { return UprightSize().height; }
    platform::BitmapHandle Render(int width, int height) override;
    std::optional<platform::PropertyItem> GetPropertyItem(std::uint16_t tag) override
    {
        return exif.Item(tag);
    }

private:
    platform::Extent UprightSize() const;

    CInputFile file;
    platform::Extent stored;
    CExifBlock exif;
    int orientation;
};

}  // namespace suite
