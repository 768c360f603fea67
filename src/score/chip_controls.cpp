// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "score/chip_controls.h"

namespace score
{

namespace
{

enum Controller : std::uint8_t {
    bankHigh = 0,
    modulation = 1,
    dataHigh = 6,
    volume = 7,
    pan = 10,
    expression = 11,
    bankLow = 32,
    dataLow = 38,
    sustain = 64,
    increment = 96,
    decrement = 97,
    otherParameterLow = 98,
    otherParameterHigh = 99,
    parameterLow = 100,
    parameterHigh = 101,
    soundOff = 120,
    resetControls = 121,
    notesOff = 123,
    mono = 126,
    poly = 127,
};

// General MIDI's banks: 0, those of its second edition, and the chip's own.
bool IsOwnBank(const MidiEvent& event)
{
    if (event.second == 0 || event.first == bankLow)
        return event.second == 0;
    return event.channel == kDrumChannel ? event.second == 0x78 || event.second == 0x7D
                                         : event.second == 0x79 || event.second == 0x7C;
}

MidiEvent ControlOf(const MidiEvent& event, std::uint8_t number, std::uint8_t value)
{
    MidiEvent control = event;
    control.first = number;
    control.second = value;
    return control;
}

}  // namespace

void CChipControls::Control(const MidiEvent& event, std::uint32_t time)
{
    Channel& channel = channels[event.channel];
    switch (event.first) {
    case bankHigh:
    case bankLow:
        if (!IsOwnBank(event))
            Ignore(Ignored::bank);
        return;
    case otherParameterLow:
    case otherParameterHigh:
    case parameterLow:
    case parameterHigh:
        channel.isRegistered = event.first >= parameterLow;
        (event.first % 2 == 0 ? channel.parameterLow : channel.parameterHigh) = event.second;
        return;
    case dataHigh:
    case dataLow:
    case increment:
    case decrement:
        Parameter(event, time);
        return;
    case volume:
        channel.volume = event.second;
        break;
    case expression:
        channel.expression = event.second;
        break;
    case resetControls:
        Reset(channel);
        break;
    case modulation:
    case pan:
    case sustain:
    case soundOff:
    case mono:
    case poly:
        break;
    case notesOff:
        return;  // the notes' own ends tell the same
    default:
        Ignore(Ignored::control);
        return;
    }
    changes.push_back({event, time});
}

void CChipControls::Parameter(const MidiEvent& event, std::uint32_t time)
{
    Channel& channel = channels[event.channel];
    if (channel.parameterHigh == 127 && channel.parameterLow == 127)
        return;
    const bool isBendRange = channel.isRegistered && channel.parameterHigh == 0 && channel.parameterLow == 0;
    if (!isBendRange || event.first != dataHigh) {
        if (!isBendRange || event.second != 0)
            Ignore(Ignored::parameter);
        return;
    }
    if (!channel.hasBendRange) {
        changes.push_back({ControlOf(event, parameterHigh, 0), time});
        changes.push_back({ControlOf(event, parameterLow, 0), time});
        channel.hasBendRange = true;
    }
    changes.push_back({event, time});
}

void CChipControls::Reset(Channel& channel)
{
    channel.expression = 127;
    channel.parameterHigh = channel.parameterLow = 127;
    channel.hasBendRange = false;
}

void CChipControls::Program(const MidiEvent& event, std::uint32_t time)
{
    if (event.channel != kDrumChannel)
        changes.push_back({event, time});
    else if (event.first != 0)
        Ignore(Ignored::kit);
}

}  // namespace score
