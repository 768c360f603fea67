// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The entry point of Smf2Smaf.so; platform/smaf_conversion.h has its contract.
#include "platform/smaf_conversion.h"

#include "score/report_text.h"
#include "score/smaf_writer.h"
#include "suite/smf2smaf/score_track.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace suite
{

namespace
{

struct Request {
    std::span<const std::uint8_t> source;
    std::string_view voiceBank;
    unsigned chip;
    unsigned flags;
};

struct Outcome {
    int result = platform::kSmafBadSource;
    std::string text;
    std::vector<std::uint8_t> bytes;
};

score::SmafFile MakeFile(const Request& request, const score::MidiFile& midi,
                         const score::Arrangement& arrangement, const CVoiceBank& bank, unsigned chip)
{
    constexpr std::uint8_t kTuneForMa3 = 0x32;
    constexpr std::uint8_t kTuneForMa5 = 0x34;
    score::SmafFile file;
    file.contents.type = chip == platform::kSmafMa5 ? kTuneForMa5 : kTuneForMa3;
    if ((request.flags & platform::kSmafWithoutTitle) == 0) {
        if (!midi.title.empty())
            file.contents.options.push_back({"ST", midi.title});
        if (!midi.copyright.empty())
            file.contents.options.push_back({"CR", midi.copyright});
    }
    file.scores.push_back(MakeScoreTrack(arrangement, bank, static_cast<std::uint8_t>(chip)));
    return file;
}

std::string JoinedLosses(const score::ArrangementReport& report)
{
    std::string text;
    for (const std::string& line : score::LossLines(report))
        text += (text.empty() ? "" : "; ") + line;
    return text;
}

Outcome ConvertTune(const Request& request)
{
    Outcome outcome;
    CVoiceBank bank;
    if (!bank.Read(request.voiceBank, outcome.text)) {
        outcome.result = platform::kSmafBadVoiceBank;
        return outcome;
    }
    const score::MidiFile midi = score::ReadMidi(request.source);
    if (midi.error != score::MidiError::none) {
        outcome.text = std::string("The source ") + score::MidiErrorText(midi.error) + ".";
        return outcome;
    }
    unsigned chip = request.chip;
    score::Arrangement arrangement =
        score::Arrange(midi, chip == platform::kSmafMa3 ? score::kMa3Voices : score::kMa5Voices);
    if (chip == platform::kSmafAnyChip)
        chip = arrangement.report.polyphony <= score::kMa3Voices ? platform::kSmafMa3 : platform::kSmafMa5;
    auto bytes = score::WriteSmaf(MakeFile(request, midi, arrangement, bank, chip), outcome.text);
    if (bytes) {
        outcome = {platform::kSmafDone, JoinedLosses(arrangement.report), std::move(*bytes)};
    }
    return outcome;
}

void PutText(const std::string& text, char* error, unsigned size)
{
    const std::size_t length = std::min<std::size_t>(text.size(), size - 1);
    std::memcpy(error, text.data(), length);
    error[length] = '\0';
}

int Convert(const Request& request, void* destination, unsigned& length, char* error, unsigned errorSize)
{
    const Outcome outcome = ConvertTune(request);
    if (outcome.result == platform::kSmafDone && outcome.bytes.size() > length) {
        PutText("The SMAF file is longer than there is room for.", error, errorSize);
        return platform::kSmafNoRoom;
    }
    PutText(outcome.text, error, errorSize);
    if (outcome.result == platform::kSmafDone) {
        std::memcpy(destination, outcome.bytes.data(), outcome.bytes.size());
        length = static_cast<unsigned>(outcome.bytes.size());
    }
    return outcome.result;
}

bool IsKnownChip(unsigned chip)
{
    return chip == platform::kSmafAnyChip || chip == platform::kSmafMa3 || chip == platform::kSmafMa5;
}

}  // namespace

}  // namespace suite

extern "C" __attribute__((visibility("default"))) platform::S2SConvertFunction S2SConvert;

int S2SConvert(const void* source, unsigned sourceLength, void* destination, unsigned* length,
               const void* voiceBank, unsigned voiceBankLength, unsigned chip, unsigned flags, char* error,
               unsigned errorSize)
{
    if (!source || sourceLength == 0 || !destination || !length || *length == 0 || !voiceBank ||
        !suite::IsKnownChip(chip) || !error || errorSize == 0)
        return platform::kSmafBadCall;
    try {
        const suite::Request request{{static_cast<const std::uint8_t*>(source), sourceLength},
                                     {static_cast<const char*>(voiceBank), voiceBankLength},
                                     chip,
                                     flags};
        return suite::Convert(request, destination, *length, error, errorSize);
    } catch (const std::bad_alloc&) {
        error[0] = '\0';
        return platform::kSmafNoMemory;
    }
}
