// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a SMAF file, as they are and with the size and checksum that they should have: what is read
// takes no more memory than the bytes allow, and what of it can be written reads the same again.
#include "score/crc16.h"
#include "score/smaf_reader.h"
#include "score/smaf_summary.h"
#include "score/smaf_writer.h"

#include <cstdlib>

namespace
{

void Check(std::span<const std::uint8_t> bytes)
{
    std::string error;
    const auto reading = score::ReadSmaf(bytes, error);
    if (reading.has_value() != error.empty())
        std::abort();
    if (!reading)
        return;
    std::size_t events = 0;
    for (const auto& track : reading->file.scores)
        events += track.events.size() + track.exclusives.size();
    const score::SmafSummary summary = score::SummariseSmaf(reading->file);
    if (events > bytes.size() || summary.notes > bytes.size() || summary.polyphony > summary.notes)
        std::abort();
    std::string refusal;
    const auto written = score::WriteSmaf(reading->file, refusal);
    if (!written)
        return;
    const auto again = score::ReadSmaf(*written, error);
    if (!again || !(again->file == reading->file))
        std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Check({data, size});
    if (size < 18)
        return 0;
    std::vector<std::uint8_t> sealed(data, data + size);
    for (std::size_t i = 0; i < 4; ++i)
        sealed[4 + i] = static_cast<std::uint8_t>((size - 8) >> (24 - 8 * i));
    const std::uint16_t crc = score::Crc16(std::span(sealed).first(size - 2));
    sealed[size - 2] = static_cast<std::uint8_t>(crc >> 8);
    sealed[size - 1] = static_cast<std::uint8_t>(crc);
    Check(sealed);
    return 0;
}
