// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/exif_fields.h"

#include <fmt/format.h>

#include <string_view>

namespace cli
{

namespace
{

using Offset = std::optional<std::size_t>;

// Calls `take` with the name and value of each field.
template <typename Take>
void VisitFields(const photo::ExifImageInfo& record, const Offset& thumbnailOffset, Take take)
{
    take("ExifVersion", std::string_view(record.ExifVersion));
    take("CameraMake", std::string_view(record.CameraMake));
    take("CameraModel", std::string_view(record.CameraModel));
    take("DateTime", std::string_view(record.DateTime));
    take("Height", record.Height);
    take("Width", record.Width);
    take("Orientation", record.Orientation);
    take("IsColor", record.IsColor);
    take("Process", record.Process);
    take("FlashUsed", record.FlashUsed);
    take("FocalLength", record.FocalLength);
    take("ExposureTime", record.ExposureTime);
    take("ApertureFNumber", record.ApertureFNumber);
    take("Distance", record.Distance);
    take("CCDWidth", record.CCDWidth);
    take("ExposureBias", record.ExposureBias);
    take("LightSource", record.LightSource);
    take("MeteringMode", record.MeteringMode);
    take("ExposureProgram", record.ExposureProgram);
    take("ISOequivalent", record.ISOequivalent);
    take("CompressionLevel", record.CompressionLevel);
    take("FocalplaneXRes", record.FocalplaneXRes);
    take("FocalplaneYRes", record.FocalplaneYRes);
    take("FocalplaneUnits", record.FocalplaneUnits);
    take("XResolution", record.XResolution);
    take("YResolution", record.YResolution);
    take("ResolutionUnit", record.ResolutionUnit);
    take("Brightness", record.Brightness);
    take("Comments", std::string_view(record.Comments));
    take("ThumbnailPointer", thumbnailOffset);
    take("ThumbnailSize", record.ThumbnailSize);
    take("IsExif", record.IsExif);
}

Json ToJson(std::string_view text)
{
    return text;
}
Json ToJson(const Offset& offset)
{
    return offset ? Json(*offset) : Json(nullptr);
}
template <typename Number> Json ToJson(Number number)
{
    return number;
}

using Buffer = fmt::memory_buffer;

void Append(Buffer& out, std::string_view text)
{
    for (const char letter : text) {
        const auto byte = static_cast<unsigned char>(letter);
        if (letter == '\\') {
            out.append(std::string_view("\\\\"));
        } else if (letter == '\n') {
            out.append(std::string_view("\\n"));
        } else if (letter == '\t') {
            out.append(std::string_view("\\t"));
        } else if (byte < ' ' || byte == 0x7F) {
            fmt::format_to(fmt::appender(out), "\\x{:02X}", byte);
        } else {
            out.push_back(letter);
        }
    }
}
void Append(Buffer& out, const Offset& offset)
{
    if (offset) {
        fmt::format_to(fmt::appender(out), "{}", *offset);
    }
}
template <typename Number> void Append(Buffer& out, Number number)
{
    fmt::format_to(fmt::appender(out), "{}", number);
}

}  // namespace

Json RecordJson(const photo::ExifImageInfo& record, Offset thumbnailOffset)
{
    Json fields = Json::object();
    VisitFields(record, thumbnailOffset,
                [&fields](const char* name, const auto& value) { fields.emplace(name, ToJson(value)); });
    return fields;
}

std::string RecordText(const std::string& path, const photo::ExifImageInfo& record, Offset thumbnailOffset)
{
    Buffer lines;
    VisitFields(record, thumbnailOffset, [&](std::string_view name, const auto& value) {
        lines.append(path);
        lines.push_back('\t');
        lines.append(name);
        lines.push_back('\t');
        Append(lines, value);
        lines.push_back('\n');
    });
    return fmt::to_string(lines);
}

}  // namespace cli
