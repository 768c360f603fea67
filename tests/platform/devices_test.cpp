// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Volumes that come and go, as a stand-in for UDisks2 tells it on a bus of the test's own.
#include "platform/mock_bus.h"
#include "platform_linux/desktop/linux_devices.h"
#include "support/temp_folder.h"

#include <QDBusMetaType>
#include <QDBusObjectPath>

namespace
{

using platform::DeviceEvent;
using platform_linux::CLinuxDevices;

const QString kService = QStringLiteral("org.freedesktop.UDisks2");
const QString kRoot = QStringLiteral("/org/freedesktop/UDisks2");

QVariantMap MountedAt(const char* path)
{
    const QList<QByteArray> points = *path ? QList<QByteArray>{QByteArray(path) + '\0'} : QList<QByteArray>{};
    return {{QStringLiteral("MountPoints"), QVariant::fromValue(points)}};
}

class Devices : public tests::MockBus
{
protected:
    support::CTempFolder folder;
    std::vector<platform::DeviceChange> told;

    void SetUp() override
    {
        MockBus::SetUp();
        qDBusRegisterMetaType<QList<QByteArray>>();
    }
    void StartMock()
    {
        MockBus::StartMock({"--is-object-manager", kService, kRoot, "org.freedesktop.UDisks2.Manager"});
    }
    static void Call(const QString& path, const QString& method, const QVariantList& arguments)
    {
        MockBus::Call(kService, path, method, arguments);
    }
    static void AddObject(const QString& path, const QString& interface, const QVariantMap& properties)
    {
        Call(kRoot, "AddObject", {path, interface, properties, NoMethods()});
    }
    static void AddDisk(const QString& name, const char* mountPoint, bool optical)
    {
        const QString drive = kRoot + "/drives/" + name;
        const QString block = kRoot + "/block_devices/" + name;
        AddObject(drive, kService + ".Drive", {{"Optical", optical}});
        AddObject(block, kService + ".Block", {{"Drive", QVariant::fromValue(QDBusObjectPath(drive))}});
        Call(block, "AddProperties", {kService + ".Filesystem", MountedAt(mountPoint)});
    }
    static void Mount(const QString& name, const char* mountPoint)
    {
        Call(kRoot + "/block_devices/" + name, "UpdateProperties",
             {kService + ".Filesystem", MountedAt(mountPoint)});
    }
    // Watches, with a mount table that never changes.
    void Watch(CLinuxDevices& devices)
    {
        devices.Watch([this](const platform::DeviceChange& change) { told.push_back(change); });
        // Whatever is asked of the bus after this has been answered after the first look.
        RunUntil([] { return true; });
    }
    void Expect(DeviceEvent event, const char* mountPoint, std::uint16_t flags, std::uint32_t mask)
    {
        ASSERT_TRUE(RunUntil([this] { return !told.empty(); })) << mountPoint;
        EXPECT_EQ(told[0].event, event);
        EXPECT_EQ(told[0].mountPoint, mountPoint);
        EXPECT_EQ(told[0].flags, flags) << mountPoint;
        EXPECT_EQ(told[0].unitMask, mask) << mountPoint;
        EXPECT_TRUE(told[0].isVolume);
        EXPECT_EQ(told.size(), 1U);
        told.clear();
    }
};

}  // namespace

TEST_F(Devices, CardsArriveAndLeaveAndADiscIsAChangeOfMedia)
{
    StartMock();
    AddDisk("sda", "/", false);
    AddDisk("sdb", "", false);
    AddDisk("sr0", "", true);
    CLinuxDevices devices(Bus(), folder.Path("no table"));
    Watch(devices);
    ASSERT_TRUE(RunUntil([&] { return devices.HasBus(); }));

    Mount("sdb", "/media/card");
    Expect(DeviceEvent::arrived, "/media/card", 0, 2);
    Mount("sr0", "/media/disc");
    Expect(DeviceEvent::arrived, "/media/disc", platform::kMediaChange, 4);
    Mount("sdb", "");
    Expect(DeviceEvent::removed, "/media/card", 0, 2);
    // Pulled out while mounted.
    Call(kRoot, "RemoveObject", {kRoot + "/block_devices/sr0"});
    Call(kRoot, "EmitSignal",
         {"org.freedesktop.DBus.ObjectManager", "InterfacesRemoved", "oas",
          QVariantList{QVariant::fromValue(QDBusObjectPath(kRoot + "/block_devices/sr0")),
                       QStringList{kService + ".Filesystem"}}});
    Expect(DeviceEvent::removed, "/media/disc", platform::kMediaChange, 2);
}

TEST_F(Devices, WithoutUDisks2NothingIsToldOfTheBusAndNothingBreaks)
{
    CLinuxDevices onBus(Bus(), folder.Path("no table"));
    CLinuxDevices offBus(QDBusConnection("never connected"));
    Watch(onBus);
    Watch(offBus);

    EXPECT_FALSE(onBus.HasBus());
    EXPECT_TRUE(told.empty());
}

TEST_F(Devices, ASerialLineOfAnAdapterIsToldOnceItHasSettledAndNothingElseIs)
{
    const auto make = [this](const char* line) {
        std::filesystem::create_symlink("/dev/null", folder.Path(line));
    };
    CLinuxDevices devices(QDBusConnection("never connected"), folder.Path("no table"), folder.Path());
    int word = 0;
    devices.WatchPorts([&word] { ++word; });

    make("tty7");
    make("ttyACM0");
    make("ttyACM1");
    ASSERT_TRUE(RunUntil([&] { return word > 0; }));
    EXPECT_EQ(word, 1);
    std::filesystem::remove(folder.Path("ttyACM0"));
    ASSERT_TRUE(RunUntil([&] { return word > 1; }));
    devices.WatchPorts(nullptr);
    CLinuxDevices nowhere(QDBusConnection("never connected"), folder.Path("no table"), folder.Path("gone"));
    nowhere.WatchPorts([&word] { ++word; });
    EXPECT_EQ(word, 2);
}
