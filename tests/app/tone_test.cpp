// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The course of a conversion, the facts of sounds and what plays them, without a window and without
// libraries.
#include "app/tone_conversion.h"
#include "app/tone_playing.h"
#include "score/golden_smaf.h"
#include "score/midi_builder.h"
#include "score/midi_file.h"
#include "score/smaf_to_midi.h"
#include "sound/wav_builder.h"
#include "support/test_services.h"

#include <gmock/gmock.h>

using app::CToneConversion;
using app::PlayKind;
using platform::StringId;
using support::WriteBytes;
using testing::ElementsAre;
using testing::IsEmpty;
using State = app::CToneConversion::RowState;

namespace
{

app::ToneOutcome Of(std::uint64_t size)
{
    return {size, 0, {}};
}

app::TonePlan Tune(std::uint64_t size, std::vector<app::ToneLoss> losses = {})
{
    return {"s.mid", "s.mmf", {}, {}, Of(size), {}, std::move(losses)};
}

const app::ToneLoss kDropped{{StringId::toneLostDropped, 3, 64}, {}};
const app::TonePlan kRecording{"r.wav", "r.mmf", {}, {}, Of(70'000), Of(35'000), {}};
const app::TonePlan kRefused{"x.wav", "", {}, {StringId::toneEmpty, {}}, {}, {}, {}};

std::string Bytes(const std::vector<std::uint8_t>& bytes)
{
    return {bytes.begin(), bytes.end()};
}

// Copies as the real one does.
class CCopyingShell : public support::CTestShell
{
public:
    platform::FileStepResult DoFileStep(const platform::FileStep& step) override
    {
        std::error_code error;
        if (std::filesystem::copy_file(step.source, step.target, error))
            return {true, step.target, {}};
        return {false, {}, {{step.source, platform::FileFailure::nameTaken, {}}}};
    }
};

class Tones : public testing::Test
{
protected:
    Tones() { platform::Os().shell = &shell; }
    std::string Add(const std::string& name, const std::string& bytes)
    {
        WriteBytes(services.folder.Path(name), bytes);
        return services.folder.Path(name);
    }
    support::TestServices services;
    CCopyingShell shell;
};

class CQuietHost : public browser::CFileJobHost
{
public:
    bool goesOn = true;
    browser::ClashReply AskAboutClash(const browser::Clash&) override { return {}; }
    bool Progress(const browser::FileJobProgress&) override { return goesOn; }
};

}  // namespace

