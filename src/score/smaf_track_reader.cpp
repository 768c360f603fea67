// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "score/smaf_track_reader.h"

#include "score/smaf_sequence.h"

#include <fmt/format.h>

#include <algorithm>

namespace score
{

namespace
{

// The two time bases, which have to be one.
std::uint8_t ReadBase(CSmafCursor& body)
{
    const std::uint8_t base = body.Byte();
    const std::uint8_t gateBase = body.Byte();
    if (body.IsGood() && (base != gateBase || SmafBaseMilliseconds(base) == 0)) {
        body.Fail(body.Offset() - 2, "the time bases are unknown or not the same");
    }
    return base;
}

SmafFormat ReadFormat(CSmafCursor& body)
{
    const auto format = static_cast<SmafFormat>(body.Byte());
    if (format == SmafFormat::compressed) {
        body.Fail(body.Offset() - 1, "the score track is compressed (format 1), which cannot be read");
    } else if (format > SmafFormat::mobile) {
        body.Fail(body.Offset() - 1, fmt::format("there is no track format {}", static_cast<int>(format)));
    }
    return format;
}

void ReadChannelStatus(CSmafCursor& body, SmafScoreTrack& track)
{
    if (track.format == SmafFormat::mobile) {
        std::ranges::copy(body.Block(track.channelStatus.size()), track.channelStatus.begin());
        return;
    }
    // Nibbles of key control (one bit), vibration and type, kept as the bytes that Mobile tracks have.
    const unsigned nibbles = body.Word();
    for (unsigned channel = 0; channel < 4; ++channel) {
        const unsigned nibble = nibbles >> (12 - 4 * channel);
        track.channelStatus[channel] = static_cast<std::uint8_t>(
            ((nibble & 8) != 0 ? 0x80 : 0x40) | ((nibble & 4) != 0 ? 0x20 : 0) | (nibble & 3));
    }
}

void SetForm(CSmafCursor& body, SmafWave& wave, SmafWaveKind kind, unsigned width)
{
    if (kind > SmafWaveKind::adpcm || width > 3) {
        body.Fail(body.Offset() - 1, "there is no such form of a wave");
    }
    wave.kind = kind;
    wave.bits = static_cast<std::uint8_t>(4 * (width + 1));
}

void TakeData(CSmafCursor& body, SmafWave& wave)
{
    const auto data = body.Block(body.Remaining());
    wave.data.assign(data.begin(), data.end());
}

std::vector<SmafWave> ReadStreamWaves(CSmafCursor body, CSmafChunkWalk& walk)
{
    std::vector<SmafWave> waves;
    while (!body.AtEnd()) {
        SmafOpenChunk chunk = walk.Open(body, 3);
        if (chunk.tag != "Mwa") {
            continue;
        }
        const unsigned form = chunk.body.Byte();
        SmafWave wave;
        wave.id = chunk.number;
        wave.stereo = (form & 0x80) != 0;
        SetForm(chunk.body, wave, static_cast<SmafWaveKind>(form >> 4 & 7), form & 0x0F);
        wave.rate = chunk.body.Word();
        TakeData(chunk.body, wave);
        waves.push_back(std::move(wave));
    }
    return waves;
}

// The form of all waves of an audio track.
SmafWave ReadWaveType(CSmafCursor& body)
{
    const unsigned type = body.Word();
    SmafWave form;
    form.stereo = (type & 0x8000) != 0;
    form.rate = SmafRate(type >> 8 & 0x0F);
    const unsigned kind = type >> 12 & 7;
    if (kind > 1 || form.rate == 0) {
        body.Fail(body.Offset() - 2, "there is no such type of a wave");
    }
    SetForm(body, form, kind == 1 ? SmafWaveKind::adpcm : SmafWaveKind::pcm, type >> 4 & 0x0F);
    return form;
}

void CheckOneSequence(CSmafCursor& body, int count)
{
    if (count != 1) {
        body.Fail("a track needs one sequence");
    }
}

}  // namespace

SmafScoreTrack ReadSmafScore(SmafOpenChunk& chunk, CSmafChunkWalk& walk)
{
    CSmafCursor& body = chunk.body;
    SmafScoreTrack track;
    track.number = chunk.number;
    track.format = ReadFormat(body);
    body.Byte();  // whether the sequence is one of several
    track.timeBase = ReadBase(body);
    ReadChannelStatus(body, track);
    int sequences = 0;
    while (!body.AtEnd()) {
        const SmafOpenChunk inner = walk.Open(body, 2);
        if (inner.tag == "Mtsu") {
            track.setup = ReadSmafSetup(inner.body, track.format);
        } else if (inner.tag == "Mtsq") {
            SmafSequence sequence = track.format == SmafFormat::mobile
                                        ? ReadMobileSequence(inner.body)
                                        : ReadHandyPhoneSequence(inner.body, SmafNotes::keys);
            track.events = std::move(sequence.events);
            track.exclusives = std::move(sequence.exclusives);
            track.end = sequence.end;
            ++sequences;
        } else if (inner.tag == "Mtsp") {
            track.waves = ReadStreamWaves(inner.body, walk);
        }
    }
    CheckOneSequence(body, sequences);
    return track;
}

SmafAudioTrack ReadSmafAudio(SmafOpenChunk& chunk, CSmafChunkWalk& walk)
{
    CSmafCursor& body = chunk.body;
    SmafAudioTrack track;
    track.number = chunk.number;
    if (body.Byte() != 0) {
        body.Fail(body.Offset() - 1, "there is no such format of an audio track");
    }
    body.Byte();  // whether the sequence is one of several
    SmafWave form = ReadWaveType(body);
    track.timeBase = ReadBase(body);
    int sequences = 0;
    while (!body.AtEnd()) {
        SmafOpenChunk inner = walk.Open(body, 2);
        if (inner.tag == "Atsq") {
            SmafSequence sequence = ReadHandyPhoneSequence(inner.body, SmafNotes::waves);
            track.events = std::move(sequence.events);
            track.end = sequence.end;
            ++sequences;
        } else if (inner.tag == "Awa") {
            form.id = inner.number;
            TakeData(inner.body, form);
            track.waves.push_back(form);
        }
    }
    CheckOneSequence(body, sequences);
    return track;
}

}  // namespace score
