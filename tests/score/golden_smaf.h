// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Three SMAF files put together by hand from the format's description, and what they hold.
#pragma once

#include "score/crc16.h"
#include "score/smaf_file.h"

#include <string_view>

namespace golden
{

using Bytes = std::vector<std::uint8_t>;

inline Bytes FromHex(std::string_view hex)
{
    Bytes bytes;
    for (std::size_t i = 0; i + 1 < hex.size(); i += 2)
        bytes.push_back(static_cast<std::uint8_t>(std::stoi(std::string(hex.substr(i, 2)), nullptr, 16)));
    return bytes;
}

// C4, E4 and G4 of 500 ms with velocity 100, then C5 of 1000 ms with 127: as a Mobile track and in the Handy
// Phone Standard.
inline const Bytes kMobile = FromHex(
    "4d4d4d4400000066434e54490000000500320100004d5452050000004f02000202000000000000000000000000000000004d7473"
    "7500000008f0064379067f7ff74d7473710000002300b0007c00b0200000c00000903c647d7d80407d7d80437d7d90487f817a"
    "817aff2f000356");
inline const Bytes kHandyPhone = FromHex(
    "4d4d4d4400000046434e54490000000500010100004d5452010000002f0000020210004d7473710000002100003100000030"
    "000000377f001c7d7d247d7d277d7d2c807a807aff0000000000a5f4");
// 16 samples of ADPCM at 8000 Hz.
inline const Bytes kAudio = FromHex(
    "4d4d4d440000005b434e54490000000500010100004154520000000044000011000202417370490000001073743a00000000"
    "2c73703a0000000a2c417473710000000e0000377f00010101ff00000000004177610100000008707737ebcb300308dfcf");

inline score::SmafContents Contents(std::uint8_t type)
{
    return {type, score::SmafTextCode::latin1, 0, 0, {}};
}

inline score::SmafEvent Note(std::uint64_t time, std::uint8_t key, std::uint8_t velocity, std::uint32_t gate)
{
    return {time, gate, 0, score::SmafEventKind::note, 0, key, velocity};
}

inline score::SmafEvent Event(std::uint64_t time, score::SmafEventKind kind, std::uint8_t first,
                              std::uint8_t second = 0)
{
    return {time, 0, 0, kind, 0, first, second};
}

inline score::SmafFile MobileFile()
{
    using Kind = score::SmafEventKind;
    score::SmafScoreTrack track;
    track.setup = {{0x43, 0x79, 0x06, 0x7F, 0x7F, 0xF7}};
    track.events = {Event(0, Kind::control, 0, 0x7C), Event(0, Kind::control, 32, 0),
                    Event(0, Kind::program, 0),       Note(0, 60, 100, 125),
                    Note(125, 64, 100, 125),          Note(250, 67, 100, 125),
                    Note(375, 72, 127, 250)};
    track.end = 625;
    return {Contents(0x32), {track}, {}};
}

inline score::SmafFile HandyPhoneFile()
{
    using Kind = score::SmafEventKind;
    score::SmafScoreTrack track;
    track.format = score::SmafFormat::handyPhone;
    track.number = 1;
    track.channelStatus = {0x41, 0x40, 0x40, 0x40};
    track.events = {Event(0, Kind::bank, 0), Event(0, Kind::program, 0), Event(0, Kind::control, 7, 127),
                    Note(0, 60, 127, 125),   Note(125, 64, 127, 125),    Note(250, 67, 127, 125),
                    Note(375, 72, 127, 250)};
    track.end = 625;
    return {Contents(0x01), {track}, {}};
}

inline score::SmafFile AudioFile()
{
    score::SmafAudioTrack track;
    track.events = {Event(0, score::SmafEventKind::control, 7, 127), Note(0, 1, 127, 1)};
    track.end = 1;
    track.waves.resize(1);
    track.waves[0].data = FromHex("707737ebcb300308");
    return {Contents(0x01), {}, {track}};
}

// The same bytes with sizes of the file and checksum that fit.
inline Bytes Sealed(Bytes bytes)
{
    const auto size = static_cast<std::uint32_t>(bytes.size() - 8);
    for (unsigned i = 0; i < 4; ++i)
        bytes[4 + i] = static_cast<std::uint8_t>(size >> (24 - 8 * i));
    const std::uint16_t crc = score::Crc16(std::span(bytes).first(bytes.size() - 2));
    bytes[bytes.size() - 2] = static_cast<std::uint8_t>(crc >> 8);
    bytes[bytes.size() - 1] = static_cast<std::uint8_t>(crc);
    return bytes;
}

}  // namespace golden
