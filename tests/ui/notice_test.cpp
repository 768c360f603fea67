// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The bar that says what has come, in the real window, over a real folder of photos.
#include "platform/devices.h"
#include "platform/serial_ports.h"
#include "suite/camera/msd_module.h"
#include "ui/controls/button_ex.h"
#include "ui/notice/notice_bar.h"
#include "ui/notice/notice_watch.h"
#include "ui/viewer/viewer_pages.h"
#include "window_test_base.h"

#include <QThreadPool>
#include <QToolButton>

namespace
{

using app::CommandId;

class CToldDevices : public platform::CDevices
{
public:
    Handler handler;
    std::function<void()> portsChanged;
    void Watch(Handler changed) override { handler = std::move(changed); }
    void WatchPorts(std::function<void()> changed) override { portsChanged = std::move(changed); }
};

class CGivenPorts : public platform::CSerialPorts
{
public:
    std::vector<platform::SerialPort> ports;
    std::vector<platform::SerialPort> Ports() override { return ports; }
};

class NoticeTest : public support::WindowTest
{
protected:
    NoticeTest()
    {
        frame.reset();
        std::filesystem::create_directories(card);
        setenv("KELVO_CAMERA_ROOT", services.folder.Path("card").c_str(), 1);
        platform::Services all = platform::Os();
        all.devices = &devices;
        all.serialPorts = &ports;
        all.cameraStore = &camera;
        platform::Os() = all;
        frame = std::make_unique<ui::CMainFrame>(application, dataFolders);
        frame->resize(1000, 700);
        frame->show();
        // The window runs no commands here: what was asked for is noted.
        for (const CommandId id :
             {CommandId::cameraDownload, CommandId::uploadToPc, CommandId::downloadToMobile})
            frame->Menu()->Action(id)->setEnabled(true);
        QObject::connect(frame->Menu(), &ui::CMainMenu::Triggered, frame.get(),
                         [this](CommandId id) { asked.push_back(id); });
    }
    ~NoticeTest() override
    {
        QThreadPool::globalInstance()->waitForDone();
        unsetenv("KELVO_CAMERA_ROOT");
    }

    ui::CNoticeBar& Bar() { return *frame->Notices()->Bar(); }
    std::string Sentence() { return Bar().isVisible() ? Bar().Sentence().toStdString() : ""; }
    // Whether the bar comes to say that; "" for nothing.
    bool Says(const std::string& sentence)
    {
        QThreadPool::globalInstance()->waitForDone();
        return QTest::qWaitFor([&] { return Sentence() == sentence; });
    }
    void PutPhotos(int count)
    {
        for (int i = 0; i < count; ++i)
            support::WriteBytes(card + "/" + std::to_string(i) + ".jpg", "photo");
    }
    void Change(platform::DeviceEvent event)
    {
        devices.handler({event, true, 0, 1, services.folder.Path("card")});
    }
    void SetPorts(std::vector<platform::SerialPort> now)
    {
        QThreadPool::globalInstance()->waitForDone();
        QCoreApplication::processEvents();
        ports.ports = std::move(now);
        devices.portsChanged();
    }

    CToldDevices devices;
    CGivenPorts ports;
    suite::CMountedStore camera;
    const std::string card = services.folder.Path("card") + "/DCIM/100";
    std::vector<CommandId> asked;
};

}  // namespace

TEST_F(NoticeTest, ACardIsToldOfAndTheBarGoesWithItAndIsNotShownTwiceOnceClosed)
{
    ASSERT_TRUE(Says(""));
    QWidget* const focus = frame->focusWidget();
    PutPhotos(2);
    Change(platform::DeviceEvent::arrived);
    ASSERT_TRUE(Says("A card with 2 photos is here."));
    EXPECT_EQ(frame->focusWidget(), focus);
    ASSERT_EQ(Bar().Buttons().size(), 1U);

    QTest::mouseClick(Bar().findChild<QToolButton*>(QStringLiteral("close")), Qt::LeftButton);
    EXPECT_EQ(Sentence(), "");
    PutPhotos(3);
    Change(platform::DeviceEvent::arrived);
    EXPECT_TRUE(Says(""));

    Change(platform::DeviceEvent::removed);
    EXPECT_TRUE(Says("A card with 3 photos is here.")) << "it has come back";
    std::filesystem::remove_all(card);
    Change(platform::DeviceEvent::removed);
    EXPECT_EQ(Sentence(), "");
    EXPECT_TRUE(Says(""));
    EXPECT_TRUE(asked.empty());
}

TEST_F(NoticeTest, APhoneOffersToSendOnlyWhatIsSelectedAndItsLineIsTakenForTheCommand)
{
    Add("a.jpg");
    Open();
    SetPorts({{"/dev/ttyACM0", "Handset", -1}});
    ASSERT_TRUE(Says("A phone may be connected at ttyACM0."));
    EXPECT_EQ(Bar().Buttons().size(), 1U);
    Select({"a.jpg"});
    ASSERT_EQ(Bar().Buttons().size(), 2U);
    View().clearSelection();
    ASSERT_EQ(Bar().Buttons().size(), 1U);

    QTest::mouseClick(Bar().Buttons()[0], Qt::LeftButton);

    EXPECT_EQ(asked, std::vector{CommandId::uploadToPc});
    EXPECT_EQ(services.profiles.values["Port/com"], "1");
    EXPECT_EQ(Sentence(), "");
    SetPorts({});
    EXPECT_TRUE(Says(""));
}

TEST_F(NoticeTest, TheKeyboardReachesTheBarWhichSaysWhatItIsAndTheFocusGoesBack)
{
    PutPhotos(1);
    Change(platform::DeviceEvent::arrived);
    ASSERT_TRUE(Says("A card with 1 photo is here."));
    EXPECT_EQ(Bar().accessibleName().toStdString() + ": " + Bar().accessibleDescription().toStdString(),
              "Notice: A card with 1 photo is here. card");

    frame->ListView()->LastOfBar()->setFocus();
    QTest::keyClick(frame->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(frame->focusWidget(), Bar().Buttons()[0]);
    QTest::keyClick(frame->focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(Sentence(), "");
    EXPECT_EQ(frame->focusWidget(), &View());
}

TEST_F(NoticeTest, TheBarNeverTakesMoreWidthThanTheListHas)
{
    SetPorts({{"/dev/ttyACM0", "A handset cable with a name of its own that is long", -1}});
    ASSERT_TRUE(Says("A phone may be connected at ttyACM0."));
    Add("a.jpg");
    Open();
    Select({"a.jpg"});
    for (const int width : {900, 500, 240}) {
        Bar().resize(width, Bar().heightForWidth(width));
        Bar().layout()->activate();
        for (const QWidget* button : Bar().Buttons()) {
            const QRect place(button->mapTo(&Bar(), QPoint()), button->size());
            EXPECT_TRUE(Bar().rect().contains(place)) << width;
            EXPECT_GE(place.width(), button->sizeHint().width());
        }
    }
}
