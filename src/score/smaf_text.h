// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Texts of SMAF files: from any bytes, and from and to the text codes of the format.
#pragma once

#include "score/smaf_file.h"

#include <optional>
#include <span>
#include <string_view>

namespace score
{

// A text without control characters. Bytes that are not UTF-8 are taken for Latin-1.
std::string CleanText(std::string_view bytes);

// UTF-8 in that text code; nothing when it cannot hold the text. Latin-1 and UTF-8 only.
std::optional<std::string> EncodeSmafText(const std::string& text, SmafTextCode code);

// UTF-8 of what a file holds. Characters that are not understood (in Shift-JIS, all of two bytes) are U+FFFD.
std::string DecodeSmafText(std::span<const std::uint8_t> bytes, SmafTextCode code);

// Whether that byte begins a character of two bytes.
bool IsShiftJisLead(std::uint8_t byte);

}  // namespace score
