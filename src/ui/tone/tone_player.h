// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CTonePlayer: plays one sound with a program of the system.
//
// The programs are looked up in PATH. The first one plays; where it fails, the next has its turn, and when
// none could, what the first one said is told. Only one sound of this process plays at a time. Nothing here
// waits: what takes time is done on another thread, and a stopped program is killed. At the end of the object
// its program ends as well.
#pragma once

#include "app/tone_playing.h"
#include "ui/words.h"

#include <QElapsedTimer>
#include <QObject>

class QProcess;

namespace ui
{

class CTonePlayer : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;
    ~CTonePlayer() override;

    // What the user is to install, if anything. Looks into some folders.
    static StringId Missing(app::PlayKind kind);

    void Play(const std::string& path);
    void Stop();
    bool IsPlaying() const { return isPlaying; }
    // Since the program was started.
    qint64 Milliseconds() const { return process ? clock.elapsed() : 0; }

    inline static std::vector<std::string> soundFontFolders = app::SoundFontFolders();

Q_SIGNALS:
    // It plays now, or does so no longer.
    void Changed();
    void Failed(const QString& why);

private:
    struct Prepared {
        app::Playable file;
        std::vector<app::PlayCommand> commands;
    };

    static Prepared Prepare(const std::string& path);
    void OnPrepared(Prepared what);
    void StartNext();
    void OnEnded(const QString& program, bool isGood);
    void Fail(const QString& why);

    Prepared prepared;
    std::size_t next = 0;  // command to be tried
    QString firstFailure;
    bool isPlaying = false;
    unsigned run = 0;  // counts calls of Play, so that answers to earlier ones are dropped
    QProcess* process = nullptr;
    QElapsedTimer clock;
};

}  // namespace ui
