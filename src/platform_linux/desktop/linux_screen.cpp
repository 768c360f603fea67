// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/desktop/linux_screen.h"

#include "platform/file_system.h"
#include "platform_linux/desktop/x11_windows.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QUrl>

#include <chrono>
#include <utility>

namespace platform_linux
{

namespace
{

const QString kPortal = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kPortalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kScreenshot = QStringLiteral("org.freedesktop.portal.Screenshot");
const QString kRequest = QStringLiteral("org.freedesktop.portal.Request");

// How long a portal may take that is still there: the user may be choosing what to take.
constexpr std::chrono::minutes kPatience{5};

// A display under a Wayland compositor shows its own clients only.
bool HasPlainDisplay()
{
    return !qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

platform::BitmapHandle PictureOf(const std::string& file)
{
    const platform::CImage image(file);
    return image.GetThumbnail(image.Width(), image.Height(), 7, 0x21808);
}

}  // namespace

CLinuxScreen::CLinuxScreen(const QDBusConnection& sessionBus) : bus(sessionBus)
{
    patience.setSingleShot(true);
    connect(&patience, &QTimer::timeout, this, [this] { Finish(nullptr); });
    portalWatcher.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
    connect(&portalWatcher, &QDBusServiceWatcher::serviceUnregistered, this, [this] { Finish(nullptr); });
}

bool CLinuxScreen::ChooseWindow()
{
    window = 0;
    if (!HasPlainDisplay())
        return bus.isConnected();
    const CX11Windows windows;
    if (windows.IsConnected())
        window = windows.ForemostOfOthers();
    return window != 0;
}

void CLinuxScreen::Capture(Taken done)
{
    taken = std::move(done);
    if (window == 0)
        return AskPortal();
    const CX11Windows windows;
    Finish(windows.IsConnected() ? windows.Picture(window) : nullptr);
}

void CLinuxScreen::AskPortal()
{
    const QString token = QStringLiteral("kelvo%1").arg(++questions);
    const QString sender = bus.baseService().mid(1).replace(QLatin1Char('.'), QLatin1Char('_'));
    request = kPortalPath + QStringLiteral("/request/%1/%2").arg(sender, token);
    bus.connect(kPortal, request, kRequest, QStringLiteral("Response"), this,
                SLOT(OnResponse(uint, QVariantMap)));
    QDBusMessage call =
        QDBusMessage::createMethodCall(kPortal, kPortalPath, kScreenshot, QStringLiteral("Screenshot"));
    call << QString()
         << QVariantMap{{QStringLiteral("handle_token"), token}, {QStringLiteral("interactive"), true}};
    patience.start(kPatience);
    portalWatcher.setConnection(bus);
    portalWatcher.setWatchedServices({kPortal});
    auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(call), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        if (answer->isError())
            Finish(nullptr);
        answer->deleteLater();
    });
}

void CLinuxScreen::OnResponse(uint response, const QVariantMap& results)
{
    platform::BitmapHandle picture;
    const QUrl address(results.value(QStringLiteral("uri")).toString());
    if (response == 0 && address.isLocalFile()) {
        const std::string file = address.toLocalFile().toStdString();
        picture = PictureOf(file);
        if (picture)
            platform::Os().files->DeleteFile(file);
    }
    Finish(picture);
}

void CLinuxScreen::Finish(const platform::BitmapHandle& picture)
{
    patience.stop();
    if (!request.isEmpty())
        bus.disconnect(kPortal, std::exchange(request, {}), kRequest, QStringLiteral("Response"), this,
                       SLOT(OnResponse(uint, QVariantMap)));
    if (const Taken done = std::exchange(taken, nullptr))
        done(picture);
}

}  // namespace platform_linux
