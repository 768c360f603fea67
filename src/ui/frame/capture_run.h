// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CCaptureRun: one capture of the screen, from the hiding of the main window to its return.
#pragma once

#include "platform/screen.h"

#include <QMainWindow>
#include <QPointer>
#include <QTimer>

#include <string>

namespace ui
{

class CCaptureRun : public QObject
{
    Q_OBJECT

public:
    // The time that the window system gets to show what lay below the window.
    static constexpr int kWaitMilliseconds = 1000;

    explicit CCaptureRun(QMainWindow& mainWindow) : QObject(&mainWindow), window(mainWindow) {}
    // Does nothing while a capture runs. The picture goes into `targetFolder`; an empty one takes none.
    void Start(const std::string& targetFolder, int waitMilliseconds = kWaitMilliseconds);
    bool IsRunning() const { return running; }

Q_SIGNALS:
    // There is no window to capture.
    void NothingToCapture();
    // The window is back; `path` is that of the new picture, empty when there is none.
    void Ended(const std::string& path);

private:
    void Take();
    void Save(const platform::BitmapHandle& picture);
    void End(const std::string& path);

    QMainWindow& window;
    QPointer<QWidget> focus;  // of before
    std::string folder;
    bool running = false;
};

}  // namespace ui
