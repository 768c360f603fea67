// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/sound_commands.h"
#include "platform/file_system.h"
#include "platform/services.h"
#include "sound/converted_names.h"
#include "sound/note_conversion.h"
#include "sound/tune_conversion.h"

#include <fmt/format.h>

#include <map>
#include <memory>
#include <span>

namespace cli
{

namespace
{

struct TuneArguments {
    std::string source;
    std::string target;
    unsigned chip = platform::kSmafAnyChip;
};

// What a tune lost, on standard error.
void TellLosses(const CContext& context, const std::string& path, std::span<const std::string> lines)
{
    for (const std::string& line : lines) {
        if (!context.quiet) {
            fmt::print(stderr, "{}: {}\n", path, line);
        }
    }
}

// Why there is no output, which the front end's result does not tell.
std::string Reason(const sound::CNoteConversion& notes, const TuneArguments& arguments)
{
    if (!notes.IsLoaded()) {
        return "Nc.dll was not found";
    }
    if (!platform::Os().files->Open(arguments.source, platform::OpenMode::read)) {
        return platform::Os().files->LastError();
    }
    if (!notes.WriteError().empty()) {
        return "the result cannot be written: " + notes.WriteError();
    }
    if (const auto lines = notes.LogLines(); !lines.empty()) {
        return lines[0];
    }
    return notes.IsReady() ? "cannot be converted" : "has not the extension .mid";
}

int ConvertNotes(sound::CNoteConversion& notes, const TuneArguments& arguments)
{
    if (arguments.target.empty()) {
        return notes.ConvertBeside();
    }
    return notes.ConvertTo(arguments.target, sound::LogPathFor(arguments.target));
}

void RunNotes(CContext& context, const TuneArguments& arguments)
{
    sound::CNoteConversion notes;
    notes.Reset();
    notes.Open(AbsolutePath(arguments.source));
    const bool isItself = IsSameFile(arguments.source, arguments.target);
    const int result = isItself ? 0 : ConvertNotes(notes, arguments);
    context.PrintJson({{"result", result},
                       {"output", TextOrNull(result == 1 ? &notes.Output() : nullptr)},
                       {"log", TextOrNull(notes.Log().empty() ? nullptr : &notes.Log())}});
    const auto lines = notes.LogLines();
    if (isItself) {
        context.Fail(arguments.target, "is the source");
    } else if (notes.IsConverted() && !lines.empty()) {
        TellLosses(context, arguments.source, std::span(lines).subspan(1));
        context.PrintReport(notes.Output() + "\t" + lines[0]);
    } else if (result == 0) {
        context.Fail(arguments.source, Reason(notes, arguments));
    }
}

void RunSmaf(CContext& context, const TuneArguments& arguments)
{
    sound::Tune tune;
    if (IsSameFile(arguments.source, arguments.target)) {
        tune.error = "The target is the source.";
    } else {
        tune = sound::ConvertTune(arguments.source, arguments.chip);
    }
    if (tune.result == platform::kSmafDone &&
        !platform::Os().files->ReplaceFile(arguments.target, std::as_bytes(std::span(tune.smaf)))) {
        tune.result = platform::kSmafNotConverted;
        tune.error = "The target cannot be written: " + platform::Os().files->LastError() + ".";
    }
    context.PrintJson({{"result", tune.result}, {"error", tune.error}, {"leftOut", tune.leftOut}});
    if (tune.result != platform::kSmafDone) {
        context.Fail(arguments.source, tune.error);
        return;
    }
    if (!tune.hasNotes) {
        tune.leftOut.emplace_back("the note conversion could not be used, the tune goes on as it is");
    }
    if (tune.smaf.size() > sound::kLongestRingTone) {
        tune.leftOut.push_back(fmt::format("{} bytes are more than the handset takes", tune.smaf.size()));
    }
    TellLosses(context, arguments.source, tune.leftOut);
    context.PrintReport(fmt::format("{}\t{} bytes", arguments.target, tune.smaf.size()));
}

}  // namespace

void AddTuneCommands(CLI::App& sound, CContext& context)
{
    const auto arguments = std::make_shared<TuneArguments>();
    auto* notes = sound.add_subcommand("notes", "Rewrite a MIDI file for the handset's sound chip");
    notes->add_option("IN.mid", arguments->source, "A standard MIDI file")->required();
    notes->add_option("OUT.mid", arguments->target,
                      "The file to write; beside the source as NAME_Nc.MID without it");
    notes->callback([&context, arguments] { RunNotes(context, *arguments); });

    const std::map<std::string, unsigned> chips = {
        {"any", platform::kSmafAnyChip}, {"ma3", platform::kSmafMa3}, {"ma5", platform::kSmafMa5}};
    auto* smaf = sound.add_subcommand("smaf", "Convert a MIDI file to a SMAF ring tone");
    smaf->add_option("IN.mid", arguments->source, "A standard MIDI file of any name")->required();
    smaf->add_option("OUT.mmf", arguments->target, "The file to write")->required();
    smaf->add_option("--chip", arguments->chip,
                     "ma3 (32 notes at once), ma5 (64), or any: the first that suits")
        ->transform(CLI::CheckedTransformer(chips));
    smaf->callback([&context, arguments] { RunSmaf(context, *arguments); });
}

}  // namespace cli
