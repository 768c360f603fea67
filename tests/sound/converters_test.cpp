// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "converter_stand_ins.h"
#include "platform_linux/dynamic_libraries.h"
#include "score/midi_builder.h"
#include "score/smaf_reader.h"
#include "sound/converted_names.h"
#include "sound/note_conversion.h"
#include "sound/smaf_conversion.h"
#include "sound/tune_conversion.h"
#include "support/test_services.h"

#include <fmt/format.h>
#include <gmock/gmock.h>

namespace
{

using midi::At;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class Converters : public testing::Test
{
protected:
    Converters()
    {
        script = {};
        services.utility.programFolder = services.folder.Path();
        services.folder.Make(platform::kVoiceBankFile, VoiceBank());
        platform::Os().libraries = &standIns;
    }

    static std::string VoiceBank(const std::string& sound = "124 0 {}",
                                 const std::string& more = "drums 125 0 0\nend\n")
    {
        std::string text = "Kelvo voice bank 1\n# a comment\n\n";
        for (int i = 0; i < 128; ++i)
            text += fmt::format("melody {} ", i) + fmt::format(fmt::runtime(sound), i) + " A name\r\n";
        return text + more;
    }

    // The names in the folder that were not there before, and the sizes of the files.
    std::string NewFiles() const
    {
        std::set<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(services.folder.Path())) {
            if (entry.path().filename() != platform::kVoiceBankFile && entry.path().filename() != "tune.Mid")
                names.insert(fmt::format("{}:{} ", entry.path().filename().string(), entry.file_size()));
        }
        return fmt::format("{}", fmt::join(names, ""));
    }

    support::TestServices services;
    CStandInLibraries standIns;
    platform_linux::CDynamicLibraries realLibraries;
    const std::string tune = services.folder.Make(
        "tune.Mid",
        midi::File(At(0, {0xC0, 14}) + At(0, {0xB0, 7, 90}) + At(0, {0x90, 60, 100}) + At(125, {60, 0}) +
                   At(0, {0x99, 36, 127}) + At(1, {36, 0}) + At(0, {0xD0, 5})));
};

TEST_F(Converters, NotesAreConvertedInTheOrderTold)
{
    sound::CNoteConversion notes;
    notes.Open(tune);
    EXPECT_TRUE(notes.IsReady());
    EXPECT_FALSE(notes.IsConverted());

    EXPECT_EQ(notes.ConvertBeside(), 1);

    EXPECT_TRUE(notes.IsConverted());
    EXPECT_EQ(script.calls, "DGSC");
    EXPECT_EQ(NewFiles(), "tune_Nc.LOG:5 tune_Nc.MID:4 ");
    EXPECT_EQ(support::ReadBytes(notes.Output()), "MThd");
}

TEST_F(Converters, AFailureAnywhereLeavesNoFile)
{
    struct Case {
        const char* what;
        std::function<void(CStandInLibraries&)> spoil;
        const char* trace;
    };
    const auto size = static_cast<unsigned>(support::ReadBytes(tune).size());
    const Case kCases[] = {
        {"no library", [](CStandInLibraries& libraries) { libraries.missingLibrary = "Nc.DLL"; }, ""},
        {"not detected", [](CStandInLibraries&) { script.detect = 1; }, ""},
        {"info refused", [](CStandInLibraries&) { script.setInfo = 3; }, "Set information error.\n"},
        {"an error", [](CStandInLibraries&) { script.convert = 4; }, "Ma2Nc convertion error \n"},
        {"more than there is room for", [size](CStandInLibraries&) { script.written = 2 * size + 1; },
         "Ma2Nc convertion error \n"},
        {"nothing", [](CStandInLibraries&) { script.written = 0; }, "Ma2Nc convertion error \n"},
    };
    for (const Case& test : kCases) {
        script = {};
        services.utility.trace.clear();
        standIns.missingLibrary.clear();
        test.spoil(standIns);
        sound::CNoteConversion notes;
        notes.Open(tune);

        EXPECT_EQ(notes.ConvertBeside(), 0) << test.what;
        EXPECT_FALSE(notes.IsConverted()) << test.what;
        EXPECT_EQ(NewFiles(), "") << test.what;
        EXPECT_EQ(services.utility.trace, test.trace) << test.what;
    }
}

