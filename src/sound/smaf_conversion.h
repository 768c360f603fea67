// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CSmafConversion: the front end of the SMAF converter.
//
// The library is loaded by name at construction and let go again when its entry point is missing; the voice
// bank is read from the program's folder at each conversion. platform/smaf_conversion.h has the contract of
// the library.
#pragma once

#include "platform/smaf_conversion.h"
#include "sound/program_library.h"

namespace sound
{

class CSmafConversion
{
public:
    CSmafConversion();

    bool IsLoaded() const { return library != nullptr; }
    // The library's result and its text in `error`. 65535 without a call when one of the first four is zero
    // (also where `length` points), without a library, and without a voice bank.
    int S2SConvert(const void* source, unsigned sourceLength, void* destination, unsigned* length,
                   unsigned chip, unsigned flags, std::string& error) const;

private:
    std::unique_ptr<platform::CLibrary> library;
    platform::S2SConvertFunction* convert = nullptr;
};

}  // namespace sound
