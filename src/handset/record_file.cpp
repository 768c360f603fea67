// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "handset/record_file.h"

#include "platform/file_system.h"
#include "platform/handset_link.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <vector>

namespace handset
{

namespace
{

using platform::CFile;
using platform::LockKind;
using platform::OpenMode;
using platform::Os;

constexpr int kLockPatience = 5000;
constexpr std::size_t kRecordsAtOnce = 256;

struct FoundRecord {
    std::uint64_t offset = 0;
    int index = 0;
};

int DecodeIndex(const char* bytes)
{
    std::uint32_t value = 0;
    for (unsigned i = 0; i < 4; ++i)
        value |= static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[i])) << (8 * i);
    return static_cast<std::int32_t>(value);
}

std::string EncodeIndex(int index)
{
    std::string bytes;
    for (unsigned i = 0; i < 4; ++i)
        bytes += static_cast<char>(static_cast<std::uint32_t>(index) >> (8 * i));
    return bytes;
}

bool Write(CFile& file, std::uint64_t offset, const std::string& bytes)
{
    return file.WriteAt(offset, std::as_bytes(std::span(bytes)));
}

std::optional<std::uint64_t> SizeOf(CFile& file)
{
    const auto stamp = file.Stamp();
    return stamp ? std::optional(stamp->size) : std::nullopt;
}

// The first record of that name. How many are tried follows from the length over the width of the name, so a
// few more than there are; a read beyond the end finds nothing.
std::optional<FoundRecord> FindRecord(CFile& file, std::uint64_t size, std::string_view name)
{
    const std::uint64_t count = std::min<std::uint64_t>(size / kRecordNameSize, kMostRecords);
    std::vector<char> block(kRecordSize * kRecordsAtOnce);
    for (std::uint64_t first = 0; first < count; first += kRecordsAtOnce) {
        const std::size_t wanted = std::min<std::uint64_t>(kRecordsAtOnce, count - first) * kRecordSize;
        const std::size_t got =
            file.ReadAt(first * kRecordSize, std::as_writable_bytes(std::span(block).first(wanted)));
        for (std::size_t at = 0; at + kRecordSize <= got; at += kRecordSize) {
            const std::string_view field(block.data() + at, kRecordNameSize);
            if (field.substr(0, field.find('\0')) == name)
                return FoundRecord{first * kRecordSize + at, DecodeIndex(block.data() + at + field.size())};
        }
        if (got < wanted)
            return std::nullopt;
    }
    return std::nullopt;
}

bool IsFileName(const std::string& name)
{
    return !name.empty() && name.size() < kRecordNameSize && name != "." && name != ".." &&
           name.find_first_of(std::string_view("/\0", 2)) == std::string::npos;
}

// Opens the file for writing, making it when it is missing.
std::unique_ptr<CFile> OpenForWriting(const std::string& recordFile)
{
    if (auto file = Os().files->Open(recordFile, OpenMode::readWrite))
        return file;
    if (auto file = Os().files->Open(recordFile, OpenMode::createNew))
        return file;
    return Os().files->Open(recordFile, OpenMode::readWrite);  // somebody else made it in between
}

}  // namespace

std::string RecordFileOf(const std::string& path)
{
    const std::size_t slash = path.rfind('/');
    return (slash == std::string::npos ? "" : path.substr(0, slash + 1)) + platform::kHandsetRecordFile;
}

bool MakeRecordFile(const std::string& recordFile)
{
    return OpenForWriting(recordFile) != nullptr;
}

int FindHandsetIndex(const std::string& recordFile, std::string_view fileName)
{
    const auto file = Os().files->Open(recordFile, OpenMode::read);
    const auto size = file ? SizeOf(*file) : std::nullopt;
    if (!size || fileName.empty())
        return 0;
    const auto record = FindRecord(*file, *size, fileName);
    return record ? record->index : 0;
}

bool AddHandsetRecord(const std::string& recordFile, const std::string& fileName, int index)
{
    if (!IsFileName(fileName) || index == 0)
        return false;
    const auto file = OpenForWriting(recordFile);
    if (!file || !file->Lock(LockKind::exclusive, kLockPatience))
        return false;
    const auto size = SizeOf(*file);
    if (!size)
        return false;
    if (const auto known = FindRecord(*file, *size, fileName)) {
        return known->index == index ||
               (Write(*file, known->offset + kRecordNameSize, EncodeIndex(index)) && file->Sync());
    }
    const std::uint64_t end = *size - *size % kRecordSize;
    std::string record = fileName;
    record.resize(kRecordNameSize);
    record += EncodeIndex(index);
    if (end != *size && !file->Truncate(end))
        return false;
    if (Write(*file, end, record) && file->Sync())
        return true;
    file->Truncate(end);
    return false;
}

}  // namespace handset
