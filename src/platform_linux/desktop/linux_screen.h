// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CLinuxScreen: pictures of windows, from the X display or through the desktop portal.
//
// In an X session the window is the foremost one by the window manager's list, and the picture is what the
// screen shows there. Elsewhere no program may look at others: the portal lets the user choose, and the file
// that it makes for this one picture is removed once it has been read.
#pragma once

#include "platform/screen.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QTimer>
#include <QVariantMap>

namespace platform_linux
{

class CLinuxScreen final : public QObject, public platform::CScreen
{
    Q_OBJECT

public:
    explicit CLinuxScreen(const QDBusConnection& sessionBus = QDBusConnection::sessionBus());

    bool ChooseWindow() override;
    void Capture(Taken done) override;

private slots:
    void OnResponse(uint response, const QVariantMap& results);

private:
    void AskPortal();
    void Finish(const platform::BitmapHandle& picture);

    QDBusConnection bus;
    std::uint32_t window = 0;  // 0 for the portal's choice
    Taken taken;
    QDBusServiceWatcher portalWatcher;
    QTimer patience;  // with a portal that never answers
    QString request;  // the portal's object for the question that is open
    int questions = 0;
};

}  // namespace platform_linux
