// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The text of a journal file; layout in docs/formats/journal.md.
#pragma once

#include "browser/change_journal.h"

#include <string>
#include <string_view>

namespace browser
{

// From the beginning of a journal file.
std::optional<JournalState> StateOf(std::string_view text);

std::string EncodeJournal(JournalState state, const UndoRecord& record);
// Nothing for a text that is not a whole journal file. The entry's number is left to the caller.
std::optional<JournalEntry> DecodeJournal(std::string_view text);

}  // namespace browser
