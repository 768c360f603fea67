// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/desktop/udisks.h"

#include "platform/devices.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusObjectPath>

namespace platform_linux
{

namespace
{

using Interfaces = QMap<QString, QVariantMap>;
using Objects = QMap<QDBusObjectPath, Interfaces>;

const QString kBlock = QStringLiteral("org.freedesktop.UDisks2.Block");
const QString kDrive = QStringLiteral("org.freedesktop.UDisks2.Drive");
const QString kFileSystem = QStringLiteral("org.freedesktop.UDisks2.Filesystem");

// The first mount point; mount points are byte strings that end with a zero.
std::string MountPoint(const QVariantMap& fileSystem)
{
    const auto points = qdbus_cast<QList<QByteArray>>(fileSystem.value(QStringLiteral("MountPoints")));
    return points.isEmpty() ? std::string() : std::string(points.front().constData());
}

bool IsOptical(const QVariantMap& drive)
{
    const QStringList media = drive.value(QStringLiteral("MediaCompatibility")).toStringList();
    return drive.value(QStringLiteral("Optical")).toBool() ||
           std::any_of(media.begin(), media.end(),
                       [](const QString& kind) { return kind.startsWith(QLatin1String("optical")); });
}

}  // namespace

MountedFlags ReadManagedObjects(const QDBusMessage& answer)
{
    static const bool registered = [] {
        qDBusRegisterMetaType<QList<QByteArray>>();
        qDBusRegisterMetaType<Interfaces>();
        qDBusRegisterMetaType<Objects>();
        return true;
    }();
    MountedFlags mounted;
    if (!registered || answer.type() != QDBusMessage::ReplyMessage || answer.signature() != "a{oa{sa{sv}}}")
        return mounted;
    const auto objects = qdbus_cast<Objects>(answer.arguments().constFirst());
    for (const Interfaces& interfaces : objects) {
        const std::string mountPoint = MountPoint(interfaces.value(kFileSystem));
        if (mountPoint.empty())
            continue;
        const auto drive = interfaces.value(kBlock).value(QStringLiteral("Drive")).value<QDBusObjectPath>();
        mounted[mountPoint] = IsOptical(objects.value(drive).value(kDrive)) ? platform::kMediaChange : 0;
    }
    return mounted;
}

}  // namespace platform_linux
