// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CScreenAwake: keeps the desktop from dimming and locking the screen as long as it lives.
//
// Asks the desktop's screen saver service without waiting; where there is none, nothing happens.
#pragma once

#include <QObject>

namespace ui
{

class CScreenAwake : public QObject
{
    Q_OBJECT

public:
    // `reason` is for people.
    explicit CScreenAwake(const QString& reason, QObject* parent = nullptr);
    ~CScreenAwake() override;

private:
    uint cookie = 0;
    bool held = false;
};

}  // namespace ui
