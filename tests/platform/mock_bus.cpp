// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mock_bus.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QElapsedTimer>

namespace tests
{

struct MockMethod {
    QString name, in, out, code;
};
QDBusArgument& operator<<(QDBusArgument& to, const MockMethod& method)
{
    to.beginStructure();
    to << method.name << method.in << method.out << method.code;
    to.endStructure();
    return to;
}
const QDBusArgument& operator>>(const QDBusArgument& from, MockMethod&)
{
    return from;
}

void MockBus::SetUp()
{
    qDBusRegisterMetaType<MockMethod>();
    qDBusRegisterMetaType<QList<MockMethod>>();
    daemon.start("dbus-daemon", {"--session", "--nofork", "--print-address=1"});
    ASSERT_TRUE(daemon.waitForReadyRead(10'000)) << "dbus-daemon does not start";
    address = QString::fromUtf8(daemon.readLine()).trimmed();
    QDBusConnection::connectToBus(address, "mock bus");
}

void MockBus::TearDown()
{
    QDBusConnection::disconnectFromBus("mock bus");
    for (QProcess* process : {&mock, &daemon}) {
        process->kill();
        process->waitForFinished();
    }
}

bool MockBus::RunUntil(const std::function<bool()>& done)
{
    QElapsedTimer clock;
    for (clock.start(); !done() && clock.elapsed() < 20'000;)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 100);
    return done();
}

void MockBus::StartMock(const QStringList& words)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DBUS_SYSTEM_BUS_ADDRESS", address);
    mock.setProcessEnvironment(environment);
    // The system's own interpreter has the package.
    mock.start("/usr/bin/python3", QStringList{"-m", "dbusmock", "--system"} + words);
    const QString service = words[words.size() - 3];
    ASSERT_TRUE(RunUntil([&service] { return Bus().interface()->isServiceRegistered(service).value(); }))
        << mock.readAllStandardError().toStdString();
}

void MockBus::Call(const QString& service, const QString& path, const QString& method,
                   const QVariantList& arguments)
{
    QDBusMessage call =
        QDBusMessage::createMethodCall(service, path, QStringLiteral("org.freedesktop.DBus.Mock"), method);
    call.setArguments(arguments);
    const QDBusMessage answer = Bus().call(call);
    ASSERT_EQ(answer.type(), QDBusMessage::ReplyMessage) << answer.errorMessage().toStdString();
}

QVariant MockBus::NoMethods()
{
    return QVariant::fromValue(QList<MockMethod>());
}

}  // namespace tests
