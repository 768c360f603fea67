// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/tone/tone_bar.h"

#include "ui/controls/button_ex.h"
#include "ui/icons.h"
#include "ui/theme.h"
#include "ui/tone/tone_text.h"

#include <QGridLayout>
#include <QLabel>
#include <QProgressBar>

#include <algorithm>

namespace ui
{

namespace
{

constexpr int kTick = 50;  // milliseconds
constexpr int kSteps = 1000;

}  // namespace

CToneBar::CToneBar(QWidget* parent)
    : QWidget(parent), button(new CButtonEx(this)), progress(new QProgressBar(this)), times(new QLabel(this)),
      message(new QLabel(this))
{
    button->setObjectName(QStringLiteral("play"));
    progress->setRange(0, kSteps);
    progress->setTextVisible(false);
    progress->setAccessibleName(Text(StringId::toneProgress));
    times->setTextFormat(Qt::PlainText);
    message->setObjectName(QStringLiteral("message"));
    message->setTextFormat(Qt::PlainText);
    message->setWordWrap(true);
    message->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, kGrid, 0, 0);
    grid->setHorizontalSpacing(2 * kGrid);
    grid->setVerticalSpacing(2 * kGrid);
    grid->setColumnStretch(1, 1);
    grid->addWidget(button, 0, 0);
    grid->addWidget(progress, 0, 1);
    grid->addWidget(times, 0, 2);
    grid->addWidget(message, 1, 0, 1, 3);
    ticks.setInterval(kTick);
    connect(&ticks, &QTimer::timeout, this, &CToneBar::ShowTime);
    connect(button, &QPushButton::clicked, this, &CToneBar::Toggle);
    connect(&player, &CTonePlayer::Changed, this, &CToneBar::Update);
    connect(&player, &CTonePlayer::Failed, this, &CToneBar::Say);
    Update();
    Leave();
}

QString CToneBar::Message() const
{
    return message->text();
}

void CToneBar::Show(const std::string& path, const app::ToneFacts& facts, StringId missing)
{
    if (path != file)
        player.Stop();
    file = path;
    duration = facts.milliseconds;
    setVisible(facts.kind != app::ToneKind::none);
    const bool isMissing = missing != StringId::none;
    button->setEnabled(facts.plays != app::PlayKind::nothing && !isMissing);
    QString text = ProblemText(facts.problem, facts);
    if (text.isEmpty() && isMissing)
        text = Text(missing);
    if (text.isEmpty() && facts.plays == app::PlayKind::nothing)
        text = Text(StringId::toneEmpty);
    Say(text);
    Update();
    if (isMissing)
        button->setToolTip(Text(missing));
}

void CToneBar::Toggle()
{
    if (player.IsPlaying())
        return player.Stop();
    Say({});
    player.Play(file);
}

void CToneBar::Update()
{
    const bool isPlaying = player.IsPlaying();
    button->setText(Text(isPlaying ? StringId::toneStop : StringId::tonePlay));
    button->setToolTip(Text(isPlaying ? StringId::toneStopTip : StringId::tonePlayTip));
    button->setIcon(ThemedIcon(isPlaying ? QStringLiteral("stop") : QStringLiteral("viewer-play")));
    if (isPlaying)
        ticks.start();
    else
        ticks.stop();
    ShowTime();
}

void CToneBar::ShowTime()
{
    const bool isKnown = duration > 0;
    progress->setVisible(isKnown);
    times->setVisible(isKnown);
    if (!isKnown)
        return;
    const std::uint64_t now = std::min(static_cast<std::uint64_t>(player.Milliseconds()), duration);
    progress->setValue(static_cast<int>(now * kSteps / duration));
    const QString all = DurationText(duration);
    times->setText(player.IsPlaying() ? Text(StringId::toneTimes, SecondsText(now / 1000), all) : all);
}

void CToneBar::Say(const QString& text)
{
    message->setText(text);
    message->setVisible(!text.isEmpty());
}

}  // namespace ui
