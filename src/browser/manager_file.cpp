// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/manager_file.h"

#include <optional>
#include <unordered_set>

namespace browser
{

namespace
{

constexpr std::size_t kLongestText = 0xFFFF;

std::uint32_t LittleEndian(std::string_view bytes)
{
    std::uint32_t value = 0;
    for (std::size_t i = bytes.size(); i > 0; --i) {
        value = value << 8 | static_cast<unsigned char>(bytes[i - 1]);
    }
    return value;
}

void AppendLittleEndian(std::string& bytes, std::size_t value, int width)
{
    for (int i = 0; i < width; ++i) {
        bytes += static_cast<char>(value >> (8 * i) & 0xFF);
    }
}

std::optional<std::string_view> TakeText(std::string_view& bytes)
{
    if (bytes.size() < 2) {
        return std::nullopt;
    }
    const std::size_t length = LittleEndian(bytes.substr(0, 2));
    if (bytes.size() - 2 < length) {
        return std::nullopt;
    }
    const std::string_view text = bytes.substr(2, length);
    bytes.remove_prefix(2 + length);
    return text;
}

bool IsBareName(std::string_view name)
{
    return !name.empty() && name != "." && name != ".." && name.find('/') == std::string_view::npos &&
           name.find('\0') == std::string_view::npos;
}

}  // namespace

ManagerFileContents DecodeManagerFile(std::string_view bytes)
{
    ManagerFileContents contents;
    if (bytes.size() < 4) {
        contents.end = 4;
        return contents;
    }
    const std::uint32_t count = LittleEndian(bytes.substr(0, 4));
    std::string_view rest = bytes.substr(4);
    contents.end = 4;
    std::unordered_set<std::string_view> archives;
    for (std::uint32_t i = 0; i < count; ++i) {
        const auto folder = TakeText(rest);
        const auto archive = folder ? TakeText(rest) : std::nullopt;
        if (!archive) {
            break;
        }
        contents.end = bytes.size() - rest.size();
        if (!folder->empty() && IsBareName(*archive) && archives.insert(*archive).second) {
            contents.records.push_back({std::string(*folder), std::string(*archive)});
        } else {
            contents.plain = false;
        }
    }
    return contents;
}

std::string EncodeCount(std::size_t count)
{
    std::string bytes;
    AppendLittleEndian(bytes, count, 4);
    return bytes;
}

std::string EncodeRecord(const ThumbDbRecord& record)
{
    std::string bytes;
    if (record.folderPath.size() > kLongestText || record.dbFileName.size() > kLongestText) {
        return bytes;
    }
    for (const std::string* text : {&record.folderPath, &record.dbFileName}) {
        AppendLittleEndian(bytes, text->size(), 2);
        bytes += *text;
    }
    return bytes;
}

}  // namespace browser
