// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// MockBus: a message bus of the test's own, with python-dbusmock standing in for a service on it.
#pragma once

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QProcess>

#include <gtest/gtest.h>

#include <functional>

namespace tests
{

class MockBus : public testing::Test
{
protected:
    int argc = 1;
    char name[5] = "test";
    char* argv[2] = {name, nullptr};
    QCoreApplication application{argc, argv};
    QProcess daemon;
    QProcess mock;
    QString address;

    void SetUp() override;
    void TearDown() override;
    static QDBusConnection Bus() { return QDBusConnection("mock bus"); }
    // Runs the event loop until `done`, at most twenty seconds.
    static bool RunUntil(const std::function<bool()>& done);
    // `words` end with the service's name, its first object and that object's interface.
    void StartMock(const QStringList& words);
    // Calls a method of the stand-in's own.
    static void Call(const QString& service, const QString& path, const QString& method,
                     const QVariantList& arguments);
    static QVariant NoMethods();
};

}  // namespace tests
