// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/exif_reader.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <numbers>
#include <string_view>

namespace photo
{

namespace
{

constexpr std::size_t kLengthBytes = 2;
constexpr std::size_t kTiffHeader = 6;  // its offset in the block, behind "Exif" and two zeros
constexpr std::size_t kFirstDirectory = 8;
constexpr std::size_t kEntryLength = 12;
constexpr unsigned kHighestFormat = 12;

constexpr std::size_t kDeepest = 64;
constexpr int kMostEntries = 65536;

enum Tag : unsigned {
    kMake = 0x010F,
    kModel = 0x0110,
    kOrientation = 0x0112,
    kResolutionUnit = 0x0128,
    kThumbnailOffset = 0x0201,
    kThumbnailLength = 0x0202,
    kExifDirectory = 0x8769,
    kIso = 0x8827,
    kExifVersion = 0x9000,
    kDateTimeOriginal = 0x9003,
    kShutterSpeed = 0x9201,
    kAperture = 0x9202,
    kMaxAperture = 0x9205,
    kFlash = 0x9209,
    kUserComment = 0x9286,
    kPixelWidth = 0xA002,
    kPixelHeight = 0xA003,
    kInteroperability = 0xA005,
    kFocalPlaneUnit = 0xA210,
};

struct FloatTag {
    unsigned tag;
    float ExifImageInfo::*field;
};
constexpr FloatTag kFloatTags[] = {
    {0x011A, &ExifImageInfo::XResolution},    {0x011B, &ExifImageInfo::YResolution},
    {0x829A, &ExifImageInfo::ExposureTime},   {0x829D, &ExifImageInfo::ApertureFNumber},
    {0x9203, &ExifImageInfo::Brightness},     {0x9204, &ExifImageInfo::ExposureBias},
    {0x9206, &ExifImageInfo::Distance},       {0x920A, &ExifImageInfo::FocalLength},
    {0xA20E, &ExifImageInfo::FocalplaneXRes}, {0xA20F, &ExifImageInfo::FocalplaneYRes},
};

struct IntegerTag {
    unsigned tag;
    int ExifImageInfo::*field;
};
constexpr IntegerTag kIntegerTags[] = {
    {0x8822, &ExifImageInfo::ExposureProgram},
    {0x9102, &ExifImageInfo::CompressionLevel},
    {0x9207, &ExifImageInfo::MeteringMode},
    {0x9208, &ExifImageInfo::LightSource},
};

// Cut towards zero; what does not fit becomes the nearest number that does.
int ToInteger(double value)
{
    using Limits = std::numeric_limits<int>;
    if (std::isnan(value)) {
        return 0;
    }
    return static_cast<int>(
        std::clamp(value, static_cast<double>(Limits::min()), static_cast<double>(Limits::max())));
}

float ToFloat(double value)
{
    using Limits = std::numeric_limits<float>;
    if (std::abs(value) > static_cast<double>(Limits::max())) {
        return std::copysign(Limits::infinity(), static_cast<float>(std::signbit(value) ? -1 : 1));
    }
    return static_cast<float>(value);
}

// Leaves the field alone for a unit that is not known.
void TakeUnit(float& field, double unit)
{
    switch (ToInteger(unit)) {
    case 1:
    case 2:
        field = 1.0F;
        break;
    case 3:
        field = 0x1.93264cp-2F;  // centimetres
        break;
    case 4:
        field = 0x1.42850ap-5F;  // millimetres
        break;
    case 5:
        field = 0x1.4a429ap-15F;  // micrometres
        break;
    default:
        break;
    }
}

}  // namespace

struct CExifReader::Entry {
    unsigned tag = 0;
    unsigned format = 0;
    std::size_t value = 0;   // where its bytes begin
    std::size_t length = 0;  // how many they are
};

// What one directory says of the thumbnail.
struct CExifReader::ThumbnailPlace {
    double offset = 0;
    double length = 0;
};

bool CExifReader::DecodeExif(Section& section)
{
    record->FlashUsed = 0;
    std::fill(std::begin(record->Comments), std::end(record->Comments), '\0');
    largestDimension = 0;
    const std::span<std::uint8_t> bytes(section.bytes.get() + kLengthBytes,
                                        static_cast<std::size_t>(section.length) - kLengthBytes);
    constexpr std::uint8_t kHeader[kTiffHeader] = {'E', 'x', 'i', 'f', 0, 0};
    if (bytes.size() < kTiffHeader || !std::equal(std::begin(kHeader), std::end(kHeader), bytes.begin())) {
        return Fail("Incorrect Exif header");
    }
    const std::span<std::uint8_t> tiff = bytes.subspan(kTiffHeader);
    block = CExifBytes(tiff, ByteOrder::intel);
    const unsigned alignment = block.Get16(0);
    if (alignment == ('M' << 8 | 'M')) {
        block = CExifBytes(tiff, ByteOrder::motorola);
    } else if (alignment != ('I' << 8 | 'I')) {
        return Fail("Invalid Exif alignment marker.");
    }
    if (block.Get16(2) != 42) {
        return Fail("Invalid Exif start (1)");
    }
    if (const std::int32_t first = block.GetSigned32(4); first < 8 || first > 16) {
        return Fail("Suspicious offset of first IFD value");
    }
    blockLength = section.length - 6;
    entriesLeft = kMostEntries;
    openDirectories.clear();
    if (!WalkDirectory(kFirstDirectory)) {
        return false;
    }
    if (record->FocalplaneXRes != 0) {
        record->CCDWidth =
            ToFloat(static_cast<double>(largestDimension) * static_cast<double>(record->FocalplaneUnits) /
                    static_cast<double>(record->FocalplaneXRes));
    }
    return true;
}

bool CExifReader::WalkDirectory(std::size_t start)
{
    const unsigned count = block.Get16(start);
    const std::size_t end = start + 2 + kEntryLength * count;
    if (static_cast<std::int64_t>(end) > blockLength) {
        return Fail("Illegally sized directory");
    }
    openDirectories.push_back(start);
    ThumbnailPlace thumbnail;
    bool isFine = true;
    for (std::size_t place = start + 2; place < end && isFine && entriesLeft > 0; place += kEntryLength) {
        --entriesLeft;
        isFine = TakeEntry(place, thumbnail);
    }
    // Only 16 bits of the link to the next directory are looked at, in either byte order.
    const unsigned next = isFine && entriesLeft > 0 ? block.Get16(end) : 0;
    isFine = isFine && (next == 0 || Follow(next));
    openDirectories.pop_back();
    if (isFine) {
        KeepThumbnail(thumbnail);
    }
    return isFine;
}

bool CExifReader::Follow(std::int64_t target)
{
    if (target < 0 || target > blockLength) {
        return Fail("Illegal subdirectory link");
    }
    const auto start = static_cast<std::size_t>(target);
    if (openDirectories.size() < kDeepest &&
        std::ranges::find(openDirectories, start) == openDirectories.end()) {
        WalkDirectory(start);
    }
    return true;
}

bool CExifReader::TakeEntry(std::size_t place, ThumbnailPlace& thumbnail)
{
    Entry entry;
    if (!ReadEntry(place, entry)) {
        return false;
    }
    ApplyTag(entry, thumbnail);
    const bool isLink = entry.tag == kExifDirectory || entry.tag == kInteroperability;
    return !isLink || Follow(block.GetSigned32(entry.value));
}

bool CExifReader::ReadEntry(std::size_t place, Entry& entry)
{
    entry.tag = block.Get16(place);
    entry.format = block.Get16(place + 2);
    if (entry.format > kHighestFormat) {
        return Fail("Illegal format code in EXIF dir");
    }
    constexpr std::size_t kInPlace = 4;
    const std::uint64_t length =
        static_cast<std::uint64_t>(block.Get32(place + 4)) * FormatSize(entry.format);
    entry.value = place + 8;
    if (length > kInPlace) {
        entry.value = block.Get32(place + 8);
        if (entry.value + length > static_cast<std::uint64_t>(blockLength)) {
            return Fail("Illegal pointer offset value in EXIF.");
        }
    }
    entry.length = static_cast<std::size_t>(length);
    return true;
}

void CExifReader::ApplyTag(const Entry& entry, ThumbnailPlace& thumbnail)
{
    const double number = block.Number(entry.value, entry.format);
    switch (entry.tag) {
    case kMake:
        return CopyText(record->CameraMake, entry, 0, 31);
    case kModel:
        return CopyText(record->CameraModel, entry, 0, 39);
    case kExifVersion:
        return CopyText(record->ExifVersion, {entry.tag, entry.format, entry.value, 4}, 0, 4);
    case kDateTimeOriginal:
        return CopyText(record->DateTime, entry, 0, 19);
    case kUserComment:
        return ApplyUserComment(entry);
    case kThumbnailOffset:
        thumbnail.offset = std::trunc(number);
        return;
    case kThumbnailLength:
        thumbnail.length = std::trunc(number);
        return;
    case kResolutionUnit:
        return TakeUnit(record->ResolutionUnit, number);
    case kFocalPlaneUnit:
        return TakeUnit(record->FocalplaneUnits, number);
    default:
        return ApplyNumber(entry.tag, number);
    }
}

void CExifReader::ApplyNumber(unsigned tag, double number)
{
    for (const FloatTag& known : kFloatTags) {
        if (known.tag == tag) {
            record->*known.field = ToFloat(number);
            return;
        }
    }
    for (const IntegerTag& known : kIntegerTags) {
        if (known.tag == tag) {
            record->*known.field = ToInteger(number);
            return;
        }
    }
    switch (tag) {
    case kOrientation:
        record->Orientation = ToInteger(number);
        if (record->Orientation < 1 || record->Orientation > 8) {
            Fail("Undefined rotation value");
            record->Orientation = 0;
        }
        break;
    case kIso:
        record->ISOequivalent = ToInteger(number);
        if (record->ISOequivalent < 50) {
            record->ISOequivalent = ToInteger(200.0 * record->ISOequivalent);
        }
        break;
    case kShutterSpeed:
        if (record->ExposureTime == 0) {
            record->ExposureTime = ToFloat(1 / std::exp(number * std::numbers::ln2));
        }
        break;
    case kAperture:
    case kMaxAperture:
        if (record->ApertureFNumber == 0) {
            record->ApertureFNumber = ToFloat(std::exp(std::numbers::ln2 * number * 0.5));
        }
        break;
    case kFlash:
        record->FlashUsed = (ToInteger(number) & 7) != 0 ? 1 : 0;
        break;
    case kPixelWidth:
    case kPixelHeight:
        largestDimension = std::max(largestDimension, ToInteger(number));
        break;
    default:
        break;
    }
}

// Copies the value's text from its byte `from` on, up to a NUL, its end or `most` characters.
void CExifReader::CopyText(std::span<char> field, const Entry& entry, std::size_t from,
                           std::size_t most) const
{
    std::ranges::fill(field, '\0');
    for (std::size_t i = 0; i < most && from + i < entry.length; ++i) {
        const std::uint8_t byte = block.At(entry.value + from + i);
        if (byte == 0) {
            break;
        }
        field[i] = static_cast<char>(byte);
    }
}

void CExifReader::ApplyUserComment(const Entry& entry)
{
    for (std::size_t i = entry.length; i > 0 && block.At(entry.value + i - 1) == ' '; --i) {
        block.Clear(entry.value + i - 1);
    }
    constexpr std::string_view kCode = "ASCII";
    constexpr std::size_t kTextBefore = 10;
    constexpr std::size_t kMost = 199;
    bool isAscii = entry.length >= kCode.size();
    for (std::size_t i = 0; i < kCode.size() && isAscii; ++i) {
        isAscii = block.At(entry.value + i) == kCode[i];
    }
    if (!isAscii) {
        return CopyText(record->Comments, entry, 0, kMost);
    }
    for (std::size_t i = kCode.size(); i < std::min(kTextBefore, entry.length); ++i) {
        const std::uint8_t byte = block.At(entry.value + i);
        if (byte != 0 && byte != ' ') {
            return CopyText(record->Comments, entry, i, kMost);
        }
    }
}

void CExifReader::KeepThumbnail(const ThumbnailPlace& thumbnail)
{
    if (thumbnail.offset > 0 && thumbnail.length > 0 &&
        thumbnail.offset + thumbnail.length <= static_cast<double>(blockLength)) {
        record->ThumbnailPointer = block.Address(static_cast<std::size_t>(thumbnail.offset));
        record->ThumbnailSize = static_cast<int>(thumbnail.length);
    }
}

}  // namespace photo
