// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Messages over a real message bus of the test's own. Two connections behave as two processes.
#include "platform/process.h"
#include "platform_linux/desktop/linux_messages.h"
#include "support/temp_folder.h"

#include <QCoreApplication>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QElapsedTimer>
#include <QProcess>
#include <gmock/gmock.h>
#include <set>
#include <unistd.h>

namespace
{

using platform_linux::CLinuxMessages;
using testing::ElementsAre;
using testing::IsEmpty;

class Messages : public testing::Test
{
protected:
    int argc = 1;
    char name[5] = "test";
    char* argv[2] = {name, nullptr};
    QCoreApplication application{argc, argv};
    support::CTempFolder folder;
    tests::CEnvironment environment{{{"XDG_RUNTIME_DIR", folder.Path()}}};
    QProcess daemon;
    QString address;
    std::vector<QString> connections;

    void SetUp() override
    {
        daemon.start("dbus-daemon", {"--session", "--nofork", "--print-address=1"});
        ASSERT_TRUE(daemon.waitForReadyRead(10'000)) << "dbus-daemon does not start";
        address = QString::fromUtf8(daemon.readLine()).trimmed();
    }
    void TearDown() override
    {
        for (const QString& connection : connections)
            QDBusConnection::disconnectFromBus(connection);
        daemon.kill();
        daemon.waitForFinished();
    }
    QDBusConnection Connect(const QString& to)
    {
        connections.push_back(QString("test-%1").arg(connections.size()));
        return QDBusConnection::connectToBus(to, connections.back());
    }
    // Runs the event loop until `done`, at most ten seconds.
    static bool RunUntil(const std::function<bool()>& done)
    {
        QElapsedTimer clock;
        for (clock.start(); !done() && clock.elapsed() < 10'000;)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 100);
        return done();
    }
};

TEST_F(Messages, ReachOthersUnderTheSameNameAndNotTheSender)
{
    CLinuxMessages sender(Connect(address));
    CLinuxMessages receiver(Connect(address));
    std::vector<std::pair<std::uint32_t, std::int64_t>> received;
    std::vector<std::string> ownOrForeign;
    const std::uint32_t close = receiver.RegisterWindowMessage("QRX_MESSAGE_WM_APPLET_CLOSE");
    receiver.Listen(close, [&](std::uint32_t w, std::int64_t l) {
        received.emplace_back(w, l);
        return 1;
    });
    const std::uint32_t load = receiver.RegisterWindowMessage("QRX_MESSAGE_WM_APPLET_LOAD");
    receiver.Listen(load, [&](std::uint32_t, std::int64_t) { return ownOrForeign.push_back("load"), 1; });
    sender.Listen(sender.RegisterWindowMessage("QRX_MESSAGE_WM_APPLET_CLOSE"),
                  [&](std::uint32_t, std::int64_t) { return ownOrForeign.push_back("own"), 1; });

    EXPECT_TRUE(sender.Broadcast(sender.RegisterWindowMessage("another"), 1, 1));
    EXPECT_TRUE(
        sender.Broadcast(sender.RegisterWindowMessage("QRX_MESSAGE_WM_APPLET_CLOSE"), 0xFFFFFFFF, INT64_MIN));
    EXPECT_TRUE(sender.Broadcast(close, 7, -2));
    EXPECT_FALSE(sender.Broadcast(0xC001, 1, 1));

    EXPECT_TRUE(RunUntil([&] { return received.size() == 2; }));
    EXPECT_THAT(received, ElementsAre(std::pair(0xFFFFFFFFU, INT64_MIN), std::pair(7U, std::int64_t{-2})));
    EXPECT_THAT(ownOrForeign, IsEmpty());
}

TEST_F(Messages, HaveNumbersOfTheirOwn)
{
    CLinuxMessages messages(Connect("unix:path=" + QString::fromStdString(folder.Path("none"))));
    std::set<std::uint32_t> numbers;
    for (int i = 0; i < 2'000; ++i)
        numbers.insert(messages.RegisterWindowMessage("name " + std::to_string(i)));

    EXPECT_EQ(numbers.size(), 2'000U);
    EXPECT_GE(*numbers.begin(), 0xC000U);
    EXPECT_LE(*numbers.rbegin(), 0xFFFFU);
    EXPECT_EQ(messages.RegisterWindowMessage("name 7"), messages.RegisterWindowMessage("name 7"));
}

TEST_F(Messages, GiveAWindowClassToOneProcessAtATime)
{
    for (const QString& bus : {address, "unix:path=" + QString::fromStdString(folder.Path("none"))}) {
        auto first = std::make_unique<CLinuxMessages>(Connect(bus));
        CLinuxMessages second(Connect(bus));

        EXPECT_FALSE(second.FindWindow("QorvelVellum"));
        EXPECT_TRUE(first->RegisterClass("QorvelVellum") && first->RegisterClass("QorvelVellum"));
        EXPECT_FALSE(first->FindWindow("QorvelVellum") || second.FindWindow("QorvelMobile"));
        EXPECT_TRUE(second.FindWindow("QorvelVellum"));
        EXPECT_FALSE(second.RegisterClass("QorvelVellum") || second.RegisterClass("no/class"));
        first.reset();
        EXPECT_TRUE(second.RegisterClass("QorvelVellum"));
    }
}

TEST_F(Messages, ForgetTheClassOfAKilledProcess)
{
    CLinuxMessages messages(Connect(address));
    tests::CChild owner([](const auto& step) {
        platform_linux::CWindowClaims claims;
        const bool claimed = claims.Claim("QorvelVellum");
        step();
        return claimed ? pause() : 1;
    });
    ASSERT_TRUE(owner.Await(1));
    const bool whileAlive = messages.FindWindow("QorvelVellum") && !messages.RegisterClass("QorvelVellum");

    owner.Kill();

    EXPECT_TRUE(whileAlive);
    EXPECT_TRUE(!messages.FindWindow("QorvelVellum") && messages.RegisterClass("QorvelVellum"));
}

TEST_F(Messages, BringTheOwnerOfAClassToTheForeground)
{
    CLinuxMessages owner(Connect(address));
    int raised = 0;
    owner.onRaise = [&] { ++raised; };
    ASSERT_TRUE(owner.RegisterClass("Qorvel-Vellum"));
    {
        CLinuxMessages other(Connect(address));
        EXPECT_FALSE(other.BringToForeground("QorvelMobile"));
        EXPECT_TRUE(other.BringToForeground("Qorvel-Vellum"));
        QDBusConnection::disconnectFromBus(connections.back());  // as the second program does, ending at once
    }

    EXPECT_TRUE(RunUntil([&] { return raised == 1; }));
    EXPECT_FALSE(owner.BringToForeground("Qorvel-Vellum"));
}

TEST_F(Messages, SurviveNonsenseFromTheBus)
{
    QDBusConnection stranger = Connect(address);
    CLinuxMessages receiver(Connect(address));
    std::vector<std::uint32_t> received;
    receiver.Listen(receiver.RegisterWindowMessage("known"), [&](std::uint32_t w, std::int64_t) {
        received.push_back(w);
        return 1;
    });
    const auto send = [&](const QVariantList& arguments) {
        QDBusMessage signal = QDBusMessage::createSignal("/org/kelvo/Suite", "org.kelvo.Suite", "Message");
        signal.setArguments(arguments);
        return stranger.send(signal);
    };

    EXPECT_TRUE(send({}) && send({"known"}) && send({1, 2, 3}) && send({"known", "1", "2"}) &&
                send({"unknown", 5U, qlonglong{6}}) && send({"known", 9U, qlonglong{0}}));

    EXPECT_TRUE(RunUntil([&] { return !received.empty(); }));
    EXPECT_THAT(received, ElementsAre(9U));
}

}  // namespace
