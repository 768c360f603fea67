// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/tone_facts.h"

#include "browser/file_names.h"
#include "platform/services.h"
#include "score/arrangement.h"
#include "score/smaf_reader.h"
#include "score/smaf_summary.h"
#include "score/smaf_text.h"
#include "sound/tone_preview.h"
#include "sound/wave_record.h"

namespace app
{

namespace
{

using platform::StringId;

std::span<const std::uint8_t> Bytes(std::string_view text)
{
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

StringId TextOf(score::MidiError error)
{
    switch (error) {
    case score::MidiError::none:
        return StringId::none;
    case score::MidiError::notMidi:
        return StringId::toneNotMidi;
    case score::MidiError::badHeader:
        return StringId::toneMidiCut;
    case score::MidiError::badFormat:
        return StringId::toneMidiFormat;
    case score::MidiError::badDivision:
        return StringId::toneMidiDivision;
    case score::MidiError::longNumber:
        return StringId::toneMidiDamaged;
    case score::MidiError::noTrack:
        return StringId::toneMidiNoTrack;
    }
    return StringId::none;
}

ToneFacts MidiFacts(std::string_view bytes)
{
    ToneFacts facts;
    facts.kind = ToneKind::midi;
    const score::MidiFile file = score::ReadMidi(Bytes(bytes));
    facts.problem.text = TextOf(file.error);
    if (facts.problem)
        return facts;
    const score::ArrangementReport report = score::Arrange(file, score::kMa5Voices).report;
    facts.plays = PlayKind::midi;
    facts.milliseconds = report.milliseconds;
    facts.channels = report.ChannelCount();
    facts.notes = report.notes;
    facts.polyphony = report.polyphony;
    facts.title = score::CleanText(file.title);
    return facts;
}

ToneFacts WavFacts(const std::string& path)
{
    ToneFacts facts;
    facts.kind = ToneKind::wav;
    // A player may know forms that this program does not.
    facts.plays = PlayKind::wave;
    sound::CWavFile file;
    if (!file.Open(path)) {
        facts.problem = {StringId::toneNotWav, file.Error()};
        return facts;
    }
    facts.wave = file.Format();
    facts.suits = sound::SuitsHandset(facts.wave);
    const std::uint64_t perSecond =
        std::uint64_t{facts.wave.sampleRate} * facts.wave.channels * facts.wave.bitsPerSample / 8;
    facts.milliseconds = perSecond == 0 ? 0 : file.DataSize() * 1000 / perSecond;
    return facts;
}

}  // namespace

ToneKind ToneKindOf(std::string_view name)
{
    const std::string extension = browser::LowerCase(browser::Extension(name));
    if (extension == "mid" || extension == "midi")
        return ToneKind::midi;
    if (extension == "mmf")
        return ToneKind::smaf;
    return extension == "wav" ? ToneKind::wav : ToneKind::none;
}

ToneFacts SmafFacts(std::string_view bytes)
{
    ToneFacts facts;
    facts.kind = ToneKind::smaf;
    std::string error;
    const auto reading = score::ReadSmaf(Bytes(bytes), error);
    if (!reading) {
        facts.problem = {StringId::toneNotSmaf, error};
        return facts;
    }
    const score::SmafSummary summary = score::SummariseSmaf(reading->file);
    facts.milliseconds = summary.milliseconds;
    facts.channels = summary.channels;
    facts.notes = summary.notes;
    facts.polyphony = summary.polyphony;
    facts.waves = summary.waves;
    facts.title = summary.title;
    if (summary.notes > 0)
        facts.plays = sound::IsOnlyRecordings(reading->file) ? PlayKind::wave : PlayKind::midi;
    return facts;
}

ToneFacts ReadToneFacts(const std::string& path)
{
    const ToneKind kind = ToneKindOf(browser::FileName(path));
    if (kind == ToneKind::none)
        return {};
    if (kind == ToneKind::wav)
        return WavFacts(path);
    const auto bytes = platform::Os().files->ReadWhole(path, kLongestTone);
    if (bytes)
        return kind == ToneKind::midi ? MidiFacts(*bytes) : SmafFacts(*bytes);
    ToneFacts facts;
    facts.kind = kind;
    facts.problem = {StringId::toneNotRead, platform::Os().files->LastError()};
    return facts;
}

}  // namespace app
