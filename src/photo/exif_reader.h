// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CExifReader: walks the sections of a JPEG file up to its picture data and fills an ExifImageInfo.
//
// Made for one file. Whatever is wrong with the file, the record keeps what was read before. Nothing beyond
// the sections is read, and the file is never written. What each field is filled from, which oddities are
// let pass and which end the walk: docs/formats/exif.md.
//
// Any bytes end in bounded time and memory: beyond 4,096 sections the file is given up, and a link of the
// EXIF block is not followed into a directory that is being read, nor more than 64 directories deep; after
// 65,536 entries the block ends. No camera's file comes near any of these.
#pragma once

#include "photo/exif_bytes.h"
#include "photo/exif_image_info.h"
#include "photo/section_input.h"

#include <array>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace photo
{

class CExifReader
{
public:
    // Fills `given`, or a record of its own.
    explicit CExifReader(ExifImageInfo* given = nullptr);
    CExifReader(const CExifReader&) = delete;
    CExifReader& operator=(const CExifReader&) = delete;

    // True when the start of the picture's data was reached.
    bool ReadJpegSections(platform::CFile& file);
    bool ReadJpegSections(CSectionInput& input);

    const ExifImageInfo& Record() const { return *record; }
    // What went wrong last; empty when nothing did. A walk that ended well may have left one too.
    const char* ErrorText() const { return errorText.data(); }
    // What ended the walk without an error text, for a developer's eyes; empty when there is none.
    const char* Notice() const { return notice; }
    // The record's thumbnail as far as its section holds it; empty when there is none.
    std::span<const std::uint8_t> Thumbnail() const;
    // Where the thumbnail begins in its section, whose first two bytes are its length.
    std::optional<std::size_t> ThumbnailOffset() const;

private:
    struct Section {
        std::unique_ptr<std::uint8_t[]> bytes;  // its length first, two bytes
        int marker = 0;
        int length = 0;
    };
    enum class Step { goOn, finished, failed };
    struct Entry;
    struct ThumbnailPlace;

    int ReadMarker(CSectionInput& input);
    Step ReadSection(CSectionInput& input);
    Step TakeBytes(CSectionInput& input, Section& section);
    Step ActOn(Section& section);
    void TakeFrame(const Section& section);
    void TakeComment(const Section& section);
    const Section* ThumbnailSection() const;

    bool DecodeExif(Section& section);
    bool WalkDirectory(std::size_t start);
    bool TakeEntry(std::size_t place, ThumbnailPlace& thumbnail);
    bool ReadEntry(std::size_t place, Entry& entry);
    void CopyText(std::span<char> field, const Entry& entry, std::size_t from, std::size_t most) const;
    void ApplyTag(const Entry& entry, ThumbnailPlace& thumbnail);
    void ApplyNumber(unsigned tag, double number);
    void ApplyUserComment(const Entry& entry);
    void KeepThumbnail(const ThumbnailPlace& thumbnail);
    // Walks the directory at `target`, whatever comes of it; false when it lies outside the block.
    bool Follow(std::int64_t target);

    bool Fail(const char* message);
    Step Notify(const char* message);

    std::unique_ptr<ExifImageInfo> owned;
    ExifImageInfo* record;
    std::array<char, 256> errorText{};
    int largestDimension = 0;
    std::array<Section, 20> sections;
    std::size_t sectionCount = 0;
    std::size_t sectionsSeen = 0;
    bool hasComment = false;
    const char* notice = "";

    // Of the EXIF block being decoded. Its offsets count from the TIFF header.
    CExifBytes block;
    std::int64_t blockLength = 0;  // two more than the section holds
    int entriesLeft = 0;
    std::vector<std::size_t> openDirectories;
};

}  // namespace photo
