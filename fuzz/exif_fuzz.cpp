// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a photo: its record holds nothing that leads outside, and no more of the file is read than
// its sections need.
#include "photo/exif_reader.h"
#include "support/memory_file.h"

#include <cstdlib>
#include <cstring>

namespace
{

template <std::size_t length> bool EndsInside(const char (&text)[length])
{
    return std::memchr(text, '\0', length) != nullptr;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    support::CMemoryFile file(std::string(reinterpret_cast<const char*>(data), size));
    photo::CExifReader reader;
    const bool result = reader.ReadJpegSections(file);
    const photo::ExifImageInfo& record = reader.Record();

    unsigned sum = 0;
    for (const std::uint8_t byte : reader.Thumbnail()) {
        sum += byte;
    }
    const bool sound = EndsInside(record.ExifVersion) && EndsInside(record.CameraMake) &&
                       EndsInside(record.CameraModel) && EndsInside(record.DateTime) &&
                       EndsInside(record.Comments) && record.Orientation >= 0 && record.Orientation <= 8 &&
                       reader.Thumbnail().size() <= static_cast<std::size_t>(record.ThumbnailSize) &&
                       (record.ThumbnailPointer == nullptr) == !reader.ThumbnailOffset() &&
                       file.bytesRead <= size && (!result || size >= 5);
    photo::SplitDate(record);
    if (!sound || sum == 1U << 31) {
        std::abort();
    }
    return 0;
}
