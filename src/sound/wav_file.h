// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CWavFile: the PCM samples of a RIFF/WAVE file.
//
// Chunks other than "fmt " and "data" are stepped over, with the pad byte of odd ones. Sizes that lie are cut
// at the end of the file; a data size of FFFFFFFFh, or of 0 in a file whose RIFF size ends there as well, is
// that of a stream and means all that follows. RF64, RIFX and any format but PCM are refused.
#pragma once

#include "platform/file_system.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>

namespace sound
{

struct WavFormat {
    std::uint16_t formatTag = 0;
    std::uint16_t channels = 0;
    std::uint32_t sampleRate = 0;
    std::uint32_t averageByteRate = 0;
    std::uint16_t blockAlign = 0;
    std::uint16_t bitsPerSample = 0;
};

class CWavFile
{
public:
    // False when it cannot be opened or is no such file; Error says why.
    bool Open(const std::string& path);
    bool Open(std::unique_ptr<platform::CFile> opened);

    const WavFormat& Format() const { return format; }
    std::uint64_t DataSize() const { return dataSize; }  // bytes

    // The next bytes of the data, as many as fit and remain; fewer also when the file cannot be read.
    std::size_t Read(std::span<std::byte> buffer);

    // Whether `path` names the open file.
    bool IsAt(const std::string& path) { return file && file->IsStill(path); }
    const std::string& Error() const { return error; }

private:
    struct Chunk {
        std::uint64_t begin = 0;  // of its body
        std::uint64_t size = 0;   // as stored
    };

    bool ReadHeader();
    std::optional<Chunk> Descend(const char* tag);
    bool ReadFormat(const Chunk& chunk);
    void LocateData(const Chunk& chunk);
    bool Fail(const std::string& why);

    std::unique_ptr<platform::CFile> file;
    WavFormat format;
    std::uint64_t fileSize = 0;
    std::uint64_t riffSize = 0;  // as stored
    std::uint64_t dataBegin = 0;
    std::uint64_t dataSize = 0;
    std::uint64_t dataRead = 0;
    std::string error;
};

}  // namespace sound
