// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "score/smaf_summary.h"

#include <algorithm>

namespace score
{

namespace
{

// Collects the notes of all tracks, on one scale of time.
class CNotes
{
public:
    template <class Track> void Add(const Track& track)
    {
        const std::uint64_t base = SmafBaseMilliseconds(track.timeBase);
        std::array<bool, 16> used{};
        for (const SmafEvent& event : track.events) {
            if (event.kind == SmafEventKind::note) {
                begins.push_back(event.time * base);
                ends.push_back((event.time + event.gate) * base);
                used[event.channel & 0x0F] = true;
            }
        }
        channels += static_cast<std::size_t>(std::ranges::count(used, true));
        milliseconds = std::max(milliseconds, track.end * base);
    }

    // A note that ends when another begins does not sound with it.
    std::size_t Polyphony()
    {
        std::ranges::sort(begins);
        std::ranges::sort(ends);
        std::size_t most = 0;
        for (std::size_t begun = 0, ended = 0; begun < begins.size(); ++begun) {
            while (ends[ended] <= begins[begun] && ended < begun) {
                ++ended;
            }
            most = std::max(most, begun + 1 - ended);
        }
        return most;
    }

    std::size_t Count() const { return begins.size(); }

    std::uint64_t milliseconds = 0;
    std::size_t channels = 0;

private:
    std::vector<std::uint64_t> begins;
    std::vector<std::uint64_t> ends;
};

}  // namespace

SmafSummary SummariseSmaf(const SmafFile& file)
{
    SmafSummary summary;
    CNotes notes;
    for (const SmafScoreTrack& track : file.scores) {
        notes.Add(track);
        summary.waves += track.waves.size();
    }
    for (const SmafAudioTrack& track : file.audios) {
        notes.Add(track);
        summary.waves += track.waves.size();
    }
    const auto title = std::ranges::find(file.contents.options, "ST", &SmafOption::tag);
    summary.title = title == file.contents.options.end() ? "" : title->text;
    summary.milliseconds = notes.milliseconds;
    summary.notes = notes.Count();
    summary.channels = notes.channels;
    summary.polyphony = notes.Polyphony();
    return summary;
}

}  // namespace score
