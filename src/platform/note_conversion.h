// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The entry points of the note converter, "Nc.DLL", by which a MIDI file is rewritten for a handset's sound
// chip.
//
// They are C functions, found by name: `Detect` looks at a file, `GetInfo` gives a block that tells what it
// found, `SetInfo` takes the block back before a conversion, `Convert` writes, and `GetLogSize` and `GetLog`
// tell what that conversion left out. `Reset` forgets all of it. What the converter remembers in between
// belongs to the calling thread. All but `Detect` and `Reset` want something that came before.
//
// `Convert` gives a MIDI file of format 0, with the division of the source, so that no time changes. The room
// at `destination` is twice `length` by contract, whatever `*written` holds at entry; more is never written.
#pragma once

#include <cstdint>

namespace platform
{

constexpr const char* kNoteConversionLibrary = "Nc.DLL";
// The chip that Convert writes for: sixteen channels, 64 notes at once. There is no other mode.
constexpr int kNoteConversionMode = 4;

enum NoteConversionResult : int {
    kNoteDone = 0,
    kNoteBadSource = 1,  // no MIDI file, or one that is refused; the log says why
    kNoteBadCall = 2,    // a null pointer, another mode, or nothing came before
    kNoteBadInfo = 3,    // SetInfo: not the block that GetInfo gave
    kNoteNoRoom = 4,     // the result is longer than twice the source
    kNoteNoMemory = 5,
    kNoteNotLoaded = 8,  // never the library's: its front end has no library
};

// Opaque to whoever hands it back.
struct NoteConversionInfo {
    std::uint8_t bytes[64];
};

extern "C" {
using NoteGetInfo = int(NoteConversionInfo* info);
using NoteSetInfo = int(const NoteConversionInfo* info);
using NoteReset = int();
using NoteDetect = int(const void* midi, unsigned length);
using NoteConvert = int(const void* source, unsigned length, void* destination, unsigned* written, int mode);
// The log's length in bytes, without a terminator.
using NoteGetLogSize = int(unsigned* size);
// Copies up to `room` bytes of the log: lines of English in UTF-8, each with a line feed, no terminator.
using NoteGetLog = int(char* text, unsigned room);
}

}  // namespace platform
