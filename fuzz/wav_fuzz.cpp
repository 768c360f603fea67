// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a WAV file: no more samples come out than went in, and they can be encoded and decoded.
#include "sound/adpcm.h"
#include "sound/wav_file.h"
#include "support/memory_file.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    sound::CWavFile file;
    if (!file.Open(std::make_unique<support::CMemoryFile>(bytes)))
        return file.Error().empty() ? std::abort(), 1 : 0;
    if (file.DataSize() > size || file.Format().formatTag != 1)
        std::abort();
    sound::CAdpcmEncoder encoder;
    std::vector<std::uint8_t> encoded;
    std::size_t samples = 0;
    std::vector<std::int16_t> block(7);
    for (std::size_t count = 0; (count = file.Read(std::as_writable_bytes(std::span(block)))) > 1;) {
        encoder.Encode(std::span(block).first(count / 2), encoded);
        samples += count / 2;
    }
    if (encoded.size() != (samples + 1) / 2 || sound::DecodeAdpcm(encoded).size() < samples)
        std::abort();
    return 0;
}
