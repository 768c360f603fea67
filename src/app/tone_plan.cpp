// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/tone_plan.h"

#include "browser/clash_names.h"
#include "browser/file_names.h"
#include "platform/services.h"
#include "score/report_text.h"
#include "score/smaf_writer.h"
#include "sound/note_conversion.h"
#include "sound/tune_conversion.h"
#include "sound/wave_smaf.h"

#include <algorithm>

namespace app
{

namespace
{

using platform::FileFailure;
using platform::Os;
using platform::StringId;
using score::Ignored;

// A converted file, or why there is none.
struct Made {
    std::string bytes;
    ToneProblem problem;
    std::vector<ToneLoss> losses;
};

std::string Stem(const std::string& path)
{
    const std::string_view name = browser::FileName(path);
    return std::string(
        name.substr(0, name.size() - browser::NameEnding(name, browser::NameKind::file).size()));
}

constexpr std::pair<Ignored, StringId> kIgnored[] = {
    {Ignored::pressure, StringId::toneLostPressure}, {Ignored::bank, StringId::toneLostBank},
    {Ignored::kit, StringId::toneLostKit},           {Ignored::parameter, StringId::toneLostParameter},
    {Ignored::control, StringId::toneLostControl},   {Ignored::exclusive, StringId::toneLostExclusive},
    {Ignored::badTempo, StringId::toneLostTempo},    {Ignored::afterEnd, StringId::toneLostAfterEnd},
};

// What the report tells, in the user's language.
std::vector<ToneLoss> LossesOf(const score::ArrangementReport& report)
{
    std::vector<ToneLoss> losses;
    const auto add = [&](StringId text, std::uint64_t number) {
        if (number > 0)
            losses.push_back({{text, number, report.voices}, {}});
    };
    add(StringId::toneLostDropped, report.notesDropped);
    add(StringId::toneLostShortened, report.notesShortened);
    add(StringId::toneLostUnended, report.notesUnended);
    add(StringId::toneLostTooLong, report.notesTooLong);
    for (const auto& [kind, text] : kIgnored)
        add(text, report.Count(kind));
    add(StringId::toneLostTracks, report.damagedTracks);
    add(StringId::toneLostSongs, report.otherSongs);
    return losses;
}

// The report is made of the source as the converters make theirs. What they say beyond it stands as it is.
std::vector<ToneLoss> LossesOf(const std::string& source, const sound::Tune& tune)
{
    std::vector<ToneLoss> losses;
    if (!tune.hasNotes) {
        if (sound::CNoteConversion().IsLoaded())
            losses.push_back({{StringId::toneNotesFailed}, {}});
        else
            losses.push_back({{StringId::toneNotesUnused}, "Nc.dll was not found."});
    }
    std::vector<std::string> known;
    if (const auto bytes = Os().files->ReadWhole(source, sound::kLongestTuneFile)) {
        const score::MidiFile file =
            score::ReadMidi({reinterpret_cast<const std::uint8_t*>(bytes->data()), bytes->size()});
        const score::ArrangementReport report = score::Arrange(file, score::kMa5Voices).report;
        std::ranges::move(LossesOf(report), std::back_inserter(losses));
        known = score::LossLines(report);
    }
    for (const std::string& line : tune.leftOut) {
        if (std::ranges::find(known, line) == known.end())
            losses.push_back({{}, line});
    }
    return losses;
}

Made MakeOfTune(const std::string& source)
{
    Made made;
    sound::Tune tune = sound::ConvertTune(source);
    if (tune.result != platform::kSmafDone) {
        made.problem = {StringId::toneNotConverted, tune.error};
        return made;
    }
    made.losses = LossesOf(source, tune);
    made.bytes = std::move(tune.smaf);
    return made;
}

Made MakeOfRecording(const std::string& source, bool isHalved)
{
    Made made;
    std::string error;
    const auto record = sound::EncodeWave(source, {0, 0, Stem(source), isHalved}, error);
    if (!record) {
        made.problem = {StringId::toneNotConverted, error};
        return made;
    }
    if (record->data.empty()) {
        made.problem = {StringId::toneEmpty, {}};
        return made;
    }
    const auto file = sound::WaveAsSmaf(*record, Stem(source), sound::WavePlace::audioTrack);
    if (!file) {
        made.problem = {StringId::toneTooLongTrack, {}};
        return made;
    }
    const auto bytes = score::WriteSmaf(*file, error);
    if (!bytes) {
        made.problem = {StringId::toneNotConverted, error};
        return made;
    }
    made.bytes.assign(bytes->begin(), bytes->end());
    made.losses = {{{StringId::toneLostFine}, {}}};
    return made;
}

Made Make(const std::string& source, bool isHalved)
{
    return ToneKindOf(browser::FileName(source)) == ToneKind::wav ? MakeOfRecording(source, isHalved)
                                                                  : MakeOfTune(source);
}

ToneOutcome OutcomeOf(const std::string& bytes)
{
    return {bytes.size(), std::hash<std::string>()(bytes), SmafFacts(bytes)};
}

// What is known to be in the way before anything is converted.
ToneProblem FirstProblem(const ToneFacts& facts)
{
    if (facts.problem)
        return facts.problem;
    if (facts.kind == ToneKind::wav && !facts.suits)
        return {StringId::toneMustBe, {}};
    if (facts.kind == ToneKind::midi && facts.notes == 0)
        return {StringId::toneEmpty, {}};
    return {};
}

// What is left undone, or nothing. A copy is there whole or not at all, and takes no name that is taken.
std::optional<platform::FileProblem> WriteNew(const std::string& path, const std::string& bytes)
{
    const std::string draft = browser::JoinPath(Os().files->GetTempPath(), "draft.mmf");
    if (!Os().files->ReplaceFile(draft, std::as_bytes(std::span(bytes))))
        return platform::FileProblem{path, FileFailure::other, Os().files->LastError()};
    const auto copy = Os().shell->DoFileStep({platform::FileOperation::copy, draft, path, {}});
    Os().files->DeleteFile(draft);
    if (copy.done)
        return std::nullopt;
    platform::FileProblem problem = copy.problems.empty() ? platform::FileProblem() : copy.problems.front();
    problem.path = path;
    return problem;
}

// The same for a conversion.
std::optional<platform::FileProblem> Write(const ToneOrder& order)
{
    const Made made = Make(order.source, order.isHalved);
    if (made.problem || OutcomeOf(made.bytes) != order.expected)
        return platform::FileProblem{order.source, FileFailure::changed, {}};
    return WriteNew(order.target, made.bytes);
}

}  // namespace

std::string FreeToneName(const std::string& source, const std::set<std::string>& taken)
{
    constexpr int kMostNumbers = 10'000;
    const std::string first = Stem(source) + ".mmf";
    std::string path;
    for (int number = 1; number < kMostNumbers; ++number) {
        const std::string name =
            number == 1 ? first : browser::NumberedName(first, number, browser::NameKind::file);
        path = browser::JoinPath(browser::FolderOf(source), name);
        if (!taken.contains(path) && Os().files->FindPresence(path) == platform::Presence::missing)
            break;
    }
    return path;
}

TonePlan PlanTone(const std::string& source, const std::set<std::string>& taken)
{
    TonePlan plan;
    plan.source = source;
    plan.facts = ReadToneFacts(source);
    plan.problem = FirstProblem(plan.facts);
    if (plan.problem)
        return plan;
    Made made = Make(source, false);
    plan.problem = made.problem;
    if (plan.problem)
        return plan;
    plan.target = FreeToneName(source, taken);
    plan.whole = OutcomeOf(made.bytes);
    plan.losses = std::move(made.losses);
    if (plan.facts.kind == ToneKind::wav && plan.facts.wave.sampleRate == 8000)
        plan.halved = OutcomeOf(Make(source, true).bytes);
    return plan;
}

browser::FileJobReport WriteTones(const std::vector<ToneOrder>& orders, browser::CFileJobHost& host)
{
    browser::FileJobReport report;
    report.task = report.undo.task = browser::FileTask::makeTones;
    report.items = orders.size();
    for (std::size_t i = 0; i < orders.size(); ++i) {
        const ToneOrder& order = orders[i];
        const double fraction = static_cast<double>(i) / static_cast<double>(orders.size());
        if (!host.Progress({order.source, i, orders.size(), fraction})) {
            report.cancelled = true;
            break;
        }
        if (auto problem = Write(order)) {
            report.problems.push_back(std::move(*problem));
            continue;
        }
        ++report.done;
        report.results.push_back(order.target);
        const auto entry = Os().shell->FindEntry(order.target);
        if (entry)
            report.undo.steps.push_back({browser::UndoAction::takeAway, order.target, {}, entry->stamp});
    }
    report.problemCount = report.problems.size();
    report.undo.items = report.done;
    if (!report.results.empty())
        report.undo.name = browser::FileName(report.results.front());
    return report;
}

}  // namespace app
