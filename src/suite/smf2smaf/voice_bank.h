// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CVoiceBank: where a sound chip has the sounds of General MIDI. docs/formats/voice-bank.md has the format.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace suite
{

struct Voice {
    std::uint8_t bankHigh = 0;
    std::uint8_t bankLow = 0;
    std::uint8_t program = 0;
};

class CVoiceBank
{
public:
    // False for anything but a whole and well-formed bank; `error` says where it is not.
    bool Read(std::string_view bytes, std::string& error);

    const Voice& Melody(std::uint8_t program) const { return melody[program & 0x7F]; }
    const Voice& Drums() const { return drums; }

private:
    bool ReadLine(std::string_view line, std::string& error);

    std::array<Voice, 128> melody;
    Voice drums;
    unsigned melodyCount = 0;
    bool hasDrums = false;
    bool isAtEnd = false;
};

}  // namespace suite
