// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CVideoFrameSource: one frame of a clip, taken a tenth into it, in the clip's size as shown.
#pragma once

#include "platform/image.h"
#include "suite/image/input_file.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace suite
{

class CVideoFrameSource : public platform::CImageSource
{
public:
    static std::unique_ptr<platform::CImageSource> Open(const CInputFile& file);

    int Width() const override { return size.width; }
    int Height() const override { return size.height; }
    platform::BitmapHandle Render(int width, int height) override;
    std::optional<platform::PropertyItem> GetPropertyItem(std::uint16_t) override { return std::nullopt; }

private:
    platform::Extent size;
    std::vector<std::uint8_t> pixels;  // red, green, blue
};

}  // namespace suite
