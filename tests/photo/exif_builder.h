// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// JPEG files with EXIF blocks, put together from their parts.
#pragma once

#include <string>
#include <utility>
#include <vector>

// A JPEG section: FF, the marker, the length, the content.
inline std::string Section(int marker, const std::string& content)
{
    const std::size_t length = content.size() + 2;
    return std::string("\xFF") + static_cast<char>(marker) + static_cast<char>(length >> 8) +
           static_cast<char>(length) + content;
}

inline const std::string kStart = "\xFF\xD8";
// A frame header of 480 by 640 pixels in three colours, and the scan header.
inline const std::string kFrame = Section(0xC0, std::string("\x08\x01\xE0\x02\x80\x03", 6));
inline const std::string kScan = Section(0xDA, "scan");

struct BuiltEntry {
    unsigned tag;
    unsigned format;
    std::string value;  // in the file's byte order
    unsigned count = 1;
};

class CExifBuilder
{
public:
    explicit CExifBuilder(bool isMotorola) : motorola(isMotorola) {}

    std::string Number(std::uint32_t value, int length) const
    {
        std::string bytes;
        for (int i = 0; i < length; ++i)
            bytes += static_cast<char>(value >> 8 * (motorola ? length - 1 - i : i));
        return bytes;
    }
    BuiltEntry Short(unsigned tag, unsigned value) const { return {tag, 3, Number(value, 2)}; }
    BuiltEntry Long(unsigned tag, unsigned value) const { return {tag, 4, Number(value, 4)}; }
    BuiltEntry Ratio(unsigned tag, int above, int below) const
    {
        return {tag, 10,
                Number(static_cast<std::uint32_t>(above), 4) + Number(static_cast<std::uint32_t>(below), 4)};
    }
    BuiltEntry Text(unsigned tag, const std::string& text, unsigned format = 2) const
    {
        return {tag, format, text, static_cast<unsigned>(text.size())};
    }

    // A directory that stands at `start` of the TIFF structure, its longer values behind it.
    std::string Directory(std::size_t start, const std::vector<BuiltEntry>& entries, unsigned next = 0) const
    {
        std::string directory = Number(static_cast<unsigned>(entries.size()), 2);
        std::string values;
        const std::size_t valuesStart = start + 2 + 12 * entries.size() + 4;
        for (const BuiltEntry& entry : entries) {
            std::string place = entry.value;
            place.resize(4);
            if (entry.value.size() > 4) {
                place = Number(static_cast<unsigned>(valuesStart + values.size()), 4);
                values += entry.value;
            }
            directory += Number(entry.tag, 2) + Number(entry.format, 2) + Number(entry.count, 4) + place;
        }
        return directory + Number(next, 4) + values;
    }
    std::string Header(unsigned firstDirectory = 8) const
    {
        return std::string("Exif\0\0", 6) + (motorola ? "MM" : "II") + Number(42, 2) +
               Number(firstDirectory, 4);
    }
    // A file whose EXIF block has this one directory.
    std::string File(const std::vector<BuiltEntry>& entries) const { return File(Directory(8, entries)); }
    std::string File(const std::string& behindHeader) const
    {
        return kStart + Section(0xE1, Header() + behindHeader) + kFrame + kScan;
    }

private:
    bool motorola;
};
