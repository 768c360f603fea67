// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/desktop/linux_devices.h"

#include "platform_linux/volumes.h"

#include <QDBusMessage>

#include <fcntl.h>
#include <fstream>
#include <sstream>
#include <utility>

namespace platform_linux
{

namespace
{

constexpr int kSettleMilliseconds = 100;

std::uint32_t UnitMask(const MountedFlags& among, const std::string& mountPoint)
{
    constexpr std::ptrdiff_t kUnits = 26;
    const auto position = std::distance(among.begin(), among.find(mountPoint));
    return position < kUnits ? 1U << position : 0;
}

}  // namespace

CLinuxDevices::CLinuxDevices(const QDBusConnection& systemBus, std::string mountTable,
                             std::string deviceFiles)
    : bus(systemBus), tableFile(std::move(mountTable)), deviceFolder(std::move(deviceFiles))
{
    settle.setSingleShot(true);
    settle.setInterval(kSettleMilliseconds);
    connect(&settle, &QTimer::timeout, this, &CLinuxDevices::AskBus);
}

CLinuxDevices::~CLinuxDevices() = default;

void CLinuxDevices::Watch(Handler changed)
{
    handler = std::move(changed);
    if (!handler || tableNotifier)
        return;
    FollowMountTable();
    if (!bus.isConnected())
        return;
    for (const char* signal : {"InterfacesAdded", "InterfacesRemoved"})
        bus.connect(kUdisks, kUdisksPath, kObjectManager, signal, this, SLOT(OnBusSignal()));
    bus.connect(kUdisks, QString(), QStringLiteral("org.freedesktop.DBus.Properties"),
                QStringLiteral("PropertiesChanged"), this, SLOT(OnBusSignal()));
    AskBus();
}

void CLinuxDevices::WatchPorts(std::function<void()> changed)
{
    lineNodes = changed ? std::make_unique<CLineNodes>(deviceFolder, std::move(changed)) : nullptr;
}

void CLinuxDevices::OnBusSignal()
{
    // A burst is waited out, but never for ever.
    if (!settle.isActive())
        settle.start();
}

void CLinuxDevices::AskBus()
{
    const QDBusMessage call = QDBusMessage::createMethodCall(kUdisks, kUdisksPath, kObjectManager,
                                                             QStringLiteral("GetManagedObjects"));
    question = std::make_unique<QDBusPendingCallWatcher>(bus.asyncCall(call));
    connect(question.get(), &QDBusPendingCallWatcher::finished, this,
            [this](QDBusPendingCallWatcher* answered) { OnAnswer(answered->reply()); });
}

void CLinuxDevices::OnAnswer(const QDBusMessage& answer)
{
    if (answer.type() != QDBusMessage::ReplyMessage)
        return;
    MountedFlags now = ReadManagedObjects(answer);
    if (std::exchange(busAnswered, true))
        Compare(ofBus, std::move(now), true);
    else
        ofBus = std::move(now);
}

void CLinuxDevices::FollowMountTable()
{
    ofTable = ReadMountTable();
    table = CHandle(open(tableFile.c_str(), O_RDONLY | O_CLOEXEC));
    if (!table.IsOpen())
        return;
    // The kernel calls a change of the table an exceptional condition of the file.
    tableNotifier = std::make_unique<QSocketNotifier>(table.Get(), QSocketNotifier::Exception);
    connect(tableNotifier.get(), &QSocketNotifier::activated, this,
            [this] { Compare(ofTable, ReadMountTable(), !busAnswered); });
}

MountedFlags CLinuxDevices::ReadMountTable() const
{
    std::ifstream file(tableFile);
    std::ostringstream text;
    text << file.rdbuf();
    MountedFlags mounted;
    for (const MountEntry& entry : ParseMountTable(text.str())) {
        const bool optical = entry.type == "iso9660" || entry.type == "udf";
        if (HoldsFiles(entry))
            mounted[entry.mountPoint] = optical ? platform::kMediaChange : 0;
    }
    return mounted;
}

void CLinuxDevices::Compare(MountedFlags& before, MountedFlags now, bool isVolume)
{
    std::vector<platform::DeviceChange> changes;
    for (const auto& [mountPoint, flags] : before) {
        if (!now.contains(mountPoint))
            changes.push_back(
                {platform::DeviceEvent::removed, isVolume, flags, UnitMask(before, mountPoint), mountPoint});
    }
    for (const auto& [mountPoint, flags] : now) {
        if (!before.contains(mountPoint))
            changes.push_back(
                {platform::DeviceEvent::arrived, isVolume, flags, UnitMask(now, mountPoint), mountPoint});
    }
    before = std::move(now);
    for (const platform::DeviceChange& change : changes) {
        if (handler)
            handler(change);
    }
}

}  // namespace platform_linux
