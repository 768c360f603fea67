// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/tone/tone_player.h"

#include "platform/file_system.h"
#include "platform/services.h"
#include "ui/background.h"
#include "ui/display_text.h"
#include "ui/tone/tone_text.h"

#include <QFile>
#include <QPointer>
#include <QProcess>
#include <QStandardPaths>

#include <csignal>
#include <sys/prctl.h>
#include <utility>

namespace ui
{

namespace
{

// The one that plays.
QPointer<CTonePlayer> current;

bool IsInstalled(const app::PlayCommand& command)
{
    return !QStandardPaths::findExecutable(QString::fromStdString(command.program)).isEmpty();
}

QString LastLine(const QByteArray& text)
{
    const QList<QByteArray> lines = text.trimmed().split('\n');
    return Shown(lines.constLast().trimmed().toStdString());
}

void Remove(const app::Playable& file)
{
    if (file.isTemporary)
        platform::Os().files->DeleteFile(file.path);
}

}  // namespace

CTonePlayer::~CTonePlayer()
{
    disconnect();
    Stop();
}

StringId CTonePlayer::Missing(app::PlayKind kind)
{
    if (kind == app::PlayKind::nothing)
        return StringId::none;
    const bool isMidi = kind == app::PlayKind::midi;
    const auto players = app::PlayersFor(kind, {}, "any");
    if (std::ranges::none_of(players, IsInstalled))
        return isMidi ? StringId::toneNeedsFluidSynth : StringId::toneNeedsPlayer;
    return isMidi && app::FindSoundFont(soundFontFolders).empty() ? StringId::toneNeedsSoundFont
                                                                  : StringId::none;
}

CTonePlayer::Prepared CTonePlayer::Prepare(const std::string& path)
{
    Prepared what;
    what.file = app::PrepareToPlay(path);
    const std::string font =
        what.file.kind == app::PlayKind::midi ? app::FindSoundFont(soundFontFolders) : std::string();
    for (app::PlayCommand& command : app::PlayersFor(what.file.kind, what.file.path, font)) {
        if (IsInstalled(command))
            what.commands.push_back(std::move(command));
    }
    return what;
}

void CTonePlayer::Play(const std::string& path)
{
    Stop();
    if (current)
        current->Stop();
    current = this;
    isPlaying = true;
    InBackground(
        this, [path] { return Prepare(path); },
        [this, mine = ++run](Prepared what) {
            if (mine == run && isPlaying)
                OnPrepared(std::move(what));
            else
                Remove(what.file);
        });
    Q_EMIT Changed();
}

void CTonePlayer::OnPrepared(Prepared what)
{
    prepared = std::move(what);
    next = 0;
    firstFailure.clear();
    if (prepared.file.problem)
        return Fail(ProblemText(prepared.file.problem, {}));
    if (prepared.commands.empty())
        return Fail(Text(Missing(prepared.file.kind)));
    StartNext();
}

void CTonePlayer::StartNext()
{
    const app::PlayCommand& command = prepared.commands[next++];
    const QString program = QString::fromStdString(command.program);
    QStringList arguments;
    // Paths are bytes; this is the way back that QProcess goes forward.
    for (const std::string& argument : command.arguments)
        arguments.append(QFile::decodeName(QByteArray::fromStdString(argument)));
    process = new QProcess(this);
    // A player does not go on when this program is killed.
    process->setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
    process->setStandardOutputFile(QProcess::nullDevice());
    connect(process, &QProcess::finished, this, [this, program](int code, QProcess::ExitStatus status) {
        OnEnded(program, status == QProcess::NormalExit && code == 0);
    });
    connect(process, &QProcess::errorOccurred, this, [this, program](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            OnEnded(program, false);
    });
    clock.start();
    process->start(program, arguments);
}

void CTonePlayer::OnEnded(const QString& program, bool isGood)
{
    if (!isGood && firstFailure.isEmpty()) {
        const QString said = LastLine(process->readAllStandardError());
        firstFailure = said.isEmpty() ? Text(StringId::tonePlayerSilent, program)
                                      : Text(StringId::tonePlayerFailed, program, said);
    }
    process->deleteLater();
    process = nullptr;
    if (isGood)
        return Stop();
    if (next < prepared.commands.size())
        return StartNext();
    Fail(firstFailure);
}

void CTonePlayer::Fail(const QString& why)
{
    Stop();
    Q_EMIT Failed(why);
}

void CTonePlayer::Stop()
{
    if (!isPlaying)
        return;
    isPlaying = false;
    if (process) {
        process->disconnect(this);
        connect(process, &QProcess::finished, process, &QObject::deleteLater);
        process->kill();
        process = nullptr;
    }
    Remove(std::exchange(prepared, {}).file);
    if (current == this)
        current = nullptr;
    Q_EMIT Changed();
}

}  // namespace ui
