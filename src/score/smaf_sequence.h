// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The events of a SMAF track, from the bytes of its sequence and setup chunks.
#pragma once

#include "score/smaf_cursor.h"
#include "score/smaf_file.h"

namespace score
{

struct SmafSequence {
    std::vector<SmafEvent> events;
    std::vector<std::vector<std::uint8_t>> exclusives;
    std::uint64_t end = 0;
};

enum class SmafNotes { keys, waves };  // what the note byte of a Handy Phone Standard sequence holds

// What is wrong stands in the cursor. A sequence ends with its end marker, and with nothing behind it.
SmafSequence ReadMobileSequence(CSmafCursor cursor);
SmafSequence ReadHandyPhoneSequence(CSmafCursor cursor, SmafNotes notes);
std::vector<std::vector<std::uint8_t>> ReadSmafSetup(CSmafCursor cursor, SmafFormat format);

}  // namespace score