TEST(ToneConversion, EachMixOfFilesHasItsWordsAndItsButton)
{
    const struct {
        std::vector<app::TonePlan> plans;
        std::size_t files;
        bool halves;
        std::vector<State> states;
        app::ToneCount summary;
        StringId button;
        std::size_t orders;
    } rows[] = {
        {{}, 1, false, {State::waiting}, {StringId::tonePlanning, 1}, StringId::toneConvert, 0},
        {{Tune(65'536)}, 1, false, {State::good}, {StringId::toneGood}, StringId::toneConvert, 1},
        {{Tune(65'537)},
         1,
         false,
         {State::tooLong},
         {StringId::toneTooLong, 1, 65'536},
         StringId::toneConvertAnyway,
         1},
        {{Tune(9, {kDropped}), kRefused},
         2,
         false,
         {State::lossy, State::refused},
         {StringId::toneLossy},
         StringId::toneConvert,
         1},
        {{Tune(9), kRefused},
         3,
         false,
         {State::good, State::refused, State::waiting},
         {StringId::tonePlanning, 3},
         StringId::toneConvert,
         1},
        {{kRefused}, 1, false, {State::refused}, {StringId::toneNone}, StringId::toneConvert, 0},
        {{kRecording, Tune(9)},
         2,
         false,
         {State::tooLong, State::good},
         {StringId::toneTooLong, 1, 65'536},
         StringId::toneConvertAnyway,
         2},
        {{kRecording, Tune(9)},
         2,
         true,
         {State::lossy, State::good},
         {StringId::toneLossy},
         StringId::toneConvert,
         2},
    };
    for (const auto& row : rows) {
        CToneConversion conversion(std::vector<std::string>(row.files, "s.mid"));
        for (const app::TonePlan& plan : row.plans)
            conversion.Take(plan);
        conversion.Halve(row.halves);

        std::vector<State> states;
        for (std::size_t i = 0; i < row.files; ++i)
            states.push_back(conversion.State(i));
        const bool isPlanned = row.plans.size() == row.files;
        const auto index = &row - rows;
        EXPECT_EQ(states, row.states) << index;
        EXPECT_EQ(conversion.Summary(), row.summary) << index;
        EXPECT_EQ(conversion.ButtonText(), row.button) << index;
        EXPECT_EQ(conversion.Orders().size(), row.orders) << index;
        EXPECT_EQ(conversion.CanConvert(), isPlanned && row.orders > 0) << index;
    }
}

TEST(ToneConversion, HalvingChangesOnlyWhatIsWrittenOfRecordings)
{
    CToneConversion conversion({"r.wav", "s.mid"});
    conversion.Take(kRecording);
    conversion.Take(Tune(9));
    ASSERT_TRUE(conversion.OffersHalving());
    conversion.Halve(true);

    const auto orders = conversion.Orders();
    EXPECT_TRUE(orders[0].isHalved && orders[0].expected == Of(35'000));
    EXPECT_FALSE(orders[1].isHalved);
    EXPECT_EQ(conversion.Losses(0).size(), 1U);
    EXPECT_THAT(conversion.Taken(), ElementsAre("r.mmf", "s.mmf"));
}

TEST_F(Tones, FactsAreTheFilesAndABrokenFileSaysWhatIsWrong)
{
    const std::string mobile = Bytes(golden::kMobile);
    const std::string wav = wav::File(wav::Format(8000) + wav::Chunk("data", std::string(16'000, 'x')));
    const std::string stereo = wav::File(wav::Format(44'100, 16, 2) + wav::Chunk("data", "12345678"));
    const struct {
        const char* name;
        std::string bytes;
        StringId problem;
        std::uint64_t milliseconds;
        std::size_t notes;
        bool suits;
        PlayKind plays;
    } rows[] = {
        {"a.mmf", mobile, StringId::none, 2500, 4, false, PlayKind::midi},
        {"b.mmf", Bytes(golden::kAudio), StringId::none, 4, 1, false, PlayKind::wave},
        {"c.MMF", mobile.substr(0, 50), StringId::toneNotSmaf, 0, 0, false, PlayKind::nothing},
        {"d.midi", "RIFF", StringId::toneNotMidi, 0, 0, false, PlayKind::nothing},
        {"e.wav", wav, StringId::none, 1000, 0, true, PlayKind::wave},
        {"f.WAV", stereo, StringId::none, 0, 0, false, PlayKind::wave},
        {"g.wav", "MThd", StringId::toneNotWav, 0, 0, false, PlayKind::wave},
        {"h.txt", mobile, StringId::none, 0, 0, false, PlayKind::nothing},
    };
    for (const auto& row : rows) {
        const app::ToneFacts facts = app::ReadToneFacts(Add(row.name, row.bytes));

        EXPECT_EQ(facts.problem.text, row.problem) << row.name;
        EXPECT_EQ(facts.milliseconds, row.milliseconds) << row.name;
        EXPECT_EQ(facts.notes, row.notes) << row.name;
        EXPECT_EQ(facts.suits, row.suits) << row.name;
        EXPECT_EQ(facts.plays, row.plays) << row.name;
    }
    EXPECT_EQ(app::ReadToneFacts(services.folder.Path("gone.mid")).problem.text, StringId::toneNotRead);
}

TEST_F(Tones, ARecordingIsWrittenAsPlannedUnderAFreeNameOrNotAtAll)
{
    const std::string source =
        Add("bell.wav", wav::File(wav::Format(8000) + wav::Chunk("data", std::string(4000, '\x11'))));
    Add("bell.mmf", "kept");
    const std::string second = services.folder.Path("bell (2).mmf");
    const std::string third = services.folder.Path("bell (3).mmf");
    const app::TonePlan plan = app::PlanTone(source, {});
    const app::TonePlan other = app::PlanTone(source, {second});
    ASSERT_EQ(plan.target, second);
    ASSERT_EQ(other.target, third);
    ASSERT_TRUE(plan.halved && plan.halved->size < plan.whole.size);
    CQuietHost host;

    const auto done =
        app::WriteTones({{source, second, true, *plan.halved}, {source, third, false, plan.whole}}, host);
    EXPECT_THAT(done.results, ElementsAre(second, third));
    EXPECT_EQ(support::ReadBytes(second).size(), plan.halved->size);
    EXPECT_EQ(app::ReadToneFacts(third).waves, 1U);
    EXPECT_EQ(support::ReadBytes(services.folder.Path("bell.mmf")), "kept");

    const std::string fourth = services.folder.Path("bell (4).mmf");
    const auto taken = app::WriteTones({{source, third, true, *plan.halved}}, host);
    EXPECT_EQ(taken.problems.at(0).failure, platform::FileFailure::nameTaken);
    const auto changed = app::WriteTones({{source, fourth, false, *plan.halved}}, host);
    EXPECT_EQ(changed.problems.at(0).failure, platform::FileFailure::changed);
    host.goesOn = false;
    EXPECT_TRUE(app::WriteTones({{source, fourth, false, plan.whole}}, host).cancelled);
    EXPECT_FALSE(std::filesystem::exists(fourth));
    EXPECT_EQ(support::ReadBytes(third).size(), plan.whole.size);
}

TEST_F(Tones, WithoutTheConverterATuneSaysSoInItsWords)
{
    const std::string tune = midi::File(midi::At(0, {0x90, 60, 100}) + midi::At(125, {0x80, 60, 0}));

    const app::TonePlan plan = app::PlanTone(Add("t.mid", tune), {});

    EXPECT_EQ(plan.problem, (app::ToneProblem{StringId::toneNotConverted, "Smf2Smaf.dll was not found."}));
}

TEST_F(Tones, ToBePlayedASmafFileBecomesTheNotesOrTheSoundThatItHolds)
{
    const app::Playable notes = app::PrepareToPlay(Add("a.mmf", Bytes(golden::kHandyPhone)));
    const app::Playable sound = app::PrepareToPlay(Add("b.mmf", Bytes(golden::kAudio)));
    const app::Playable broken = app::PrepareToPlay(Add("c.mmf", "MMMD"));

    ASSERT_TRUE(notes.isTemporary && notes.kind == PlayKind::midi);
    const std::string midi = support::ReadBytes(notes.path);
    const score::MidiFile file =
        score::ReadMidi({reinterpret_cast<const std::uint8_t*>(midi.data()), midi.size()});
    std::vector<std::pair<unsigned, std::uint64_t>> played;
    for (const score::MidiEvent& event : file.events) {
        if (event.kind == score::MidiEventKind::noteOn)
            played.emplace_back(event.first, event.tick);
    }
    EXPECT_THAT(played, ElementsAre(testing::Pair(60, 0), testing::Pair(64, 500), testing::Pair(67, 1000),
                                    testing::Pair(72, 1500)));
    EXPECT_EQ(file.end, 2500U);
    ASSERT_EQ(sound.kind, PlayKind::wave);
    const app::ToneFacts heard = app::ReadToneFacts(sound.path);
    EXPECT_TRUE(heard.suits && heard.wave.sampleRate == 8000 && heard.milliseconds == 2);
    EXPECT_EQ(broken.problem.text, StringId::toneNotSmaf);
}

TEST_F(Tones, DrumsGoToTheirChannelAndTheRestMakesRoom)
{
    score::SmafFile file;
    score::SmafScoreTrack track;
    using Kind = score::SmafEventKind;
    track.events = {{0, 0, 0, Kind::control, 3, 0, 0x7D},
                    {0, 25, 0, Kind::note, 3, 38, 90},
                    {25, 25, 0, Kind::note, 9, 60, 91}};
    file.scores = {track};

    const auto bytes = score::SmafAsMidi(file);
    std::map<unsigned, unsigned> keys;
    for (const score::MidiEvent& event : score::ReadMidi(bytes).events) {
        if (event.kind == score::MidiEventKind::noteOn)
            keys[event.channel] = event.first;
    }
    EXPECT_THAT(keys, ElementsAre(testing::Pair(9, 38), testing::Pair(10, 60)));
}

TEST_F(Tones, TheSystemsOwnSoundFontComesFirst)
{
    const std::string fonts = services.folder.Path("sf2");
    std::filesystem::create_directories(fonts);
    EXPECT_EQ(app::FindSoundFont({fonts, services.folder.Path("none")}), "");
    EXPECT_THAT(app::PlayersFor(PlayKind::midi, "/a.mid", ""), IsEmpty());
    for (const char* name : {"readme.txt", "Big.SF2", "default-GM.sf3", "a.sf2"})
        WriteBytes(fonts + "/" + name, "");

    EXPECT_EQ(app::FindSoundFont({services.folder.Path("none"), fonts}), fonts + "/default-GM.sf3");
    EXPECT_EQ(app::PlayersFor(PlayKind::midi, "/a.mid", "/f.sf2").at(0).program, "fluidsynth");
}
