// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a photo: its record holds nothing that leads outside, no byte is read twice, and what is
// foreseen changes nothing.
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

// Whether the photo reads the same when its blocks were asked for and fetched before.
bool ReadsTheSameForeseen(const std::string& bytes, bool result, const photo::CExifReader& reader)
{
    support::CMemoryFile file(bytes);
    photo::CSectionInput input(file);
    input.ForeseeStart();
    for (int stage = 0; stage < 3; ++stage) {
        input.ForeseeMore();
    }
    photo::CExifReader foreseen;
    const bool sameResult = foreseen.ReadJpegSections(input) == result;
    const photo::ExifImageInfo& one = reader.Record();
    const photo::ExifImageInfo& other = foreseen.Record();
    return sameResult && std::strcmp(reader.ErrorText(), foreseen.ErrorText()) == 0 &&
           std::strcmp(one.Comments, other.Comments) == 0 && one.Width == other.Width &&
           one.IsExif == other.IsExif && one.ThumbnailSize == other.ThumbnailSize &&
           reader.ThumbnailOffset() == foreseen.ThumbnailOffset() && file.bytesRead <= bytes.size();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    support::CMemoryFile file(bytes);
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
    if (!sound || sum == 1U << 31 || !ReadsTheSameForeseen(bytes, result, reader)) {
        std::abort();
    }
    return 0;
}
