// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/smaf_conversion.h"

#include "platform/file_system.h"
#include "platform/services.h"

#include <array>
#include <cstring>

namespace sound
{

namespace
{

constexpr std::uint64_t kLargestVoiceBank = 16U << 20;

}  // namespace

CSmafConversion::CSmafConversion() : library(LoadProgramLibrary(platform::kSmafConversionLibrary))
{
    if (library && !FindEntry(*library, "S2SConvert", convert))
        library.reset();
}

int CSmafConversion::S2SConvert(const void* source, unsigned sourceLength, void* destination,
                                unsigned* length, unsigned chip, unsigned flags, std::string& error) const
{
    error.clear();
    if (!source || sourceLength == 0 || !destination || !length || *length == 0)
        return platform::kSmafNotConverted;
    if (!library) {
        error = "Smf2Smaf.dll was not found.";
        return platform::kSmafNotConverted;
    }
    const auto bank =
        platform::Os().files->ReadWhole(ProgramFile(platform::kVoiceBankFile), kLargestVoiceBank);
    if (!bank || bank->empty())
        return platform::kSmafNotConverted;
    std::array<char, platform::kSmafErrorSize> text{};
    const int result = convert(source, sourceLength, destination, length, bank->data(),
                               static_cast<unsigned>(bank->size()), chip, flags, text.data(), text.size());
    error.assign(text.data(), strnlen(text.data(), text.size()));
    return result;
}

}  // namespace sound