TEST_F(Converters, ASourceThatIsGoneOrATargetThatCannotBeIsAFailure)
{
    sound::CNoteConversion notes;
    notes.Open(tune);
    EXPECT_EQ(notes.ConvertTo(services.folder.Path("none/out.mid"), ""), 0);
    std::filesystem::remove(tune);
    EXPECT_EQ(notes.ConvertBeside(), 0);
    EXPECT_EQ(services.utility.trace, "Can't open src file.\n");
    notes.Open(services.folder.Make("tune.midi", "MThd"));
    EXPECT_FALSE(notes.IsReady());
}

TEST_F(Converters, WithoutOneEntryPointNothingIsCalled)
{
    for (const char* missing : {"GetInfo", "SetInfo", "Reset", "Detect", "Convert", "GetLogSize", "GetLog"}) {
        standIns.missingEntry = missing;
        sound::CNoteConversion notes;
        platform::NoteConversionInfo info{};
        unsigned number = 0;

        EXPECT_FALSE(notes.IsLoaded()) << missing;
        EXPECT_THAT((std::vector{notes.GetInfo(&info), notes.SetInfo(&info), notes.Reset(),
                                 notes.Detect("", 0), notes.Convert("", 0, &info, &number, 4),
                                 notes.GetLogSize(&number), notes.GetLog(nullptr, 0)}),
                    testing::Each(8));
        EXPECT_EQ(script.calls, "") << missing;
    }
    standIns.missingEntry = "S2SConvert";
    EXPECT_FALSE(sound::CSmafConversion().IsLoaded());
    EXPECT_EQ(standIns.loaded, 0);
}

TEST_F(Converters, NamesThatAreTakenAreSteppedOver)
{
    struct Case {
        std::vector<std::string> taken;
        const char* source;
        const char* expected;
    };
    const Case kCases[] = {
        {{}, "tune.mid", "tune_Nc.MID tune_Nc.LOG"},
        {{"tune_Nc.MID", "tune_Nc1.MID"}, "tune.mid", "tune_Nc2.MID tune_Nc2.LOG"},
        {{"TUNE_nc.mid", "tune_NC1.Mid/"}, "tune.mid", "tune_Nc2.MID tune_Nc2.LOG"},
        {{"tune_Nc1.MID", "tune_Nc.LOG"}, "tune.mid", "tune_Nc.MID tune_Nc1.LOG"},
        {{"tune_Nc.MID"}, "tune_Nc.MID", "tune_Nc1.MID tune_Nc1.LOG"},
        {{}, "a.tune_Nc7.b.mid", "a.tune_Nc.MID a.tune_Nc.LOG"},
        {{}, "a.tune.mid", "a.tune_Nc.MID a.tune_Nc.LOG"},
        {{}, ".mid", "_Nc.MID _Nc.LOG"},
    };
    for (const Case& test : kCases) {
        const support::CTempFolder folder;
        for (const std::string& name : test.taken)
            name.ends_with('/') ? (void)std::filesystem::create_directory(folder.Path(name))
                                : (void)folder.Make(name, "");

        const sound::ConvertedNames names = sound::FindConvertedNames(folder.Path(), test.source);

        EXPECT_EQ(names.midi + " " + names.log, test.expected) << test.source;
    }
    EXPECT_EQ(sound::LogPathFor("/a.b/out"), "/a.b/out.LOG");
    EXPECT_EQ(sound::LogPathFor("out.LOG"), "out.LOG.LOG");
}

