// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CWindowKeeper: brings a window back to where it was left, and remembers where it is left: some seconds
// after it was moved, so that a program that is killed loses little, and when it is told to.
#pragma once

#include "app/window_place.h"

#include <QObject>
#include <QTimer>

class QMainWindow;
class QSplitter;

namespace ui
{

class CWindowKeeper : public QObject
{
    Q_OBJECT

public:
    // `panes`: its first width is that of the left pane. Both must outlive the object.
    CWindowKeeper(QMainWindow& kept, QSplitter& panes, std::string settingsFile);

    // Shows the window as it was left, on the screens that there are now.
    void Show();
    void Save();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QMainWindow& window;
    QSplitter& splitter;
    std::string file;
    app::WindowPlace place;
    QTimer saveTimer;
};

}  // namespace ui
