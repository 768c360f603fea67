// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/sound_commands.h"
#include "platform/file_system.h"
#include "platform/services.h"
#include "score/report_text.h"
#include "score/smaf_reader.h"
#include "score/smaf_summary.h"
#include "score/smaf_text.h"
#include "sound/wav_file.h"
#include "sound/wave_smaf.h"

#include <fmt/format.h>

#include <memory>
#include <span>

namespace cli
{

namespace
{

constexpr std::uint64_t kMostBytes = 16 << 20;

std::span<const std::uint8_t> Bytes(const std::string& text)
{
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

// What is told of a sound, as a document and as the line that stands for it in plain text.
struct SoundFacts {
    Json document;
    std::string line;
    std::string error;
};

const char* WaveKindName(score::SmafWaveKind kind)
{
    constexpr const char* kNames[] = {"pcm", "offsetPcm", "adpcm"};
    return kNames[static_cast<std::size_t>(kind)];
}

Json TrackList(const score::SmafFile& file)
{
    Json tracks = Json::array();
    const auto add = [&tracks](const char* kind, const auto& track, unsigned format) {
        tracks.push_back({{"kind", kind},
                          {"number", track.number},
                          {"format", format},
                          {"unitMs", score::SmafBaseMilliseconds(track.timeBase)},
                          {"events", track.events.size()},
                          {"end", track.end}});
    };
    for (const score::SmafScoreTrack& track : file.scores) {
        add("score", track, static_cast<unsigned>(track.format));
    }
    for (const score::SmafAudioTrack& track : file.audios) {
        add("audio", track, 0);
    }
    return tracks;
}

Json WaveList(const score::SmafFile& file)
{
    Json waves = Json::array();
    for (const score::SmafWave* wave : sound::WavesOf(file)) {
        waves.push_back({{"id", wave->id},
                         {"kind", WaveKindName(wave->kind)},
                         {"bits", wave->bits},
                         {"channels", wave->stereo ? 2 : 1},
                         {"sampleRate", wave->rate},
                         {"length", wave->data.size()}});
    }
    return waves;
}

SoundFacts SmafFacts(const std::string& bytes)
{
    SoundFacts facts;
    const auto reading = score::ReadSmaf(Bytes(bytes), facts.error);
    if (!reading) {
        return facts;
    }
    const score::SmafSummary summary = score::SummariseSmaf(reading->file);
    Json chunks = Json::array();
    for (const score::SmafChunk& chunk : reading->chunks) {
        chunks.push_back(
            {{"tag", chunk.tag}, {"offset", chunk.offset}, {"size", chunk.size}, {"depth", chunk.depth}});
    }
    Json texts = Json::object();
    for (const score::SmafOption& option : reading->file.contents.options) {
        texts[score::CleanText(option.tag)] = option.text;
    }
    facts.document = {{"kind", "smaf"},
                      {"durationMs", summary.milliseconds},
                      {"channels", summary.channels},
                      {"notes", summary.notes},
                      {"polyphony", summary.polyphony},
                      {"title", summary.title},
                      {"texts", std::move(texts)},
                      {"tracks", TrackList(reading->file)},
                      {"waves", WaveList(reading->file)},
                      {"chunks", std::move(chunks)}};
    facts.line =
        fmt::format("smaf\t{} ms\t{} channels\t{} notes\t{} at once\t{} waves\t{}", summary.milliseconds,
                    summary.channels, summary.notes, summary.polyphony, summary.waves, summary.title);
    return facts;
}

SoundFacts MidiFacts(const std::string& bytes)
{
    SoundFacts facts;
    const score::MidiFile file = score::ReadMidi(Bytes(bytes));
    if (file.error != score::MidiError::none) {
        facts.error = score::MidiErrorText(file.error);
        return facts;
    }
    const score::ArrangementReport report = score::Arrange(file, score::kMa5Voices).report;
    const std::string title = score::CleanText(file.title);
    facts.document = {{"kind", "midi"},
                      {"durationMs", report.milliseconds},
                      {"channels", report.ChannelCount()},
                      {"notes", report.notes},
                      {"polyphony", report.polyphony},
                      {"title", title},
                      {"format", file.format},
                      {"tracks", file.tracks},
                      {"damagedTracks", file.damagedTracks}};
    facts.line =
        fmt::format("midi\t{} ms\t{} channels\t{} notes\t{} at once\t{} tracks\t{}", report.milliseconds,
                    report.ChannelCount(), report.notes, report.polyphony, file.tracks, title);
    return facts;
}

SoundFacts WavFacts(const std::string& path)
{
    SoundFacts facts;
    sound::CWavFile file;
    if (!file.Open(path)) {
        facts.error = file.Error();
        return facts;
    }
    const sound::WavFormat& format = file.Format();
    const std::uint64_t rate = std::uint64_t{format.sampleRate} * format.channels * format.bitsPerSample / 8;
    const std::uint64_t milliseconds = rate == 0 ? 0 : file.DataSize() * 1000 / rate;
    facts.document = {{"kind", "wav"},
                      {"durationMs", milliseconds},
                      {"channels", format.channels},
                      {"sampleRate", format.sampleRate},
                      {"bits", format.bitsPerSample},
                      {"length", file.DataSize()}};
    facts.line = fmt::format("wav\t{} ms\t{} channels\t{} Hz\t{} bits\t{} bytes", milliseconds,
                             format.channels, format.sampleRate, format.bitsPerSample, file.DataSize());
    return facts;
}

// What the file begins with decides, never its name.
SoundFacts FactsOf(const std::string& path)
{
    SoundFacts facts;
    const auto file = platform::Os().files->Open(path, platform::OpenMode::read);
    if (!file) {
        facts.error = platform::Os().files->LastError();
        return facts;
    }
    std::string head(12, '\0');
    head.resize(file->ReadAt(0, std::as_writable_bytes(std::span(head))));
    const bool isRiff = head.starts_with("RIFF") && !head.ends_with("RMID");
    const bool isMidi = head.starts_with("MThd") || head.ends_with("RMID");
    if (isRiff || head.starts_with("RF64") || head.starts_with("RIFX")) {
        return WavFacts(path);
    }
    if (!isMidi && !head.starts_with("MMMD")) {
        facts.error = "is neither a SMAF, a MIDI nor a WAV file";
        return facts;
    }
    const auto bytes = platform::Os().files->ReadWhole(path, kMostBytes);
    if (!bytes) {
        facts.error = platform::Os().files->LastError();
        return facts;
    }
    return isMidi ? MidiFacts(*bytes) : SmafFacts(*bytes);
}

void RunInfo(CContext& context, const std::vector<std::string>& files)
{
    CJsonArray list(context);
    for (const std::string& path : files) {
        if (Interruption() != 0) {
            break;
        }
        const SoundFacts facts = FactsOf(path);
        const bool isRead = facts.error.empty();
        Json document = {{"path", path}, {"result", isRead}, {"error", facts.error}};
        if (isRead) {
            document.update(facts.document);
            context.PrintLine(path + "\t" + facts.line);
        } else {
            context.Fail(path, facts.error);
        }
        list.Add(document);
    }
}

}  // namespace

void AddInfoCommand(CLI::App& sound, CContext& context)
{
    auto* info = sound.add_subcommand("info", "What is in SMAF, MIDI and WAV files");
    const auto files = std::make_shared<std::vector<std::string>>();
    info->add_option("FILE", *files, "The files")->required();
    info->callback([&context, files] { RunInfo(context, *files); });
}

}  // namespace cli
