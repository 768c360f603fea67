// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CImage: a picture file of any format that the suite's image library reads.
//
// Opening reads the header only; pixels are decoded when asked for, at the smallest scale that still covers
// what is asked. Sizes and pixels are those of the upright picture (EXIF orientation applied). A file that
// is no picture, or that breaks before its size is known, has width and height 0. A file cut short gives
// what can be decoded. Nothing throws.
#pragma once

#include "platform/services.h"
#include "platform/types.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace platform
{

// Pixels row by row from the top, 0xAARRGGBB, alpha not premultiplied.
struct Bitmap {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels;
};
using BitmapHandle = std::shared_ptr<const Bitmap>;

// One EXIF value as stored: `type` is the EXIF type (2 text, 3 short, 5 rational ...), `value` its bytes in
// native byte order.
struct PropertyItem {
    std::uint16_t type = 0;
    std::uint32_t count = 0;
    std::vector<std::uint8_t> value;
};

// An opened picture; what CImage holds on to.
class CImageSource
{
public:
    virtual ~CImageSource() = default;
    virtual int Width() const = 0;
    virtual int Height() const = 0;
    // The whole picture scaled to exactly width by height (both at least 1); null when it cannot be decoded.
    virtual BitmapHandle Render(int width, int height) = 0;
    virtual std::optional<PropertyItem> GetPropertyItem(std::uint16_t tag) = 0;
};

class CImageLibrary
{
public:
    virtual ~CImageLibrary() = default;
    // Null when the file is not a picture that can be read.
    virtual std::unique_ptr<CImageSource> Open(const std::string& path) = 0;
    // Writes a JPEG; an existing file is replaced only by a whole new one. Transparent pixels become white.
    virtual bool SaveJpeg(const Bitmap& bitmap, const std::string& path, int quality) = 0;
    // Converts a handset image to "Src0.jpg" in the same folder; with `flag` 1 the source stays.
    virtual bool Src2Jpg(const std::string& path, int flag) = 0;
    // One frame of a video clip as a picture of the clip's size, or null.
    virtual std::unique_ptr<CImageSource> OpenVideoFrame(const std::string& path) = 0;
};

inline constexpr std::uint16_t kTagDateTimeOriginal = 36867;
inline constexpr int kDefaultJpegQuality = 85;

class CImage
{
public:
    CImage() = default;
    explicit CImage(const std::string& path) { Load(path); }
    // A picture that somebody else opened, such as a frame of a clip.
    explicit CImage(std::unique_ptr<CImageSource> opened) : source(std::move(opened)) {}

    bool Load(const std::string& path)
    {
        source = Os().images->Open(path);
        return source != nullptr;
    }
    bool LoadFile(const std::string& path) { return Load(path); }
    bool LoadPng(const std::string& path) { return Load(path); }

    int Width() const { return source ? source->Width() : 0; }
    int Height() const { return source ? source->Height() : 0; }

    // A bitmap of exactly width by height, or null. `method` and `flags` are the resampling wishes of the
    // suite's callers (always 7 and 0x21808); the library has one method, the mean over each pixel's area.
    BitmapHandle GetThumbnail(int width, int height, [[maybe_unused]] int method,
                              [[maybe_unused]] std::uint32_t flags) const
    {
        return source ? source->Render(width, height) : nullptr;
    }
    // The bytes that an item takes, its value with it; 0 when the picture has no such item.
    std::size_t GetPropertyItemSize(std::uint16_t tag) const
    {
        const std::optional<PropertyItem> item = GetPropertyItem(tag);
        return item ? sizeof *item + item->value.size() : 0;
    }
    std::optional<PropertyItem> GetPropertyItem(std::uint16_t tag) const
    {
        return source ? source->GetPropertyItem(tag) : std::nullopt;
    }
    // Writes the picture as JPEG at its own size.
    bool SaveFile(const std::string& path, int quality = kDefaultJpegQuality) const
    {
        const BitmapHandle whole = GetThumbnail(Width(), Height(), 7, 0x21808);
        return whole && Os().images->SaveJpeg(*whole, path, quality);
    }

private:
    std::unique_ptr<CImageSource> source;
};

}  // namespace platform
