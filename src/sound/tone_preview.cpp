// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/tone_preview.h"

#include "score/smaf_to_midi.h"
#include "sound/adpcm.h"
#include "sound/wave_smaf.h"

#include <algorithm>
#include <map>

namespace sound
{

namespace
{

using score::SmafEvent;
using score::SmafEventKind;
using score::SmafWave;

constexpr std::uint64_t kLongestSeconds = 1800;
// Recordings may be started over and over; what would be added beyond so many samples is left out.
constexpr std::uint64_t kMostMixed = 500'000'000;

bool HasNotes(const score::SmafScoreTrack& track)
{
    return std::ranges::any_of(track.events,
                               [](const SmafEvent& event) { return event.kind == SmafEventKind::note; });
}

// Whether each note is the key that starts one of the track's own recordings.
bool StartsOnlyWaves(const score::SmafScoreTrack& track)
{
    return std::ranges::all_of(track.events, [&track](const SmafEvent& event) {
        return event.kind != SmafEventKind::note || event.first < track.waves.size();
    });
}

class CMixer
{
public:
    // Keys of a score count its recordings from 0, those of an audio track are their numbers.
    template <class Track> bool Add(const Track& track, unsigned firstKey)
    {
        const std::uint64_t base = score::SmafBaseMilliseconds(track.timeBase);
        for (const SmafEvent& event : track.events) {
            if (event.kind != SmafEventKind::note)
                continue;
            const unsigned id = event.first + 1U - firstKey;
            const auto wave = std::ranges::find(track.waves, id, &SmafWave::id);
            if (wave != track.waves.end() && !Mix(*wave, event.time * base, event.gate * base))
                return false;
        }
        decoded.clear();
        return true;
    }

    std::optional<Preview> Finish() const
    {
        if (samples.empty())
            return std::nullopt;
        return Preview{PcmAsWav(samples, rate), false};
    }

private:
    bool Mix(const SmafWave& wave, std::uint64_t start, std::uint64_t gate)
    {
        if (!IsMonoAdpcm(wave) || (rate != 0 && wave.rate != rate))
            return false;
        rate = wave.rate;
        const std::uint64_t most = kLongestSeconds * rate;
        const std::uint64_t begin = std::min(start * rate / 1000, most);
        if (!decoded.contains(wave.id))
            decoded[wave.id] = DecodeAdpcm(wave.data);
        const std::vector<std::int16_t>& sound = decoded[wave.id];
        const std::uint64_t count = std::min(
            {std::uint64_t{sound.size()}, (gate * rate + 999) / 1000, most - begin, kMostMixed - mixed});
        mixed += count;
        if (begin + count > samples.size())
            samples.resize(begin + count);
        for (std::uint64_t i = 0; i < count; ++i) {
            const int sum = samples[begin + i] + sound[i];
            samples[begin + i] = static_cast<std::int16_t>(std::clamp(sum, -32768, 32767));
        }
        return true;
    }

    std::vector<std::int16_t> samples;
    std::map<std::uint8_t, std::vector<std::int16_t>> decoded;  // of the track in work
    std::uint64_t mixed = 0;
    std::uint16_t rate = 0;
};

}  // namespace

bool IsOnlyRecordings(const score::SmafFile& file)
{
    return std::ranges::all_of(file.scores, StartsOnlyWaves);
}

std::optional<Preview> MakePreview(const score::SmafFile& file)
{
    if (!IsOnlyRecordings(file) && std::ranges::any_of(file.scores, HasNotes))
        return Preview{score::SmafAsMidi(file), true};
    CMixer mixer;
    const bool isMixed =
        std::ranges::all_of(file.audios, [&mixer](const auto& track) { return mixer.Add(track, 1); }) &&
        std::ranges::all_of(file.scores, [&mixer](const auto& track) { return mixer.Add(track, 0); });
    return isMixed ? mixer.Finish() : std::nullopt;
}

}  // namespace sound
