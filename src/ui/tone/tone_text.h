// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What the user reads about ring tones and recordings.
#pragma once

#include "app/tone_plan.h"
#include "ui/words.h"

#include <utility>
#include <vector>

namespace ui
{

// "1:05"
QString SecondsText(std::uint64_t seconds);
// To the nearest second; the shortest sound has one.
QString DurationText(std::uint64_t milliseconds);
// "16 bits, mono, 8,000 Hz"
QString WaveFormText(const sound::WavFormat& format);
QString BytesOfCap(std::uint64_t bytes);
QString ProblemText(const app::ToneProblem& problem, const app::ToneFacts& facts);
QString CountText(const app::ToneCount& count);
QString LossText(const app::ToneLoss& loss);

// Names and values of one sound, in the order in which they are shown. An empty value has no line.
using ToneLines = std::vector<std::pair<StringId, QString>>;
ToneLines LinesOf(const app::ToneFacts& facts);

}  // namespace ui
