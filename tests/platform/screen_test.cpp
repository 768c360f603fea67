// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures of other windows through a stand-in for the desktop portal.
#include "platform/mock_bus.h"
#include "platform/process.h"
#include "platform_linux/desktop/linux_screen.h"
#include "support/test_services.h"

#include <gmock/gmock.h>

namespace
{

const QString kPortal = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kScreenshot = QStringLiteral("org.freedesktop.portal.Screenshot");
const QString kRequest = QStringLiteral("org.freedesktop.portal.Request");

class Screen : public tests::MockBus
{
protected:
    support::TestServices services;
    tests::CEnvironment environment{{{"DISPLAY", ""}, {"WAYLAND_DISPLAY", "wayland-7"}}};
    std::string file = services.folder.Path("Screenshot from today.png");
    int requests = 0;

    // The next request is answered with this response and the file's URI.
    void AnswerWith(int response, const std::string& uri)
    {
        const QString sender = Bus().baseService().mid(1).replace('.', '_');
        const QString request = kPath + QString("/request/%1/kelvo%2").arg(sender).arg(++requests);
        Call(kPortal, kPath, "AddObject", {request, kRequest, QVariantMap(), NoMethods()});
        const QString code = QString("objects['%1'].EmitSignal('%2', 'Response', 'ua{sv}', [dbus.UInt32(%3), "
                                     "dbus.Dictionary({'uri': '%4'}, signature='sv')])\n"
                                     "ret = dbus.ObjectPath('%1')")
                                 .arg(request, kRequest)
                                 .arg(response)
                                 .arg(QString::fromStdString(uri));
        Call(kPortal, kPath, "AddMethod", {kScreenshot, "Screenshot", "sa{sv}", "o", code});
    }
    // The size of the picture taken, as "WIDTHxHEIGHT"; "none" for no picture.
    std::string Take(platform_linux::CLinuxScreen& screen)
    {
        std::string taken;
        EXPECT_TRUE(screen.ChooseWindow());
        screen.Capture([&](const platform::BitmapHandle& picture) {
            taken +=
                picture ? std::to_string(picture->width) + "x" + std::to_string(picture->height) : "none";
        });
        RunUntil([&] { return !taken.empty(); });
        return taken;
    }
};

}  // namespace

TEST_F(Screen, ThePortalsPictureIsTakenAndItsFileRemovedAndARefusalIsNoPicture)
{
    platform_linux::CLinuxScreen screen(Bus());
    EXPECT_EQ(Take(screen), "none");
    ++requests;
    StartMock({kPortal, kPath, "org.freedesktop.portal.Settings"});

    support::WriteBytes(file, "30x20");
    AnswerWith(0, "file://" + services.folder.Path("Screenshot%20from%20today.png"));
    EXPECT_EQ(Take(screen), "30x20");
    EXPECT_FALSE(std::filesystem::exists(file));

    support::WriteBytes(file, "no picture");
    AnswerWith(0, "file://" + services.folder.Path("Screenshot%20from%20today.png"));
    EXPECT_EQ(Take(screen), "none");
    EXPECT_TRUE(std::filesystem::exists(file));
    for (const auto& [response, uri] : {std::pair{1, "file:///x"}, {0, "https://host/x.png"}, {0, ""}}) {
        AnswerWith(response, uri);
        EXPECT_EQ(Take(screen), "none") << uri;
    }
    const QString dies = QStringLiteral("import os, threading\n"
                                        "threading.Timer(0.2, lambda: os._exit(0)).start()\n"
                                        "ret = dbus.ObjectPath('/nobody')");
    Call(kPortal, kPath, "AddMethod", {kScreenshot, "Screenshot", "sa{sv}", "o", dies});
    EXPECT_EQ(Take(screen), "none") << "the portal ended without an answer";
}
