// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/tune_conversion.h"

#include "platform/file_system.h"
#include "platform/services.h"
#include "sound/note_conversion.h"
#include "sound/smaf_conversion.h"

#include <algorithm>
#include <string_view>

namespace sound
{

namespace
{

// The parts of the converter's text about what was left out.
void AddParts(std::string_view text, std::vector<std::string>& parts)
{
    constexpr std::string_view kDivider = "; ";
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(kDivider), text.size());
        // Of what both converters tell, once.
        if (std::ranges::find(parts, text.substr(0, end)) == parts.end())
            parts.emplace_back(text.substr(0, end));
        text.remove_prefix(std::min(end + kDivider.size(), text.size()));
    }
}

// Replaces the tune by what the note converter makes of it.
void ConvertNotes(std::string& midi, Tune& tune)
{
    CNoteConversion notes;
    notes.Examine(midi);
    auto rewritten = notes.Rewrite(midi);
    if (!rewritten)
        return;
    midi = std::move(*rewritten);
    tune.hasNotes = true;
    tune.leftOut = notes.LogLines();
    if (!tune.leftOut.empty())
        tune.leftOut.erase(tune.leftOut.begin());  // the summary
}

// Why a conversion failed that told no reason.
std::string SilentFailure(const std::string& midi, int result)
{
    if (midi.empty())
        return "The source is empty.";
    if (result == platform::kSmafNotConverted)
        return std::string("The voice bank ") + platform::kVoiceBankFile + " cannot be read.";
    return "The converter failed with " + std::to_string(result) + ".";
}

}  // namespace

Tune ConvertTune(const std::string& source, unsigned chip)
{
    Tune tune;
    auto midi = platform::Os().files->ReadWhole(source, kLongestTuneFile);
    if (!midi) {
        tune.error = platform::Os().files->LastError();
        return tune;
    }
    ConvertNotes(*midi, tune);
    auto length = static_cast<unsigned>(midi->size() * platform::kSmafRoomFactor + platform::kSmafRoomMore);
    const unsigned room = length;
    std::string smaf(room, '\0');
    tune.result = CSmafConversion().S2SConvert(midi->data(), static_cast<unsigned>(midi->size()), smaf.data(),
                                               &length, chip, 0, tune.error);
    if (tune.result == platform::kSmafDone && (length == 0 || length > room)) {
        tune.result = platform::kSmafNotConverted;
        tune.error = "The converter gave no file.";
    }
    if (tune.result != platform::kSmafDone) {
        if (tune.error.empty())
            tune.error = SilentFailure(*midi, tune.result);
        return tune;
    }
    AddParts(tune.error, tune.leftOut);
    tune.error.clear();
    smaf.resize(length);
    tune.smaf = std::move(smaf);
    return tune;
}

}  // namespace sound
