// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The pieces of WAV files as bytes.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace wav
{

inline std::string Number(std::uint64_t value, int bytes)
{
    std::string text;
    for (int i = 0; i < bytes; ++i)
        text += static_cast<char>(value >> (8 * i));
    return text;
}

// With its pad byte; `size` stands for the real one.
inline std::string Chunk(const std::string& tag, const std::string& body,
                         std::optional<std::uint32_t> size = {})
{
    return tag + Number(size.value_or(static_cast<std::uint32_t>(body.size())), 4) + body +
           std::string(body.size() % 2, '\0');
}

inline std::string Format(unsigned rate = 8000, unsigned bits = 16, unsigned channels = 1, unsigned tag = 1)
{
    const unsigned align = channels * bits / 8;
    return Chunk("fmt ", Number(tag, 2) + Number(channels, 2) + Number(rate, 4) + Number(rate * align, 4) +
                             Number(align, 2) + Number(bits, 2));
}

inline std::string File(const std::string& chunks, std::optional<std::uint32_t> size = {})
{
    return Chunk("RIFF", "WAVE" + chunks, size);
}

inline std::string Samples(const std::vector<std::int16_t>& samples)
{
    std::string bytes;
    for (const std::int16_t sample : samples)
        bytes += Number(static_cast<std::uint16_t>(sample), 2);
    return bytes;
}

}  // namespace wav
