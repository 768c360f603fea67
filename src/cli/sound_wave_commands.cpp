// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/sound_commands.h"
#include "platform/services.h"
#include "sound/wave_record.h"

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
};

// Whether both paths lead to one file.
bool IsSameFile(const std::string& one, const std::string& other)
{
    const auto file = platform::Os().files->Open(one, platform::OpenMode::read);
    const auto target = platform::Os().files->ResolveLink(other);
    return file && target && file->IsStill(*target);
}

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
                       {"name", std::string(WaveName(*record))},
                       {"b", record->b},
                       {"a", record->a},
                       {"format", record->format},
                       {"sampleRate", record->sampleRate},
                       {"length", record->length}});
    context.PrintReport(
        fmt::format("{}\t{} Hz\t{} bytes", record->number, record->sampleRate, record->length));
}

CLI::App* AddCommand(CLI::App& sound, CContext& context, const char* name, const char* help,
                     const std::shared_ptr<WaveArguments>& arguments,
                     void (*run)(CContext&, const WaveArguments&))
{
    auto* command = sound.add_subcommand(name, help);
    command->add_option("IN.wav", arguments->source, "4000 or 8000 Hz, 16 bits, one channel")->required();
    command->add_option("OUT", arguments->target, "The file to write")->required();
    command->add_flag("--halve", arguments->request.halved, "Keep every second sample of 8000 Hz");
    command->callback([&context, arguments, run] { run(context, *arguments); });
    return command;
}

}  // namespace

void AddWaveCommands(CLI::App& sound, CContext& context)
{
    const auto arguments = std::make_shared<WaveArguments>();
    auto* adpcm =
        AddCommand(sound, context, "adpcm", "Encode a recording as bare 4-bit ADPCM", arguments, RunAdpcm);
    adpcm->add_option("--a", arguments->request.a, "The record's first number, 0 to 255")
        ->check(CLI::Range(0, 255));
    adpcm->add_option("--b", arguments->request.b, "Its second number, 0 to 255")->check(CLI::Range(0, 255));
    adpcm->add_option("--name", arguments->request.name, "The record's name, of up to 16 characters");
}

}  // namespace cli
