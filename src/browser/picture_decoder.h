// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Decoding one picture at the size in which it is to be seen.
#pragma once

#include "platform/image.h"

#include <string>

namespace browser
{

// A picture of more pixels is decoded with so many; 200 megabytes.
inline constexpr int kMostPixelsDecoded = 50'000'000;

// What tells that a file has changed.
struct FileStamp {
    std::uint64_t size = 0;
    platform::FileTime lastWriteTime = 0;
    bool operator==(const FileStamp&) const = default;
};

// Whether the picture keeps its shape within the box or has exactly its size; never enlarged either way.
enum class BoxUse { fitInto, fill };

struct PictureRequest {
    std::string path;
    platform::Extent box;
    BoxUse use = BoxUse::fitInto;

    bool operator==(const PictureRequest&) const = default;
};

struct DecodedPicture {
    FileStamp stamp;
    platform::Extent original;      // upright; 0 by 0 when the file is no picture
    platform::BitmapHandle pixels;  // null when nothing can be decoded
    bool opaque = true;
};

FileStamp StampOf(const std::string& path);

// May take seconds. May be called from any thread.
DecodedPicture DecodePicture(const PictureRequest& request);

// The size in which a picture comes out of DecodePicture.
platform::Extent DecodedSize(platform::Extent original, const PictureRequest& request);

}  // namespace browser
