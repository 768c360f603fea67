// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/exif_reader.h"

#include "platform/services.h"
#include "platform/utility.h"

#include <algorithm>
#include <cstring>
#include <functional>
#include <new>
#include <string_view>

namespace photo
{

namespace
{

constexpr int kFill = 0xFF;
constexpr int kStartOfImage = 0xD8;
constexpr int kEndOfImage = 0xD9;
constexpr int kStartOfScan = 0xDA;
constexpr int kApplication0 = 0xE0;
constexpr int kApplication1 = 0xE1;
constexpr int kComment = 0xFE;

constexpr std::size_t kLengthBytes = 2;
// The EXIF length counts two bytes more than the section holds: zeros stand there.
constexpr std::size_t kPastEnd = 2;
constexpr std::string_view kExifSignature = "Exif";
constexpr std::size_t kMostSections = 4096;

// C0 to CF, but for the tables and the reserved one among them.
bool IsStartOfFrame(int marker)
{
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

// Past the end of the file every byte is a fill byte.
int ByteOrFill(CSectionInput& input)
{
    const int byte = input.Byte();
    return byte < 0 ? kFill : byte;
}

}  // namespace

CExifReader::CExifReader(ExifImageInfo* given)
    : owned(given ? nullptr : std::make_unique<ExifImageInfo>()), record(given ? given : owned.get())
{
}

bool CExifReader::Fail(const char* message)
{
    std::strncpy(errorText.data(), message, errorText.size() - 1);
    return false;
}

CExifReader::Step CExifReader::Notify(const char* message)
{
    notice = message;
    if (platform::CUtility* const utility = platform::Os().utility) {
        utility->OutputDebugString(message);
    }
    return Step::failed;
}

bool CExifReader::ReadJpegSections(platform::CFile& file)
{
    CSectionInput input(file);
    return ReadJpegSections(input);
}

bool CExifReader::ReadJpegSections(CSectionInput& input)
{
    if (input.Byte() != kFill || input.Byte() != kStartOfImage) {
        return false;
    }
    while (sectionCount < sections.size() && sectionsSeen < kMostSections) {
        const Step step = ReadSection(input);
        if (step != Step::goOn) {
            return step == Step::finished;
        }
    }
    return Fail("Too many sections in jpg file");
}

// The marker's code, or 0xFF when there is nothing but fill bytes.
int CExifReader::ReadMarker(CSectionInput& input)
{
    constexpr int kMostFill = 7;
    int marker = kFill;
    for (int i = 0; i < kMostFill && marker == kFill; ++i) {
        marker = ByteOrFill(input);
    }
    return marker;
}

CExifReader::Step CExifReader::ReadSection(CSectionInput& input)
{
    const int marker = ReadMarker(input);
    if (marker == kFill) {
        return Notify("too many padding unsigned chars\n");
    }
    ++sectionsSeen;
    Section& section = sections[sectionCount];
    section.marker = marker;
    const int high = ByteOrFill(input);
    section.length = high << 8 | ByteOrFill(input);
    if (section.length < static_cast<int>(kLengthBytes)) {
        Fail("invalid marker");
        return Step::failed;
    }
    const Step taken = TakeBytes(input, section);
    return taken == Step::finished ? ActOn(section) : taken;
}

// Finished when the section's bytes are there; goOn when it is one that is not kept, whose bytes are passed
// over.
CExifReader::Step CExifReader::TakeBytes(CSectionInput& input, Section& section)
{
    const auto length = static_cast<std::size_t>(section.length);
    std::size_t have = kLengthBytes;
    bool isWanted = section.marker != kApplication0 && (section.marker != kComment || !hasComment);
    if (isWanted) {
        section.bytes.reset(new (std::nothrow) std::uint8_t[length + kPastEnd]);
        if (!section.bytes) {
            Fail("Could not allocate memory");
            return Step::failed;
        }
        section.bytes[0] = static_cast<std::uint8_t>(length >> 8);
        section.bytes[1] = static_cast<std::uint8_t>(length);
        std::fill_n(section.bytes.get() + length, kPastEnd, std::uint8_t{0});
    }
    bool isWhole = true;
    if (section.marker == kApplication1) {
        const std::size_t signature = std::min(kExifSignature.size(), length - have);
        isWhole = input.Read({section.bytes.get() + have, signature});
        have += signature;
        isWanted = have == kLengthBytes + kExifSignature.size() &&
                   std::memcmp(section.bytes.get() + kLengthBytes, kExifSignature.data(), signature) == 0;
    }
    const std::size_t rest = length - have;
    isWhole = isWhole && (isWanted ? input.Read({section.bytes.get() + have, rest}) : input.Skip(rest));
    if (!isWhole) {
        Fail("Premature end of file?");
        return Step::failed;
    }
    return isWanted ? Step::finished : Step::goOn;
}

CExifReader::Step CExifReader::ActOn(Section& section)
{
    ++sectionCount;
    if (section.marker == kEndOfImage) {
        return Notify("No image in jpeg!\n");
    }
    if (section.marker == kStartOfScan) {
        return Step::finished;
    }
    if (section.marker == kApplication1) {
        record->IsExif = DecodeExif(section);
    } else if (section.marker == kComment) {
        TakeComment(section);
    } else if (IsStartOfFrame(section.marker)) {
        TakeFrame(section);
    }
    return Step::goOn;
}

void CExifReader::TakeFrame(const Section& section)
{
    const auto byte = [&section](int offset) {
        return offset < section.length ? static_cast<int>(section.bytes[static_cast<std::size_t>(offset)])
                                       : 0;
    };
    record->Height = byte(3) << 8 | byte(4);
    record->Width = byte(5) << 8 | byte(6);
    record->IsColor = byte(7) == 3 ? 1 : 0;
    record->Process = section.marker;
}

void CExifReader::TakeComment(const Section& section)
{
    hasComment = true;
    const std::size_t end = std::min(static_cast<std::size_t>(section.length), std::size(record->Comments));
    char* out = record->Comments;
    for (std::size_t i = kLengthBytes; i < end; ++i) {
        const std::uint8_t byte = section.bytes[i];
        if (byte == '\r' && i + 1 < end && section.bytes[i + 1] == '\n') {
            continue;
        }
        const bool isPlain = byte >= ' ' || byte == '\n' || byte == '\t';
        *out++ = isPlain ? static_cast<char>(byte) : '?';
    }
    std::fill(out, std::end(record->Comments), '\0');
}

const CExifReader::Section* CExifReader::ThumbnailSection() const
{
    const std::less_equal<const std::uint8_t*> notBehind;
    for (const Section& section : std::span(sections).first(sectionCount)) {
        const std::uint8_t* const start = section.bytes.get();
        if (record->ThumbnailPointer && notBehind(start, record->ThumbnailPointer) &&
            notBehind(record->ThumbnailPointer, start + section.length + kPastEnd)) {
            return &section;
        }
    }
    return nullptr;
}

std::optional<std::size_t> CExifReader::ThumbnailOffset() const
{
    const Section* const section = ThumbnailSection();
    if (!section) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(record->ThumbnailPointer - section->bytes.get());
}

std::span<const std::uint8_t> CExifReader::Thumbnail() const
{
    const Section* const section = ThumbnailSection();
    if (!section) {
        return {};
    }
    const std::size_t offset = *ThumbnailOffset();
    const std::size_t held = std::max(static_cast<std::size_t>(section->length), offset) - offset;
    return {record->ThumbnailPointer, std::min(held, static_cast<std::size_t>(record->ThumbnailSize))};
}

}  // namespace photo
