// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// ReadToneFacts: what there is to tell about a ring tone or a recording.
//
// The name says of which kind a file is, as everywhere in the window; a file that is not what its name says
// has a problem. Reads the file, so it belongs on a thread of its own.
#pragma once

#include "platform/string_ids.h"
#include "sound/wav_file.h"

#include <string>
#include <string_view>

namespace app
{

enum class ToneKind { none, midi, smaf, wav };

// By the name's extension: ".mid" and ".midi", ".mmf", ".wav".
ToneKind ToneKindOf(std::string_view name);

// What a computer needs to play it.
enum class PlayKind { nothing, midi, wave };

// A text that the user reads; %1 in it is `detail`, which is English.
struct ToneProblem {
    platform::StringId text = platform::StringId::none;
    std::string detail;
    explicit operator bool() const { return text != platform::StringId::none; }
    bool operator==(const ToneProblem&) const = default;
};

struct ToneFacts {
    ToneKind kind = ToneKind::none;
    PlayKind plays = PlayKind::nothing;
    ToneProblem problem;  // none when all the rest holds
    std::uint64_t milliseconds = 0;
    std::size_t channels = 0;   // of MIDI and SMAF: those with notes
    std::size_t notes = 0;      // of MIDI and SMAF, like the rest
    std::size_t polyphony = 0;  // the most notes that sound at once
    std::size_t waves = 0;      // recordings in it
    std::string title;
    sound::WavFormat wave;  // of WAV
    bool suits = false;     // of WAV: whether the handset's sound chip takes it
};

// Files longer than sixteen megabytes are not read but for their header.
constexpr std::uint64_t kLongestTone = 16U << 20;

ToneFacts ReadToneFacts(const std::string& path);
// Of the bytes of a SMAF file.
ToneFacts SmafFacts(std::string_view bytes);

}  // namespace app
