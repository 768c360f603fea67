// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CLinuxMessages: the suite's messages as signals on the D-Bus session bus.
//
// A message is the signal Message(s name, u wParam, x lParam) of the interface org.kelvo.Suite on the object
// /org/kelvo/Suite. The owner of a window class has the bus name org.kelvo.Window.CLASS and answers Raise()
// of the interface org.kelvo.Window on /org/kelvo/Window. Who has a class is settled by a locked file, which
// works without a bus too; the bus name is for the other programs of the suite, which may know only that.
//
// One thread, that of the user interface, with a QCoreApplication whose event loop runs the handlers.
#pragma once

#include "platform/shell.h"
#include "platform_linux/desktop/window_claim.h"

#include <QDBusConnection>
#include <QObject>
#include <map>

namespace platform_linux
{

class CLinuxMessages final : public QObject, public platform::CMessages
{
    Q_OBJECT

public:
    explicit CLinuxMessages(const QDBusConnection& sessionBus = QDBusConnection::sessionBus());
    ~CLinuxMessages() override;
    // Puts itself into platform::Os(), which it must outlive.
    void Install();

    // Called when another program asks for this one's window.
    std::function<void()> onRaise;

    std::uint32_t RegisterWindowMessage(const std::string& name) override;
    void Listen(std::uint32_t message, Handler handler) override;
    bool Broadcast(std::uint32_t message, std::uint32_t wParam, std::int64_t lParam) override;
    bool RegisterClass(const std::string& windowClass) override;
    bool FindWindow(const std::string& windowClass) override;
    bool BringToForeground(const std::string& windowClass) override;

private slots:
    void OnMessage(const QString& name, uint wParam, qlonglong lParam, const QDBusMessage& envelope);

private:
    bool IsNameElsewhere(const std::string& windowClass) const;

    QDBusConnection bus;
    CWindowClaims claims;
    std::vector<QString> busNames;  // those that we have
    bool isListening = false;
    std::map<std::uint32_t, std::string> names;
    std::map<std::uint32_t, std::vector<Handler>> handlers;
};

}  // namespace platform_linux
