// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CLinuxDevices: volumes that come and go, told by UDisks2 on the system bus; where that is not there, by
// changes of the kernel's mount table.
//
// Whatever the bus says is asked for anew at each of its signals, once for a burst of them, and compared with
// what was there before; so nothing is lost when a signal is, and an answer that is not understood is
// nothing. A volume is a file system that is mounted. The mount table is followed in both cases: it knows the
// shares that UDisks2 does not.
#pragma once

#include "platform/devices.h"
#include "platform_linux/desktop/line_nodes.h"
#include "platform_linux/desktop/udisks.h"
#include "platform_linux/handle.h"

#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QSocketNotifier>
#include <QTimer>

#include <memory>

namespace platform_linux
{

class CLinuxDevices final : public QObject, public platform::CDevices
{
    Q_OBJECT

public:
    explicit CLinuxDevices(const QDBusConnection& systemBus = QDBusConnection::systemBus(),
                           std::string mountTable = "/proc/self/mountinfo", std::string deviceFiles = "/dev");
    ~CLinuxDevices() override;

    void Watch(Handler changed) override;
    void WatchPorts(std::function<void()> changed) override;
    // Whether UDisks2 has answered.
    bool HasBus() const { return busAnswered; }

private slots:
    void OnBusSignal();

private:
    void AskBus();
    void OnAnswer(const QDBusMessage& answer);
    void FollowMountTable();
    MountedFlags ReadMountTable() const;
    // Tells of the differences; they are volumes of the machine's own where `isVolume` is set.
    void Compare(MountedFlags& before, MountedFlags now, bool isVolume);

    QDBusConnection bus;
    std::string tableFile;
    std::string deviceFolder;
    Handler handler;
    QTimer settle;  // ends when a burst of signals is over
    std::unique_ptr<QDBusPendingCallWatcher> question;
    MountedFlags ofBus;
    MountedFlags ofTable;
    bool busAnswered = false;
    CHandle table;
    std::unique_ptr<QSocketNotifier> tableNotifier;
    std::unique_ptr<CLineNodes> lineNodes;
};

}  // namespace platform_linux
