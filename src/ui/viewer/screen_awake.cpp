// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/viewer/screen_awake.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QGuiApplication>
#include <QPointer>

namespace ui
{

namespace
{

QDBusMessage CallOf(const QString& method)
{
    return QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.ScreenSaver"),
                                          QStringLiteral("/org/freedesktop/ScreenSaver"),
                                          QStringLiteral("org.freedesktop.ScreenSaver"), method);
}

void UnInhibit(uint cookie)
{
    QDBusConnection::sessionBus().send(CallOf(QStringLiteral("UnInhibit")) << cookie);
}

}  // namespace

CScreenAwake::CScreenAwake(const QString& reason, QObject* parent) : QObject(parent)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    const QDBusMessage call = CallOf(QStringLiteral("Inhibit"))
                              << QGuiApplication::desktopFileName() << reason;
    // The answer may come after this object's end: then nobody needs it any more.
    auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(call), QCoreApplication::instance());
    connect(answer, &QDBusPendingCallWatcher::finished, answer, [answer, self = QPointer(this)] {
        const QDBusPendingReply<uint> reply = *answer;
        if (reply.isValid() && self) {
            self->cookie = reply.value();
            self->held = true;
        } else if (reply.isValid()) {
            UnInhibit(reply.value());
        }
        answer->deleteLater();
    });
}

CScreenAwake::~CScreenAwake()
{
    if (held)
        UnInhibit(cookie);
}

}  // namespace ui
