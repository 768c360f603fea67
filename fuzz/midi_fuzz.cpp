// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a MIDI file, through both converters: what the first one writes has nothing more to leave out
// and the same notes, what the second one writes is a SMAF file that the strict reader takes, and neither
// touches a byte beyond its room.
#include "platform/note_conversion.h"
#include "platform/smaf_conversion.h"
#include "score/arrangement.h"
#include "score/smaf_reader.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>

extern "C" {
platform::NoteDetect Detect;
platform::NoteGetInfo GetInfo;
platform::NoteSetInfo SetInfo;
platform::NoteConvert Convert;
platform::S2SConvertFunction S2SConvert;
}

namespace
{

using Bytes = std::vector<std::uint8_t>;

void Require(bool condition)
{
    if (!condition)
        std::abort();
}

const std::string& VoiceBank()
{
    static const std::string bank = [] {
        std::string text = "Kelvo voice bank 1\ndrums 125 0 0\n";
        for (int i = 0; i < 128; ++i)
            text += "melody " + std::to_string(i) + " 124 0 " + std::to_string(i) + "\n";
        return text + "end\n";
    }();
    return bank;
}

score::Arrangement Arranged(const Bytes& bytes)
{
    return score::Arrange(score::ReadMidi(bytes), score::kMa5Voices);
}

Bytes Rewritten(const Bytes& source)
{
    platform::NoteConversionInfo info{};
    Bytes result(source.size() * 2);
    unsigned written = 0;
    const auto length = static_cast<unsigned>(source.size());
    if (Detect(source.data(), length) != 0 || GetInfo(&info) != 0 || SetInfo(&info) != 0 ||
        Convert(source.data(), length, result.data(), &written, platform::kNoteConversionMode) != 0)
        return {};
    result.resize(written);
    return result;
}

// Each note that sounds, in an order of its own.
std::vector<std::uint64_t> Notes(const score::Arrangement& arrangement)
{
    std::vector<std::uint64_t> notes;
    for (const score::ChipNote& note : arrangement.notes) {
        if (!note.isDropped)
            notes.push_back(std::uint64_t{note.start} << 38 ^ std::uint64_t{note.end} << 18 ^
                            (note.channel << 14 | note.key << 7 | note.velocity));
    }
    std::ranges::sort(notes);
    return notes;
}

void RequireSmaf(const Bytes& midi, unsigned chip)
{
    Bytes smaf(midi.size() * platform::kSmafRoomFactor + platform::kSmafRoomMore);
    auto length = static_cast<unsigned>(smaf.size());
    char error[platform::kSmafErrorSize];
    const int result =
        S2SConvert(midi.data(), static_cast<unsigned>(midi.size()), smaf.data(), &length, VoiceBank().data(),
                   static_cast<unsigned>(VoiceBank().size()), chip, 0, error, std::size(error));
    Require(result == platform::kSmafDone);
    smaf.resize(length);
    std::string why;
    Require(score::ReadSmaf(smaf, why).has_value());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Bytes source(data, data + size);
    if (score::ReadMidi(source).error != score::MidiError::none)
        return 0;
    RequireSmaf(source, platform::kSmafMa3);
    const Bytes rewritten = Rewritten(source);
    if (rewritten.empty())
        return 0;
    const score::Arrangement once = Arranged(source);
    const score::Arrangement twice = Arranged(rewritten);
    Require(twice.report.notesDropped == 0 && twice.report.notesShortened == 0 &&
            twice.report.notesUnended == 0);
    Require(Notes(once) == Notes(twice));
    RequireSmaf(rewritten, platform::kSmafAnyChip);
    return 0;
}
