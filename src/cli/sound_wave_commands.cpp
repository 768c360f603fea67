// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/sound_commands.h"
#include "platform/file_system.h"
#include "platform/services.h"
#include "score/smaf_reader.h"
#include "score/smaf_writer.h"
#include "sound/wave_smaf.h"

#include <fmt/format.h>

#include <memory>

namespace cli
{

namespace
{

struct WaveArguments {
    std::string source;
    std::string target;
    sound::WaveRequest request;
    sound::WavePlace place = sound::WavePlace::audioTrack;
    std::size_t wave = 1;
};

bool WriteTarget(CContext& context, const WaveArguments& arguments, std::span<const std::uint8_t> bytes)
{
    if (IsSameFile(arguments.source, arguments.target)) {
        context.Fail(arguments.target, "is the source");
        return false;
    }
    if (!platform::Os().files->ReplaceFile(arguments.target, std::as_bytes(bytes))) {
        context.Fail(arguments.target, platform::Os().files->LastError());
        return false;
    }
    return true;
}

void RunAdpcm(CContext& context, const WaveArguments& arguments)
{
    std::string error;
    const auto record = sound::EncodeWave(arguments.source, arguments.request, error);
    if (!record) {
        context.Fail(arguments.source, error);
    }
    if (!record || !WriteTarget(context, arguments, record->data)) {
        context.PrintJson({{"result", 0}});
        return;
    }
    context.PrintJson({{"result", 1},
                       {"recordNumber", record->number},
                       {"name", std::string(sound::WaveName(*record))},
                       {"b", record->b},
                       {"a", record->a},
                       {"format", record->format},
                       {"sampleRate", record->sampleRate},
                       {"length", record->length}});
    context.PrintReport(
        fmt::format("{}\t{} Hz\t{} bytes", record->number, record->sampleRate, record->length));
}

void RunClip(CContext& context, const WaveArguments& arguments)
{
    std::string error;
    const auto record = sound::EncodeWave(arguments.source, arguments.request, error);
    const auto file =
        record ? sound::WaveAsSmaf(*record, arguments.request.name, arguments.place) : std::nullopt;
    const auto bytes = file ? score::WriteSmaf(*file, error) : std::nullopt;
    if (!bytes) {
        context.Fail(arguments.source, record && !file ? "the sound is too long for such a track" : error);
    }
    const bool done = bytes && WriteTarget(context, arguments, *bytes);
    context.PrintJson({{"result", done ? 1 : 0}, {"size", done ? bytes->size() : 0}});
    if (done) {
        context.PrintReport(fmt::format("{}\t{} bytes", arguments.target, bytes->size()));
    }
}

// The wave of that number as a WAV file; nothing, with the reason.
std::optional<std::vector<std::uint8_t>> Extract(const WaveArguments& arguments, std::string& error)
{
    constexpr std::uint64_t kMostBytes = 16 << 20;
    const auto bytes = platform::Os().files->ReadWhole(arguments.source, kMostBytes);
    if (!bytes) {
        error = platform::Os().files->LastError();
        return std::nullopt;
    }
    const auto reading =
        score::ReadSmaf({reinterpret_cast<const std::uint8_t*>(bytes->data()), bytes->size()}, error);
    if (!reading) {
        return std::nullopt;
    }
    const auto waves = sound::WavesOf(reading->file);
    if (arguments.wave > waves.size()) {
        error = fmt::format("holds {} recorded sounds", waves.size());
        return std::nullopt;
    }
    error = "the recorded sound is not ADPCM of 4 bits and one channel";
    return sound::WaveAsWav(*waves[arguments.wave - 1]);
}

void RunExtract(CContext& context, const WaveArguments& arguments)
{
    std::string error;
    const auto bytes = Extract(arguments, error);
    if (!bytes) {
        context.Fail(arguments.source, error);
    }
    const bool done = bytes && WriteTarget(context, arguments, *bytes);
    context.PrintJson({{"result", done ? 1 : 0}});
}

CLI::App* AddCommand(CLI::App& sound, CContext& context, const char* name, const char* help,
                     const std::shared_ptr<WaveArguments>& arguments,
                     void (*run)(CContext&, const WaveArguments&))
{
    auto* command = sound.add_subcommand(name, help);
    command->callback([&context, arguments, run] { run(context, *arguments); });
    return command;
}

void AddRecordingOptions(CLI::App& command, WaveArguments& arguments)
{
    command.add_option("IN.wav", arguments.source, "4000 or 8000 Hz, 16 bits, one channel")->required();
    command.add_option("OUT", arguments.target, "The file to write")->required();
    command.add_flag("--halve", arguments.request.halved, "Keep every second sample of 8000 Hz");
}

}  // namespace

void AddWaveCommands(CLI::App& sound, CContext& context)
{
    const auto arguments = std::make_shared<WaveArguments>();
    sound::WaveRequest& request = arguments->request;
    auto* adpcm =
        AddCommand(sound, context, "adpcm", "Encode a recording as bare 4-bit ADPCM", arguments, RunAdpcm);
    AddRecordingOptions(*adpcm, *arguments);
    adpcm->add_option("--a", request.a, "The record's first number, 0 to 255")->check(CLI::Range(0, 255));
    adpcm->add_option("--b", request.b, "Its second number, 0 to 255")->check(CLI::Range(0, 255));
    adpcm->add_option("--name", request.name, "The record's name, of up to 16 characters");

    auto* clip =
        AddCommand(sound, context, "clip", "Make a SMAF ring tone of a recording", arguments, RunClip);
    AddRecordingOptions(*clip, *arguments);
    clip->add_option("--title", request.name, "The ring tone's title");
    clip->add_flag_callback(
        "--stream", [arguments] { arguments->place = sound::WavePlace::streamPcm; },
        "As stream PCM of a score track, not as an audio track");

    auto* extract =
        AddCommand(sound, context, "extract", "Write a SMAF file's recording as WAV", arguments, RunExtract);
    extract->add_option("IN.mmf", arguments->source, "A SMAF file with recorded sounds")->required();
    extract->add_option("OUT.wav", arguments->target, "The file to write")->required();
    extract->add_option("--wave", arguments->wave, "Which of them, from 1")->check(CLI::Range(1, 1000));
}

}  // namespace cli
