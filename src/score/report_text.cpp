// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "score/report_text.h"

#include <fmt/format.h>

namespace score
{

namespace
{

std::string Counted(std::uint64_t number, const char* one, const char* many)
{
    return fmt::format("{} {}", number, number == 1 ? one : many);
}

struct IgnoredText {
    Ignored kind;
    const char* one;
    const char* many;
};

constexpr IgnoredText kIgnoredTexts[] = {
    {Ignored::pressure, "aftertouch event", "aftertouch events"},
    {Ignored::bank, "bank select outside General MIDI", "bank selects outside General MIDI"},
    {Ignored::kit, "drum kit other than the standard one", "drum kits other than the standard one"},
    {Ignored::parameter, "parameter other than the bend's range", "parameters other than the bend's range"},
    {Ignored::control, "control that the chip does not know", "controls that the chip does not know"},
    {Ignored::exclusive, "system exclusive message", "system exclusive messages"},
    {Ignored::badTempo, "tempo that is none", "tempos that are none"},
    {Ignored::afterEnd, "event after 24 hours", "events after 24 hours"},
};

}  // namespace

const char* MidiErrorText(MidiError error)
{
    switch (error) {
    case MidiError::none:
        return "";
    case MidiError::notMidi:
        return "is not a MIDI file";
    case MidiError::badHeader:
        return "is cut off in the header of the MIDI file";
    case MidiError::badFormat:
        return "is a MIDI file of an unknown format";
    case MidiError::badDivision:
        return "is a MIDI file without a usable division of time";
    case MidiError::longNumber:
        return "is a damaged MIDI file: a number has more than four bytes";
    case MidiError::noTrack:
        return "is a MIDI file without a track";
    }
    return "";
}

std::vector<std::string> LossLines(const ArrangementReport& report)
{
    std::vector<std::string> lines;
    const auto add = [&](std::uint64_t number, const char* one, const char* many) {
        if (number > 0)
            lines.push_back(Counted(number, one, many));
    };
    const std::string more = fmt::format(": more than {} sound at once", report.voices);
    add(report.notesDropped, ("note left out" + more).c_str(), ("notes left out" + more).c_str());
    add(report.notesShortened, ("note shortened" + more).c_str(), ("notes shortened" + more).c_str());
    add(report.notesUnended, "note without an end lasts to the end of the tune",
        "notes without an end last to the end of the tune");
    add(report.notesTooLong, "note cut, of more than 2:19:48 hours", "notes cut, of more than 2:19:48 hours");
    for (const IgnoredText& text : kIgnoredTexts) {
        if (const std::uint32_t number = report.Count(text.kind); number > 0)
            lines.push_back("left out: " + Counted(number, text.one, text.many));
    }
    add(report.damagedTracks, "track is damaged, and taken up to there",
        "tracks are damaged, and taken up to there");
    add(report.otherSongs, "further song in the file left out", "further songs in the file left out");
    return lines;
}

std::string SummaryLine(const ArrangementReport& report)
{
    const std::uint64_t seconds = (report.milliseconds + 500) / 1000;
    return fmt::format("{} on {}, at most {} at once, {}:{:02}", Counted(report.notes, "note", "notes"),
                       Counted(report.ChannelCount(), "channel", "channels"), report.polyphony, seconds / 60,
                       seconds % 60);
}

}  // namespace score
