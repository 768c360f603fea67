// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "midi_builder.h"
#include "score/arrangement.h"
#include "score/midi_clock.h"
#include "score/report_text.h"

#include <fmt/format.h>
#include <gmock/gmock.h>

namespace
{

using midi::At;
using midi::Chunk;
using midi::File;
using midi::Header;
using midi::Tempo;
using midi::Track;
using score::MidiError;

// "START-END CHANNEL:KEY/VELOCITY" in units, of the notes that sound, then the losses.
std::string Played(const std::string& bytes, unsigned voices = score::kMa5Voices)
{
    const score::MidiFile file = score::ReadMidi(midi::Bytes(bytes));
    if (file.error != MidiError::none)
        return score::MidiErrorText(file.error);
    const score::Arrangement arrangement = score::Arrange(file, voices);
    std::string text;
    for (const score::ChipNote& note : arrangement.notes) {
        if (!note.isDropped)
            text +=
                fmt::format("{}-{} {}:{}/{} ", note.start, note.end, note.channel, note.key, note.velocity);
    }
    for (const std::string& line : score::LossLines(arrangement.report))
        text += "| " + line;
    return text;
}

const std::string kNote = At(0, {0x90, 60, 100}) + At(5, {0x80, 60, 0});
const std::string kPlayed = "0-5 0:60/100 ";

TEST(MidiFile, WhatIsOddAboutAFileLosesNoMoreThanItMust)
{
    const std::string inner = File(kNote);
    const std::string junk = Chunk("XTRA", "abc");
    const std::string damaged = "| 1 track is damaged, and taken up to there";
    const std::string rest(1000, '\x7F');
    struct Case {
        const char* what;
        std::string bytes;
        std::string expected;
    };
    const Case kCases[] = {
        {"plain", inner, kPlayed},
        {"wrapped",
         "RIFF" + std::string(4, '\0') + "RMIDodd \1" + std::string(4, '\0') + "\1data" +
             std::string("\xFF\xFF\xFF\x7F") + inner,
         kPlayed},
        {"wrapped, without data", "RIFF" + std::string(4, '\0') + "RMID", "is not a MIDI file"},
        {"a long header", Chunk("MThd", std::string("\0\0\0\1\0\x7D", 6) + "more") + Track(kNote), kPlayed},
        {"a short header", Chunk("MThd", "\1\1\1\1\1"), "is cut off in the header of the MIDI file"},
        {"other chunks", Header(0, 1, 125) + junk + Track(kNote) + junk, kPlayed},
        {"too many tracks told", Header(1, 0xFFFF, 125) + Track(kNote), kPlayed},
        {"too few tracks told", Header(1, 0, 125) + Track("") + Track(kNote), kPlayed},
        {"a second file behind", inner + inner, kPlayed},
        {"no track", Header(1, 1, 125) + junk, "is a MIDI file without a track"},
        {"format 3", Header(3, 1, 125) + Track(kNote), "is a MIDI file of an unknown format"},
        {"division 0", Header(0, 1, 0) + Track(kNote), "is a MIDI file without a usable division of time"},
        {"26 frames", Header(0, 1, 0xE602) + Track(kNote),
         "is a MIDI file without a usable division of time"},
        {"no ticks a frame", Header(0, 1, 0xE700) + Track(kNote),
         "is a MIDI file without a usable division of time"},
        {"cut off", Header(0, 1, 125) + Chunk("MTrk", kNote + "\1", 50), kPlayed + damaged},
        {"cut off behind its end", Header(0, 1, 125) + Chunk("MTrk", kNote + midi::kEnd, 50), kPlayed},
        {"without an end", Header(0, 1, 125) + Chunk("MTrk", kNote), kPlayed},
        {"bytes behind the end", Header(0, 1, 125) + Chunk("MTrk", kNote + midi::kEnd + rest), kPlayed},
        {"data without a status", File(At(0, {60, 100}) + kNote), damaged},
        {"an exclusive that is too long", File(kNote + At(0, {0xF0, 0x70, 1})), kPlayed + damaged},
        {"a text that is too long", File(kNote + At(0, {0xFF, 1, 0x8F, 0x7F})), kPlayed + damaged},
        {"a number of five bytes", File(kNote + "\x81\x80\x80\x80" + At(0, {0x90, 1, 1})),
         "is a damaged MIDI file: a number has more than four bytes"},
        {"running status", File(At(0, {0x90, 60, 100}) + At(5, {60, 0})), kPlayed},
        {"running on behind others",
         File(At(0, {0x90, 60, 100}) + At(0, {0xFF, 1, 1, 'x'}) + At(0, {0xF0, 1, 0xF7}) + At(5, {60, 0})),
         kPlayed + "| left out: 1 system exclusive message"},
        {"an exclusive in pieces",
         File(At(0, {0xF0, 1, 0x41}) + At(3, {0xF7, 2, 1, 0xF7}) + At(0, {0xF7, 1, 0xF8})),
         "| left out: 1 system exclusive message"},
        {"system messages", File(At(0, {0xF2, 1, 2}) + At(0, {0xF8}) + kNote), kPlayed},
        {"values of 255", File(At(0, {0x90, 60, 255}) + At(5, {0x80, 60, 255})), "0-5 0:60/127 "},
        {"no tempo", File(Tempo(0, 0) + At(0, {0xFF, 0x51, 2, 1, 1}) + kNote),
         kPlayed + "| left out: 2 tempos that are none"},
        {"songs", Header(2, 3, 125) + Track(Tempo(9, 1)) + Track(kNote) + Track(kNote),
         kPlayed + "| 1 further song in the file left out"},
        {"a day of silence", File(kNote + At(0x0FFFFFFF, {0x90, 1, 1}) + kNote),
         kPlayed + "| left out: 3 events after 24 hours"},
        {"a tempo in another track",
         Header(1, 2, 125) + Track(At(0, {0x90, 60, 100}) + At(6, {60, 0})) +
             Track(Tempo(0, 500'000) + Tempo(2, 1'000'000)),
         "0-10 0:60/100 "},
    };
    for (const Case& test : kCases)
        EXPECT_EQ(Played(test.bytes), test.expected) << test.what;
}

TEST(MidiFile, EveryPrefixIsReadOrRefused)
{
    const std::string whole = File(kNote + Tempo(3, 400'000) + At(1, {0xF0, 3, 1, 2, 0xF7}) + kNote);
    for (std::size_t size = 0; size < whole.size(); ++size) {
        const score::MidiFile file = score::ReadMidi(midi::Bytes(whole).first(size));
        EXPECT_LE(file.events.size(), 6u);
        EXPECT_EQ(file.error == MidiError::none, size >= 22) << size;
    }
}

TEST(MidiClock, TwoHoursOfTemposEndWithinHalfAUnit)
{
    score::CMidiClock clock(480);
    std::uint64_t tick = 0;
    std::uint64_t exact = 0;  // microseconds times 480
    for (std::uint32_t i = 0; i < 20'000; ++i) {
        const std::uint32_t tempo = 300'001 + i * 37 % 400'003;
        clock.SetTempo(tempo);
        tick += 317;
        exact += std::uint64_t{317} * tempo;
        clock.Advance(tick);
        const std::uint64_t twice = 2 * clock.Units(4) * 480 * 4000;
        ASSERT_LE(twice > 2 * exact ? twice - 2 * exact : 2 * exact - twice, 480u * 4000) << i;
    }
    EXPECT_GT(exact / 480, 6'000'000'000u);
}

TEST(MidiClock, TimeCodesCountFramesWhateverTheTempo)
{
    struct Case {
        std::uint16_t division;
        std::uint64_t ticks;
    };
    // The ticks of 1001 seconds.
    for (const auto& [division, ticks] : {Case{0xE850, 1001 * 24 * 80}, Case{0xE728, 1001 * 25 * 40},
                                          Case{0xE364, 1000 * 30 * 100}, Case{0xE204, 1001 * 30 * 4}}) {
        score::CMidiClock clock(division);
        clock.SetTempo(1);
        clock.Advance(ticks);
        EXPECT_EQ(clock.Units(1), 1'001'000u) << division;
    }
}

TEST(Arrangement, NotesArePairedFirstInFirstOut)
{
    const std::string on = At(0, {0x90, 60, 100});
    const std::string off = At(10, {0x80, 60, 0});
    struct Case {
        const char* what;
        std::string events;
        std::string expected;
    };
    const Case kCases[] = {
        {"struck again before its end", on + At(4, {0x90, 60, 90}) + off + off, "0-4 0:60/100 4-24 0:60/90 "},
        {"two at once", on + on + off,
         "0-1 0:60/100 0-10 0:60/100 | 1 note without an end lasts to the end of the tune"},
        {"an end without a note", off + on + off, "10-20 0:60/100 "},
        {"without an end", on + At(3, {0xB0, 7, 1}),
         "0-3 0:60/100 | 1 note without an end lasts to the end of the tune"},
        {"without a length", on + At(0, {0x80, 60, 0}), "0-1 0:60/100 "},
        {"channels apart", on + At(0, {0x91, 60, 9}) + off,
         "0-10 0:60/100 0-10 1:60/9 | 1 note without an end lasts to "
         "the end of the tune"},
        {"of hours", on + At(2'100'000, {0x80, 60, 0}),
         "0-2097151 0:60/100 | 1 note cut, of more than 2:19:48 hours"},
    };
    for (const Case& test : kCases)
        EXPECT_EQ(Played(File(test.events)), test.expected) << test.what;
}

TEST(Arrangement, TheQuietestGivesWayButDrumsAndTheNewestStay)
{
    const auto on = [](int wait, int channel, int key, int velocity) {
        return At(static_cast<std::uint32_t>(wait), {0x90 | channel, key, velocity});
    };
    const std::string ends = At(9, {0x80, 1, 0}) + At(0, {0x80, 2, 0}) + At(0, {0x80, 3, 0}) +
                             At(0, {0x89, 1, 0}) + At(0, {0x89, 2, 0}) + At(0, {0x89, 3, 0});
    struct Case {
        const char* what;
        std::string events;
        std::string expected;
    };
    const Case kCases[] = {
        {"the quietest", on(0, 0, 1, 50) + on(1, 0, 2, 40) + on(1, 0, 3, 1),
         "0-11 0:1/50 1-2 0:2/40 2-11 0:3/1 | 1 note shortened: more than 2 sound at once"},
        {"the oldest of equals", on(0, 0, 1, 50) + on(1, 0, 2, 50) + on(1, 0, 3, 50),
         "0-2 0:1/50 1-11 0:2/50 2-11 0:3/50 | 1 note shortened: more than 2 sound at once"},
        {"one that begins together", on(0, 0, 1, 50) + on(0, 0, 2, 60) + on(0, 0, 3, 1),
         "0-9 0:2/60 0-9 0:3/1 | 1 note left out: more than 2 sound at once"},
        {"a drum stays", on(0, 9, 1, 10) + on(1, 0, 2, 100) + on(1, 0, 3, 1),
         "0-11 9:1/10 1-2 0:2/100 2-11 0:3/1 | 1 note shortened: more than 2 sound at once"},
        {"of drums the quietest", on(0, 9, 1, 20) + on(1, 9, 2, 10) + on(1, 9, 3, 1),
         "0-11 9:1/20 1-2 9:2/10 2-11 9:3/1 | 1 note shortened: more than 2 sound at once"},
        {"by its channel's volume",
         At(0, {0xB1, 7, 10}) + on(0, 0, 1, 50) + on(1, 1, 2, 127) + on(1, 0, 3, 1) + At(9, {0x81, 2, 0}) +
             At(0, {0x80, 1, 0}) + At(0, {0x80, 3, 0}),
         "0-11 0:1/50 1-2 1:2/127 2-11 0:3/1 | 1 note shortened: more than 2 sound at once"},
        {"none when one has just ended, then one",
         on(0, 0, 1, 50) + on(0, 0, 2, 50) + At(5, {0x80, 1, 0}) + on(0, 0, 3, 50) + on(1, 1, 4, 1),
         "0-5 0:1/50 0-6 0:2/50 5-15 0:3/50 6-15 1:4/1 | 1 note shortened: more than 2 sound at once"
         "| 1 note without an end lasts to the end of the tune"},
    };
    for (const Case& test : kCases)
        EXPECT_EQ(Played(File(test.events + ends), 2), test.expected) << test.what;
}

TEST(Arrangement, OnlyWhatTheChipKnowsIsPassedOn)
{
    const auto control = [](int number, int value, int channel = 0) {
        return At(0, {0xB0 | channel, number, value});
    };
    const std::string passed = control(1, 9) + control(7, 8) + control(10, 7) + control(11, 6) +
                               control(64, 127) + control(120, 0) + At(0, {0xC0, 5}) + At(0, {0xE0, 1, 2}) +
                               At(0, {0xF0, 7, 0x7F, 0x7F, 4, 1, 0, 90, 0xF7});
    const std::string range =
        control(101, 0) + control(100, 0) + control(6, 12) + control(38, 0) + control(6, 2);
    const std::string own = control(0, 0) + control(32, 0) + control(0, 0x79) + control(0, 0x78, 9) +
                            control(123, 0) + At(0, {0xC9, 0}) + At(0, {0xF0, 5, 0x7E, 0x7F, 9, 1, 0xF7});
    const std::string foreign = control(0, 1) + control(32, 3) + control(91, 40) + control(98, 1) +
                                control(99, 1) + control(6, 3) + At(0, {0xC9, 8}) + At(0, {0xA0, 1, 2}) +
                                At(0, {0xD0, 1}) + At(0, {0xF0, 2, 0x41, 0xF7});

    const score::MidiFile file = score::ReadMidi(midi::Bytes(File(passed + range + own + foreign)));
    const score::Arrangement arrangement = score::Arrange(file, score::kMa5Voices);

    std::string changes;
    for (const score::ChipChange& change : arrangement.changes)
        changes += fmt::format("{}:{}/{} ", static_cast<int>(change.event.kind), change.event.first,
                               change.event.second);
    EXPECT_EQ(changes, "3:1/9 3:7/8 3:10/7 3:11/6 3:64/127 3:120/0 4:5/0 6:1/2 8:0/90 "
                       "3:101/0 3:100/0 3:6/12 3:6/2 ");
    EXPECT_THAT(arrangement.report.ignored, testing::ElementsAre(2, 2, 1, 1, 1, 1, 0, 0));
}

}  // namespace
