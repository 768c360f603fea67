// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CChipControls: which control and program changes of a MIDI file a sound chip follows.
//
// Banks are chosen later, by the voice bank, so that bank selects are never passed on. Of the parameters only
// the bend's range is known: its selection is written once a channel, before its first value.
#pragma once

#include "score/arrangement.h"

namespace score
{

class CChipControls
{
public:
    // `changes` and `report` outlive this.
    CChipControls(std::vector<ChipChange>& target, ArrangementReport& counts)
        : changes(target), report(counts)
    {
    }

    void Control(const MidiEvent& event, std::uint32_t time);
    void Program(const MidiEvent& event, std::uint32_t time);
    void Ignore(Ignored kind) { ++report.ignored[static_cast<std::size_t>(kind)]; }
    // Volume and expression of the channel, multiplied.
    std::uint32_t Loudness(std::uint8_t channel) const
    {
        return std::uint32_t{channels[channel].volume} * channels[channel].expression;
    }

private:
    struct Channel {
        std::uint8_t volume = 100;
        std::uint8_t expression = 127;
        std::uint8_t parameterHigh = 127;  // 127 and 127: none is selected
        std::uint8_t parameterLow = 127;
        bool isRegistered = true;
        bool hasBendRange = false;  // the chip's selection is the bend's range
    };

    void Parameter(const MidiEvent& event, std::uint32_t time);
    void Reset(Channel& channel);

    std::vector<ChipChange>& changes;
    ArrangementReport& report;
    std::array<Channel, 16> channels;
};

}  // namespace score
