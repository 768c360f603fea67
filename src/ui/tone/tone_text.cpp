// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/tone/tone_text.h"

#include "sound/tune_conversion.h"
#include "ui/display_text.h"

#include <QLocale>
#include <QTime>

#include <algorithm>

namespace ui
{

namespace
{

constexpr std::uint64_t kHour = 3600;

QString Number(std::uint64_t number)
{
    return QLocale().toString(static_cast<qulonglong>(number));
}

// Nothing for 0.
QString NumberOrNothing(std::uint64_t number)
{
    return number == 0 ? QString() : Number(number);
}

QString ChannelText(unsigned channels)
{
    switch (channels) {
    case 1:
        return Text(StringId::toneMono);
    case 2:
        return Text(StringId::toneStereo);
    default:
        return Counted(StringId::toneMoreChannels, channels);
    }
}

QString HandsetText(const app::ToneFacts& facts)
{
    return facts.suits ? Text(StringId::toneSuits) : Text(StringId::toneMustBe, WaveFormText(facts.wave));
}

}  // namespace

QString SecondsText(std::uint64_t seconds)
{
    const auto withinDay = static_cast<int>(seconds % (24 * kHour));
    const QTime time = QTime(0, 0).addSecs(withinDay);
    if (seconds < kHour)
        return QLocale().toString(time, QStringLiteral("m:ss"));
    return Number(seconds / kHour) + QLocale().toString(time, QStringLiteral(":mm:ss"));
}

QString DurationText(std::uint64_t milliseconds)
{
    return SecondsText(std::max<std::uint64_t>((milliseconds + 500) / 1000, 1));
}

QString WaveFormText(const sound::WavFormat& format)
{
    return Text(StringId::toneWaveForm, Number(format.bitsPerSample), ChannelText(format.channels),
                Number(format.sampleRate));
}

QString BytesOfCap(std::uint64_t bytes)
{
    return Text(StringId::toneSizeOf, Number(bytes), Number(sound::kLongestRingTone));
}

QString ProblemText(const app::ToneProblem& problem, const app::ToneFacts& facts)
{
    if (!problem)
        return {};
    if (problem.text == StringId::toneMustBe)
        return HandsetText(facts);
    return problem.detail.empty() ? Text(problem.text) : Text(problem.text, Shown(problem.detail));
}

QString CountText(const app::ToneCount& count)
{
    if (count.number == 0)
        return Text(count.text);
    const QString text = Counted(count.text, static_cast<qint64>(count.number));
    return text.contains(QStringLiteral("%2")) ? text.arg(Number(count.other)) : text;
}

QString LossText(const app::ToneLoss& loss)
{
    if (loss.words.empty())
        return CountText(loss.count);
    const QString words = Shown(loss.words);
    return loss.count.text == StringId::none ? words : Text(loss.count.text, words);
}

ToneLines LinesOf(const app::ToneFacts& facts)
{
    const bool isWav = facts.kind == app::ToneKind::wav;
    const bool isRead = facts.kind != app::ToneKind::none && !facts.problem;
    return {
        {StringId::toneTitle, Shown(facts.title)},
        {StringId::toneDuration, facts.milliseconds == 0 ? QString() : DurationText(facts.milliseconds)},
        {StringId::toneForm, isRead && isWav ? WaveFormText(facts.wave) : QString()},
        {StringId::toneChannels, NumberOrNothing(facts.channels)},
        {StringId::toneNotes, NumberOrNothing(facts.notes)},
        {StringId::tonePolyphony, NumberOrNothing(facts.polyphony)},
        {StringId::toneWaves, NumberOrNothing(facts.waves)},
        {StringId::toneHandset, isRead && isWav ? HandsetText(facts) : QString()},
    };
}

}  // namespace ui
