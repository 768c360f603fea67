// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The pattern of a batch rename, and the fields of its dialog.
//
// A pattern is a text with number fields: "%d", or "%04d" for at least four digits with leading zeros; "%%"
// stands for the sign itself, and any other "%" for itself too.
#pragma once

#include <string>
#include <string_view>

namespace photo
{

// A number of digits below 1 counts as 4.
std::string MakePattern(std::string_view prefix, int digits);
// Every number field shows the number.
std::string FormatPattern(std::string_view pattern, int number);

enum class RenameObjection {
    none,
    badCharacter,  // StringId::renameBadCharacters
    tooLong,       // StringId::renameTooLong
    badDigits,     // the digits go back to what they were, with a beep
};

// What the fields "Prefix :" and "digits" hold.
class CRenameFields
{
public:
    std::string prefix = "Photo";
    std::string digits = "4";

    int Digits() const;
    std::string Pattern() const { return MakePattern(prefix, Digits()); }
    // A name as the first file would get it.
    std::string Preview() const { return FormatPattern(Pattern(), 1); }
    // Whether files of that folder may be renamed so. Good digits are remembered; bad ones are set back to
    // those.
    RenameObjection Check(std::string_view folder);

private:
    std::string goodDigits = "4";
};

}  // namespace photo
