// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "score/midi_file.h"

#include "score/midi_clock.h"
#include "score/midi_track.h"

#include <algorithm>
#include <cstring>

namespace score
{

namespace
{

using Bytes = std::span<const std::uint8_t>;

constexpr std::size_t kChunkHead = 8;
constexpr std::size_t kHeaderBody = 6;

bool HasTag(Bytes bytes, const char* tag)
{
    return bytes.size() >= 4 && std::memcmp(bytes.data(), tag, 4) == 0;
}

std::uint32_t BigEndian(Bytes bytes)
{
    std::uint32_t value = 0;
    for (const std::uint8_t byte : bytes)
        value = (value << 8) | byte;
    return value;
}

// What stands in the "data" chunk of a RIFF file, or the bytes themselves where that is not what they are.
Bytes WithoutWrapper(Bytes bytes)
{
    if (bytes.size() < 12 || !HasTag(bytes, "RIFF") || !HasTag(bytes.subspan(8), "RMID"))
        return bytes;
    Bytes rest = bytes.subspan(12);
    while (rest.size() >= kChunkHead) {
        const std::size_t size = rest[4] | rest[5] << 8 | rest[6] << 16 | std::size_t{rest[7]} << 24;
        const Bytes body = rest.subspan(kChunkHead);
        if (HasTag(rest, "data"))
            return body.first(std::min(size, body.size()));
        rest = body.subspan(std::min(size + size % 2, body.size()));
    }
    return {};
}

// One chunk after the other, each cut at the end of the bytes. A header behind a track begins another file.
class CChunks
{
public:
    explicit CChunks(Bytes bytes) : rest(bytes) {}

    bool Next()
    {
        if (rest.size() < kChunkHead)
            return false;
        if (isTrack && HasTag(rest, "MThd"))
            return false;
        isTrack = HasTag(rest, "MTrk");
        const std::size_t size = BigEndian(rest.subspan(4, 4));
        rest = rest.subspan(kChunkHead);
        body = rest.first(std::min(size, rest.size()));
        rest = rest.subspan(body.size());
        isCut = body.size() < size;
        return true;
    }

    Bytes body;
    bool isTrack = false;
    bool isCut = false;

private:
    Bytes rest;
};

// Runs of the events that are each in order, as the ends of the runs.
using Runs = std::vector<std::size_t>;

// Merges two neighbouring runs at a time until one is left: n log k for k runs, in as much memory again.
void MergeRuns(std::vector<MidiEvent>& events, Runs runs)
{
    const auto before = [](const MidiEvent& a, const MidiEvent& b) { return a.tick < b.tick; };
    std::vector<MidiEvent> merged(runs.size() > 1 ? events.size() : 0);
    while (runs.size() > 1) {
        Runs longer;
        std::size_t start = 0;
        for (std::size_t i = 0; i < runs.size(); i += 2) {
            const std::size_t end = runs[std::min(i + 1, runs.size() - 1)];
            const auto at = [&](std::size_t place) {
                return events.begin() + static_cast<std::ptrdiff_t>(place);
            };
            std::merge(at(start), at(runs[i]), at(runs[i]), at(end),
                       merged.begin() + static_cast<std::ptrdiff_t>(start), before);
            longer.push_back(end);
            start = end;
        }
        events.swap(merged);
        runs.swap(longer);
    }
}

// Takes one track after the other; false when the file is to be refused.
class CTracks
{
public:
    explicit CTracks(MidiFile& target) : file(target) {}

    bool Take(const CChunks& chunk)
    {
        if (file.format == 2 && hasSong) {
            ++file.tracks;
            ++file.otherSongs;
            return true;
        }
        CMidiTrackReader reader(chunk.body, file);
        reader.Read();
        ++file.tracks;
        if (!reader.IsWhole() || (chunk.isCut && !reader.HasEndMarker()))
            ++file.damagedTracks;
        if (file.format == 2)
            ChooseSong(reader);
        file.end = std::max(file.end, reader.End());
        if (file.events.size() > (runs.empty() ? 0 : runs.back()))
            runs.push_back(file.events.size());
        return file.error == MidiError::none;
    }

    void Merge() { MergeRuns(file.events, std::move(runs)); }

private:
    void ChooseSong(const CMidiTrackReader& reader)
    {
        hasSong = reader.HasNotes();
        if (!hasSong) {
            file.events.clear();
            file.end = 0;
        }
    }

    MidiFile& file;
    Runs runs;
    bool hasSong = false;
};

MidiError ReadHeader(const CChunks& header, MidiFile& file)
{
    if (header.body.size() < kHeaderBody)
        return MidiError::badHeader;
    file.format = static_cast<std::uint16_t>(BigEndian(header.body.subspan(0, 2)));
    file.division = static_cast<std::uint16_t>(BigEndian(header.body.subspan(4, 2)));
    if (file.format > 2)
        return MidiError::badFormat;
    return CMidiClock::Knows(file.division) ? MidiError::none : MidiError::badDivision;
}

}  // namespace

MidiFile ReadMidi(std::span<const std::uint8_t> bytes)
{
    MidiFile file;
    const Bytes inner = WithoutWrapper(bytes);
    CChunks chunks(inner);
    if (!HasTag(inner, "MThd") || !chunks.Next()) {
        file.error = MidiError::notMidi;
        return file;
    }
    file.error = ReadHeader(chunks, file);
    CTracks tracks(file);
    while (file.error == MidiError::none && chunks.Next()) {
        if (chunks.isTrack && !tracks.Take(chunks))
            break;
    }
    if (file.error == MidiError::none && file.tracks == 0)
        file.error = MidiError::noTrack;
    if (file.error == MidiError::none)
        tracks.Merge();
    return file;
}

}  // namespace score