TEST_F(Converters, TheSmafFrontEndGivesTheLibrarysResult)
{
    char room[8];
    unsigned length = sizeof room;
    unsigned none = 0;
    std::string error;
    script.smaf = 1234;
    const sound::CSmafConversion smaf;

    EXPECT_EQ(smaf.S2SConvert("m", 1, room, &length, 6, 0, error), 1234);
    EXPECT_EQ(error, std::string(260, 'e'));
    EXPECT_EQ(script.calls, fmt::format("{}/6", VoiceBank().size()));

    script.calls.clear();
    EXPECT_EQ(smaf.S2SConvert(nullptr, 1, room, &length, 0, 0, error), 65535);
    EXPECT_EQ(smaf.S2SConvert("m", 0, room, &length, 0, 0, error), 65535);
    EXPECT_EQ(smaf.S2SConvert("m", 1, nullptr, &length, 0, 0, error), 65535);
    EXPECT_EQ(smaf.S2SConvert("m", 1, room, nullptr, 0, 0, error), 65535);
    EXPECT_EQ(smaf.S2SConvert("m", 1, room, &none, 0, 0, error), 65535);
    services.folder.Make(platform::kVoiceBankFile, "");
    length = sizeof room;
    EXPECT_EQ(smaf.S2SConvert("m", 1, room, &length, 0, 0, error), 65535);
    EXPECT_EQ(error + script.calls, "");
    standIns.missingLibrary = "Smf2Smaf.DLL";
    EXPECT_EQ(sound::CSmafConversion().S2SConvert("m", 1, room, &length, 0, 0, error), 65535);
    EXPECT_EQ(error, "Smf2Smaf.dll was not found.");
}

TEST_F(Converters, ALibraryThatClaimsTooMuchGivesNoTune)
{
    for (const unsigned written : {0u, 1'000'000u}) {
        script.written = written;
        EXPECT_EQ(sound::ConvertTune(tune).result, 65535);
        EXPECT_THAT(sound::ConvertTune(tune).smaf, IsEmpty());
    }
    script.written = 4;
    EXPECT_EQ(sound::ConvertTune(tune).smaf, "abcd");
    std::filesystem::remove(services.folder.Path(platform::kVoiceBankFile));
    EXPECT_EQ(sound::ConvertTune(tune).error, "The voice bank all_fm_0821.vma cannot be read.");
}

std::string Told(const score::SmafScoreTrack& track)
{
    std::string text;
    for (const score::SmafEvent& event : track.events)
        text += fmt::format("{}+{} {}.{} {} {}, ", event.time, event.gate, static_cast<int>(event.kind),
                            event.channel, event.first, event.second);
    return text;
}

TEST_F(Converters, ATuneBecomesARingToneThatPlaysTheSame)
{
    platform::Os().libraries = &realLibraries;

    const sound::Tune converted = sound::ConvertTune(tune);

    EXPECT_EQ(converted.error, "");
    EXPECT_THAT(converted.leftOut, ElementsAre("left out: 1 aftertouch event"));
    std::string error;
    const auto reading = score::ReadSmaf(midi::Bytes(converted.smaf), error);
    ASSERT_TRUE(reading) << error;
    const score::SmafScoreTrack& track = reading->file.scores.at(0);
    EXPECT_EQ(Told(track),
              "0+0 1.0 0 124, 0+0 1.0 32 0, 0+0 2.0 14 0, 0+0 1.0 7 90, 0+125 0.0 60 100, "
              "125+0 1.9 0 125, 125+0 1.9 32 0, 125+0 2.9 0 0, 125+0 1.9 7 100, 125+1 0.9 36 127, ");
    EXPECT_EQ(track.end, 126u);
    EXPECT_EQ(track.number, 5);
    EXPECT_EQ(track.channelStatus[0] * 100 + track.channelStatus[1] * 10 + track.channelStatus[9], 123);
}

TEST_F(Converters, ACrowdedTuneIsForTheChipWithMoreVoices)
{
    platform::Os().libraries = &realLibraries;
    std::string events;
    for (int key = 0; key < 40; ++key)
        events += At(0, {0x90, key, 100});
    const std::string crowd = services.folder.Make("crowd", midi::File(events + At(50, {0xB0, 7, 1})));
    const std::string ends = "40 notes without an end last to the end of the tune";

    EXPECT_THAT(sound::ConvertTune(crowd).smaf, HasSubstr("MTR\x06"));
    EXPECT_THAT(sound::ConvertTune(crowd).leftOut, ElementsAre(ends));
    EXPECT_THAT(sound::ConvertTune(crowd, platform::kSmafMa3).leftOut,
                ElementsAre(ends, "8 notes left out: more than 32 sound at once"));
}

