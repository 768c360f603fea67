// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// MIDI files put together for tests. Texts hold bytes.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace midi
{

inline std::string Number(std::uint32_t value, int bytes)
{
    std::string text;
    while (bytes-- > 0)
        text += static_cast<char>(value >> (8 * bytes));
    return text;
}

// An event behind so many ticks.
inline std::string At(std::uint32_t wait, std::initializer_list<int> event)
{
    std::string text(1, static_cast<char>(wait & 0x7F));
    while (wait >>= 7)
        text.insert(0, 1, static_cast<char>(0x80 | (wait & 0x7F)));
    for (const int byte : event)
        text += static_cast<char>(byte);
    return text;
}

inline std::string Tempo(std::uint32_t wait, std::uint32_t microseconds)
{
    return At(wait, {0xFF, 0x51, 3}) + Number(microseconds, 3);
}

inline const std::string kEnd = At(0, {0xFF, 0x2F, 0});

inline std::string Chunk(const std::string& tag, const std::string& body, int more = 0)
{
    return tag + Number(static_cast<std::uint32_t>(static_cast<int>(body.size()) + more), 4) + body;
}

inline std::string Track(const std::string& events)
{
    return Chunk("MTrk", events + kEnd);
}

inline std::string Header(unsigned format, unsigned tracks, unsigned division)
{
    return Chunk("MThd", Number(format, 2) + Number(tracks, 2) + Number(division, 2));
}

// One track, of 250 ticks a second.
inline std::string File(const std::string& events)
{
    return Header(0, 1, 125) + Track(events);
}

inline std::span<const std::uint8_t> Bytes(const std::string& text)
{
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

}  // namespace midi
