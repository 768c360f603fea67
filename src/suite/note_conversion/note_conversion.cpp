// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The entry points of Nc.so; platform/note_conversion.h has their contract.
#include "platform/note_conversion.h"

#include "score/report_text.h"
#include "suite/note_conversion/midi_writer.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace suite
{

namespace
{

using platform::NoteConversionInfo;

// The content of an information block: a mark and what was found of the file.
struct Info {
    char mark[8];
    std::uint32_t length;
    std::uint16_t format;
    std::uint16_t division;
    std::uint32_t tracks;
};
static_assert(sizeof(Info) <= sizeof(NoteConversionInfo));

constexpr char kMark[8] = {'K', 'e', 'l', 'v', 'o', 'N', 'c', '1'};

struct State {
    NoteConversionInfo info{};
    bool isDetected = false;
    bool isSet = false;
    std::string log;
};

thread_local State state;

std::span<const std::uint8_t> Bytes(const void* data, unsigned length)
{
    return {static_cast<const std::uint8_t*>(data), length};
}

template <typename Work> int Guarded(Work work)
{
    try {
        return work();
    } catch (const std::bad_alloc&) {
        return platform::kNoteNoMemory;
    }
}

int Refuse(score::MidiError error)
{
    state.log = std::string("The source ") + score::MidiErrorText(error) + ".\n";
    return platform::kNoteBadSource;
}

int DetectFile(const void* midi, unsigned length)
{
    state = {};
    if (!midi)
        return platform::kNoteBadCall;
    const score::MidiFile file = score::ReadMidi(Bytes(midi, length));
    if (file.error != score::MidiError::none)
        return Refuse(file.error);
    Info info{{}, length, file.format, file.division, file.tracks};
    std::memcpy(info.mark, kMark, sizeof kMark);
    std::memcpy(state.info.bytes, &info, sizeof info);
    state.isDetected = true;
    return platform::kNoteDone;
}

int ConvertFile(const void* source, unsigned length, void* destination, unsigned* written)
{
    const score::MidiFile file = score::ReadMidi(Bytes(source, length));
    if (file.error != score::MidiError::none)
        return Refuse(file.error);
    const score::Arrangement arrangement = score::Arrange(file, score::kMa5Voices);
    const auto bytes = WriteMidi(file, arrangement, std::size_t{length} * 2);
    if (!bytes) {
        state.log = "The result is more than twice as long as the source.\n";
        return platform::kNoteNoRoom;
    }
    state.log = score::SummaryLine(arrangement.report) + "\n";
    for (const std::string& line : score::LossLines(arrangement.report))
        state.log += line + "\n";
    std::memcpy(destination, bytes->data(), bytes->size());
    *written = static_cast<unsigned>(bytes->size());
    return platform::kNoteDone;
}

}  // namespace

}  // namespace suite

#define KELVO_ENTRY extern "C" __attribute__((visibility("default")))

KELVO_ENTRY platform::NoteGetInfo GetInfo;
KELVO_ENTRY platform::NoteSetInfo SetInfo;
KELVO_ENTRY platform::NoteReset Reset;
KELVO_ENTRY platform::NoteDetect Detect;
KELVO_ENTRY platform::NoteConvert Convert;
KELVO_ENTRY platform::NoteGetLogSize GetLogSize;
KELVO_ENTRY platform::NoteGetLog GetLog;

int Reset()
{
    suite::state = {};
    return platform::kNoteDone;
}

int Detect(const void* midi, unsigned length)
{
    return suite::Guarded([&] { return suite::DetectFile(midi, length); });
}

int GetInfo(platform::NoteConversionInfo* info)
{
    if (!info || !suite::state.isDetected)
        return platform::kNoteBadCall;
    *info = suite::state.info;
    return platform::kNoteDone;
}

int SetInfo(const platform::NoteConversionInfo* info)
{
    if (!info)
        return platform::kNoteBadCall;
    if (std::memcmp(info->bytes, suite::kMark, sizeof suite::kMark) != 0)
        return platform::kNoteBadInfo;
    suite::state.info = *info;
    suite::state.isSet = true;
    return platform::kNoteDone;
}

int Convert(const void* source, unsigned length, void* destination, unsigned* written, int mode)
{
    if (!source || !destination || !written || mode != platform::kNoteConversionMode || !suite::state.isSet)
        return platform::kNoteBadCall;
    *written = 0;
    return suite::Guarded([&] { return suite::ConvertFile(source, length, destination, written); });
}

int GetLogSize(unsigned* size)
{
    if (!size)
        return platform::kNoteBadCall;
    *size = static_cast<unsigned>(suite::state.log.size());
    return platform::kNoteDone;
}

int GetLog(char* text, unsigned room)
{
    if (!text)
        return platform::kNoteBadCall;
    std::memcpy(text, suite::state.log.data(), std::min<std::size_t>(room, suite::state.log.size()));
    return platform::kNoteDone;
}