TEST_F(Converters, AVoiceBankThatIsNotWholeIsRefused)
{
    platform::Os().libraries = &realLibraries;
    struct Case {
        std::string bank;
        const char* error;
    };
    const Case kCases[] = {
        {VoiceBank("1 2 3"), ""},
        {"Kelvo voice bank 2\nend\n", "The voice bank is none."},
        {VoiceBank().substr(0, 2000), "The voice bank is cut off."},
        {VoiceBank("124 0 {}", "end\n"), "The voice bank is damaged in line 132: a sound is missing."},
        {VoiceBank("124 0 128"), "The voice bank is damaged in line 4: there is no number of 0 to 127."},
        {VoiceBank("124 0x 1"), "The voice bank is damaged in line 4: there is no number of 0 to 127."},
        {VoiceBank("1 2 3\nmelody 0 1 2 3"),
         "The voice bank is damaged in line 5: the sound is not the next one."},
        {VoiceBank("1 2 3\nstrings 0"), "The voice bank is damaged in line 5: the word is not known."},
        {VoiceBank("1 2 3", "drums 1 2 3\ndrums 1 2 3\nend\n"),
         "The voice bank is damaged in line 133: the sound is not the next one."},
    };
    for (const Case& test : kCases) {
        services.folder.Make(platform::kVoiceBankFile, test.bank);
        const sound::Tune converted = sound::ConvertTune(tune);
        EXPECT_EQ(converted.error, test.error);
        EXPECT_EQ(converted.result, *test.error == '\0' ? 0 : platform::kSmafBadVoiceBank);
    }
}

TEST_F(Converters, TheRealLibrariesKeepToTheRoomTheyHave)
{
    platform::Os().libraries = &realLibraries;
    const std::string source = support::ReadBytes(tune);
    const sound::CNoteConversion notes;
    platform::NoteConversionInfo info{};
    std::string room(source.size() * 2, '\0');
    unsigned written = 0;
    const auto convert = [&](const std::string& bytes, int mode) {
        return notes.Convert(bytes.data(), static_cast<unsigned>(bytes.size()), room.data(), &written, mode);
    };
    notes.Reset();
    EXPECT_EQ(notes.GetInfo(&info), platform::kNoteBadCall);
    EXPECT_EQ(convert(source, 4), platform::kNoteBadCall);
    EXPECT_EQ(notes.SetInfo(&info), platform::kNoteBadInfo);
    EXPECT_EQ(notes.Detect("MThx", 4), platform::kNoteBadSource);
    EXPECT_EQ(notes.LogText(), "The source is not a MIDI file.\n");
    EXPECT_EQ(notes.Detect(source.data(), static_cast<unsigned>(source.size())), 0);
    EXPECT_EQ(notes.GetInfo(&info) + notes.SetInfo(&info), 0);
    EXPECT_EQ(convert(source, 3), platform::kNoteBadCall);
    EXPECT_EQ(convert(source, 4), 0);
    EXPECT_THAT(notes.LogLines(), ElementsAre("2 notes on 2 channels, at most 1 at once, 0:01",
                                              "left out: 1 aftertouch event"));
    // The ends that the source leaves out take more room than there is.
    std::string strikes = At(1, {0x90, 1, 1});
    for (int i = 0; i < 500; ++i)
        strikes += At(1, {1, 1});
    std::string other = strikes;
    other[1] = '\x91';
    const std::string endless = midi::Header(1, 2, 96) + midi::Track(strikes) + midi::Track(other);
    room.assign(endless.size() * 2, 'x');
    EXPECT_EQ(convert(endless, 4), platform::kNoteNoRoom);
    EXPECT_EQ(room, std::string(endless.size() * 2, 'x'));

    std::string error;
    std::string small(20, 'x');
    unsigned length = 10;
    EXPECT_EQ(sound::CSmafConversion().S2SConvert(source.data(), static_cast<unsigned>(source.size()),
                                                  small.data(), &length, 0, 0, error),
              platform::kSmafNoRoom);
    EXPECT_EQ(small, std::string(20, 'x'));
    EXPECT_THAT(error, StartsWith("The SMAF file is longer"));
}

}  // namespace
