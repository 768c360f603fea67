// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The entry point of the SMAF converter, "Smf2Smaf.DLL": `S2SConvert` makes a SMAF file of a MIDI file.
//
// `*length` is the room at `destination` at entry and the length of the SMAF file when the result is 0;
// kSmafRoomFactor times the source and kSmafRoomMore bytes are always enough. With another result nothing was
// written. `voiceBank` is the content of a voice bank file (docs/formats/voice-bank.md). `chip` is one of
// SmafChip, `flags` any of SmafFlag. At `error`, of `errorSize` bytes, stands a zero-terminated text at
// return: why it failed, or what had to be left out, or nothing. Calls on several threads do not disturb each
// other.
#pragma once

namespace platform
{

constexpr const char* kSmafConversionLibrary = "Smf2Smaf.DLL";
constexpr const char* kVoiceBankFile = "all_fm_0821.vma";
constexpr unsigned kSmafErrorSize = 260;
constexpr unsigned kSmafRoomFactor = 4;
constexpr unsigned kSmafRoomMore = 4096;

enum SmafConversionResult : int {
    kSmafDone = 0,
    kSmafBadSource = 1,
    kSmafBadVoiceBank = 2,
    kSmafNoRoom = 3,
    kSmafBadCall = 4,  // a null pointer, a length of 0, or a chip that is not known
    kSmafNoMemory = 5,
    kSmafNotConverted = 65535,  // never the library's: its front end did not call it
};

enum SmafChip : unsigned {
    kSmafAnyChip = 0,  // the MA-3 for a tune that it plays whole, else the MA-5
    kSmafMa3 = 5,      // 32 notes at once
    kSmafMa5 = 6,      // 64 notes at once
};

enum SmafFlag : unsigned {
    kSmafWithoutTitle = 1,  // title and copyright stay out
};

extern "C" {
using S2SConvertFunction = int(const void* source, unsigned sourceLength, void* destination, unsigned* length,
                               const void* voiceBank, unsigned voiceBankLength, unsigned chip, unsigned flags,
                               char* error, unsigned errorSize);
}

}  // namespace platform
