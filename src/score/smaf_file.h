// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The content of a SMAF file (".mmf"), as the writer takes it and the reader gives it. docs/formats/smaf.md
// has the bytes.
//
// Times and gates are counted in units of the track's time base. Texts are UTF-8, whatever the file holds.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace score
{

// The longest note of a Mobile track, in units, and the longest track that is written. At 4 ms a unit these
// are more than two hours and twelve days.
inline constexpr std::uint32_t kSmafMaximumGate = (1U << 21) - 1;
inline constexpr std::uint64_t kSmafMaximumTime = 1U << 28;
// The longest sound of an audio track, in units.
inline constexpr std::uint32_t kSmafMaximumAudioGate = 16511;

enum class SmafEventKind : std::uint8_t {
    note,
    control,
    program,
    bend,
    exclusive,
    bank,         // Handy Phone Standard only: the bank, from 80h drums
    octaveShift,  // Handy Phone Standard only
};

// The highest number of a wave.
inline constexpr std::uint8_t kSmafMaximumWave = 63;

// One event of a track. Its order among events of the same time is the order in the track.
struct SmafEvent {
    std::uint64_t time = 0;   // units since the start of the track
    std::uint32_t gate = 0;   // of a note: its length in units, at least 1
    std::uint32_t index = 0;  // of an exclusive: its place in SmafScoreTrack::exclusives
    SmafEventKind kind = SmafEventKind::note;
    std::uint8_t channel = 0;  // 0 to 15; 0 to 3 in Handy Phone Standard and audio tracks
    std::uint8_t first = 0;    // key, wave, control, program, or the bend's low 7 bits
    std::uint8_t second = 0;   // velocity, value, or the bend's high 7 bits
    bool operator==(const SmafEvent&) const = default;
};

enum class SmafWaveKind : std::uint8_t { pcm, offsetPcm, adpcm };

// A sound that a track carries. ADPCM is two samples a byte, low nibble first.
struct SmafWave {
    std::uint8_t id = 1;  // 1 to 63
    SmafWaveKind kind = SmafWaveKind::adpcm;
    std::uint8_t bits = 4;  // 4, 8, 12 or 16
    bool stereo = false;
    std::uint16_t rate = 8000;  // Hz; in audio tracks one of 4000, 8000, 11025, 22050 and 44100
    std::vector<std::uint8_t> data;
    bool operator==(const SmafWave&) const = default;
};

enum class SmafFormat : std::uint8_t { handyPhone = 0, compressed = 1, mobile = 2 };

inline constexpr std::uint8_t kSmafBase4Ms = 2;  // the code of 4 ms a unit

struct SmafScoreTrack {
    SmafFormat format = SmafFormat::mobile;
    std::uint8_t number = 5;                       // the chip: 0 MA-1, 1 to 4 MA-2, 5 MA-3, 6 MA-5
    std::uint8_t timeBase = kSmafBase4Ms;          // its code, of gates as well
    std::array<std::uint8_t, 16> channelStatus{};  // type in the low two bits: 1 melody, 2 none, 3 rhythm
    std::vector<std::vector<std::uint8_t>> setup;  // exclusives before the first event, without F0, with F7
    std::vector<std::vector<std::uint8_t>> exclusives;  // those that events name, in the same form
    std::vector<SmafEvent> events;                      // by time
    std::uint64_t end = 0;                              // units; not before the last gate's end
    std::vector<SmafWave> waves;                        // stream PCM
    bool operator==(const SmafScoreTrack&) const = default;
};

// Recorded sounds and when each starts. A note's key is the wave's id; all waves have one form.
struct SmafAudioTrack {
    std::uint8_t number = 0;
    std::uint8_t timeBase = kSmafBase4Ms;
    std::vector<SmafEvent> events;  // notes and controls 7, 10 and 11, by time
    std::uint64_t end = 0;          // units; not before the last gate's end
    std::vector<SmafWave> waves;    // at least one
    bool operator==(const SmafAudioTrack&) const = default;
};

enum class SmafTextCode : std::uint8_t { shiftJis = 0, latin1 = 1, ucs2 = 0x20, utf8 = 0x23, utf16 = 0x24 };

// ST title, AN artist, CR copyright, VN vendor, CA category, SW composer, AW arranger, CD created, UD
// updated.
struct SmafOption {
    std::string tag;  // two letters
    std::string text;
    bool operator==(const SmafOption&) const = default;
};

struct SmafContents {
    std::uint8_t type = 0x32;  // 32h ring tone for MA-3, 34h for MA-5, 01h audio
    SmafTextCode textCode = SmafTextCode::utf8;
    std::uint8_t copyStatus = 0xF8;  // bit 0 forbids transfer, 1 saving, 2 editing
    std::uint8_t copyCount = 0;
    std::vector<SmafOption> options;
    bool operator==(const SmafContents&) const = default;
};

struct SmafFile {
    SmafContents contents;
    std::vector<SmafScoreTrack> scores;
    std::vector<SmafAudioTrack> audios;
    bool operator==(const SmafFile&) const = default;
};

// Milliseconds of a unit; 0 for a code that is none.
std::uint32_t SmafBaseMilliseconds(std::uint8_t code);

// The rates of audio tracks, by their codes 0 to 4; -1 for a rate, and 0 for a code, that is none.
int SmafRateCode(std::uint16_t rate);
std::uint16_t SmafRate(unsigned code);

}  // namespace score
