// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/wav_file.h"

#include "platform/services.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace sound
{

namespace
{

constexpr std::uint64_t kHeaderSize = 8;
constexpr std::uint64_t kBodyBegin = 12;  // of the RIFF chunk, after its form type
constexpr std::uint32_t kSizeOfStream = 0xFFFFFFFF;
constexpr int kMostChunks = 4096;

std::uint32_t Number(std::span<const std::byte> bytes)
{
    std::uint32_t value = 0;
    for (std::size_t i = bytes.size(); i-- > 0;) {
        value = value << 8 | std::to_integer<std::uint32_t>(bytes[i]);
    }
    return value;
}

std::string_view Tag(std::span<const std::byte> bytes)
{
    return {reinterpret_cast<const char*>(bytes.data()), 4};
}

}  // namespace

bool CWavFile::Open(const std::string& path)
{
    auto opened = platform::Os().files->Open(path, platform::OpenMode::read);
    if (!opened) {
        return Fail(platform::Os().files->LastError());
    }
    return Open(std::move(opened));
}

bool CWavFile::Open(std::unique_ptr<platform::CFile> opened)
{
    file = std::move(opened);
    const auto stamp = file->Stamp();
    fileSize = stamp ? stamp->size : 0;
    dataRead = 0;
    if (!ReadHeader()) {
        return false;
    }
    const auto formatChunk = Descend("fmt ");
    if (!formatChunk || !ReadFormat(*formatChunk)) {
        return formatChunk ? false : Fail("has no chunk \"fmt \"");
    }
    const auto data = Descend("data");
    if (!data) {
        return Fail("has no chunk \"data\"");
    }
    LocateData(*data);
    return true;
}

bool CWavFile::ReadHeader()
{
    std::array<std::byte, kBodyBegin> header{};
    if (file->ReadAt(0, header) != header.size()) {
        return Fail("is no WAV file: too short");
    }
    const std::string_view tag = Tag(header);
    if (tag == "RF64" || tag == "BW64" || tag == "RIFX") {
        return Fail(std::string(tag) + " files are not supported");
    }
    if (tag != "RIFF" || Tag(std::span(header).subspan(8)) != "WAVE") {
        return Fail("is no WAV file");
    }
    riffSize = Number(std::span(header).subspan(4, 4));
    return true;
}

// The first chunk of that tag, wherever it stands.
std::optional<CWavFile::Chunk> CWavFile::Descend(const char* tag)
{
    std::uint64_t position = kBodyBegin;
    std::array<std::byte, kHeaderSize> header{};
    for (int i = 0; i < kMostChunks && file->ReadAt(position, header) == header.size(); ++i) {
        const Chunk chunk{position + kHeaderSize, Number(std::span(header).subspan(4))};
        if (Tag(header) == tag) {
            return chunk;
        }
        position = chunk.begin + chunk.size + chunk.size % 2;
    }
    return std::nullopt;
}

bool CWavFile::ReadFormat(const Chunk& chunk)
{
    std::array<std::byte, 16> block{};
    if (chunk.size < block.size() || file->ReadAt(chunk.begin, block) != block.size()) {
        return Fail("has a chunk \"fmt \" that is too short");
    }
    const auto word = [&block](std::size_t at) {
        return static_cast<std::uint16_t>(Number(std::span(block).subspan(at, 2)));
    };
    const auto number = [&block](std::size_t at) { return Number(std::span(block).subspan(at, 4)); };
    format = {word(0), word(2), number(4), number(8), word(12), word(14)};
    return format.formatTag == 1 || Fail("does not hold PCM samples");
}

void CWavFile::LocateData(const Chunk& chunk)
{
    const std::uint64_t riffEnd = kHeaderSize + riffSize;
    const bool isStream = chunk.size == kSizeOfStream ||
                          (chunk.size == 0 && (riffEnd <= chunk.begin || riffSize == kSizeOfStream));
    const std::uint64_t remaining = fileSize > chunk.begin ? fileSize - chunk.begin : 0;
    dataBegin = chunk.begin;
    dataSize = isStream ? remaining : std::min(chunk.size, remaining);
}

std::size_t CWavFile::Read(std::span<std::byte> buffer)
{
    const std::uint64_t wanted = std::min<std::uint64_t>(buffer.size(), dataSize - dataRead);
    const std::size_t count =
        file->ReadAt(dataBegin + dataRead, buffer.first(static_cast<std::size_t>(wanted)));
    dataRead += count;
    return count;
}

bool CWavFile::Fail(const std::string& why)
{
    error = why;
    file.reset();
    return false;
}

}  // namespace sound
