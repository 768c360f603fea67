// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CToneBar: plays the selected sound, shows how far it is, and says why it cannot.
#pragma once

#include "ui/tone/tone_player.h"

#include <QTimer>
#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;

namespace ui
{

class CToneBar : public QWidget
{
    Q_OBJECT

public:
    explicit CToneBar(QWidget* parent = nullptr);
    // Another file than the one that plays stops it. Hidden for what is no sound.
    void Show(const std::string& path, const app::ToneFacts& facts, StringId missing);
    // Nothing is selected any more.
    void Leave() { Show({}, {}, StringId::none); }

    bool IsPlaying() const { return player.IsPlaying(); }
    QPushButton* Button() const { return button; }
    QString Message() const;

private:
    void Toggle();
    void Update();
    void ShowTime();
    void Say(const QString& text);

    std::string file;
    std::uint64_t duration = 0;
    QPushButton* button;
    QProgressBar* progress;
    QLabel* times;
    QLabel* message;
    QTimer ticks;
    CTonePlayer player;
};

}  // namespace ui
