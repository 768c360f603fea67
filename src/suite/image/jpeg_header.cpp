// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/image/jpeg_header.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace suite
{
namespace
{

// An honest file has a few dozen sections, those with colour profiles cut in pieces included.
constexpr int kMostSections = 4096;
constexpr std::string_view kExifSignature("Exif\0\0", 6);

constexpr int kStartOfScan = 0xDA;
constexpr int kEndOfImage = 0xD9;
constexpr int kApplication1 = 0xE1;

// The start-of-frame markers C0 to CF but for the tables and the reserved one among them.
bool IsStartOfFrame(int marker)
{
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

bool StandsAlone(int marker)
{
    return marker == 0x01 || (marker >= 0xD0 && marker <= 0xD8);
}

// Reads forward with a window, so that short sections cost no system call each.
class CSectionReader
{
public:
    explicit CSectionReader(const CInputFile& read) : file(read) {}

    int Byte()
    {
        if (at < windowStart || at >= windowStart + windowLength) {
            windowStart = at;
            windowLength = file.ReadAt(at, window);
            if (windowLength == 0)
                return -1;
        }
        return window[static_cast<std::size_t>(at++ - windowStart)];
    }
    int Word()
    {
        const int high = Byte();
        const int low = Byte();
        return high < 0 || low < 0 ? -1 : high << 8 | low;
    }
    void Skip(int length) { at += static_cast<std::uint64_t>(length); }
    std::vector<std::uint8_t> Bytes(int length) const
    {
        std::vector<std::uint8_t> bytes(static_cast<std::size_t>(length));
        bytes.resize(file.ReadAt(at, bytes));
        return bytes;
    }

private:
    const CInputFile& file;
    std::uint64_t at = 0;
    std::uint64_t windowStart = 0;
    std::size_t windowLength = 0;
    std::array<std::uint8_t, 4096> window;
};

// The code of the next marker, however many fill bytes precede it; -1 when there is none.
int NextMarker(CSectionReader& reader)
{
    int byte = reader.Byte();
    if (byte != 0xFF)
        return -1;
    while (byte == 0xFF)
        byte = reader.Byte();
    return byte;
}

bool IsExif(const std::vector<std::uint8_t>& section)
{
    return section.size() > kExifSignature.size() &&
           std::equal(kExifSignature.begin(), kExifSignature.end(), section.begin(),
                      [](char a, std::uint8_t b) { return static_cast<std::uint8_t>(a) == b; });
}

}  // namespace

std::optional<JpegHeader> ReadJpegHeader(const CInputFile& file)
{
    CSectionReader reader(file);
    JpegHeader header;
    for (int section = 0; section < kMostSections; ++section) {
        const int marker = NextMarker(reader);
        if (marker < 0 || marker == kStartOfScan || marker == kEndOfImage)
            return std::nullopt;
        if (StandsAlone(marker))
            continue;
        const int length = reader.Word() - 2;
        if (length < 0)
            return std::nullopt;
        if (IsStartOfFrame(marker)) {
            reader.Skip(1);
            header.size.height = reader.Word();
            header.size.width = reader.Word();
            if (header.size.width < 1 || header.size.height < 1)
                return std::nullopt;
            return header;
        }
        if (marker == kApplication1 && header.exif.empty()) {
            std::vector<std::uint8_t> bytes = reader.Bytes(length);
            if (IsExif(bytes))
                header.exif = std::move(bytes);
        }
        reader.Skip(length);
    }
    return std::nullopt;
}

}  // namespace suite
