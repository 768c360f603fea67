// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The dialog that copies from a camera, in each of its states, over a real folder of photos.
#include "ui/camera/camera_dialog.h"

#include "suite/camera/msd_module.h"
#include "ui/controls/button_ex.h"
#include "ui/controls/transfer_picture.h"
#include "window_test_base.h"

#include <QMessageBox>
#include <QProgressBar>

namespace
{

namespace fs = std::filesystem;
using testing::AssertionResult;

// A store that waits before it is found and before each file until it may go on; an abort lets it.
class CGatedStore : public platform::CMsdModule
{
public:
    void Let(int steps)
    {
        const std::lock_guard lock(mutex);
        passes += steps;
        changed.notify_all();
    }
    void Shut()
    {
        const std::lock_guard lock(mutex);
        passes = 0;
    }
    void UnInitMsd() override { store.UnInitMsd(); }
    int InitMsd(const std::string& file, char drive, int kind) override
    {
        Wait();
        return store.InitMsd(file, drive, kind);
    }
    int GetFileCount(int kind, int* count) override { return store.GetFileCount(kind, count); }
    int UploadFile(int device, unsigned number, unsigned kind, const std::string& path,
                   Progress progress) override
    {
        Wait();
        return store.UploadFile(device, number, kind, path, progress);
    }
    void Abort(int reason) override
    {
        store.Abort(reason);
        Let(1'000);
    }
    int DeleteMsdFile(int kind, int number) override { return store.DeleteMsdFile(kind, number); }
    std::string UploadedPath() const override { return store.UploadedPath(); }
    std::string LastError() const override { return store.LastError(); }
    platform::MsdFailure LastFailure() const override { return store.LastFailure(); }
    std::vector<std::string> LeftOut() const override { return store.LeftOut(); }
    std::optional<platform::MsdSurvey> Survey(const std::string&) const override { return std::nullopt; }

private:
    void Wait()
    {
        std::unique_lock lock(mutex);
        changed.wait(lock, [this] { return passes > 0; });
        --passes;
    }

    suite::CMountedStore store;
    std::mutex mutex;
    std::condition_variable changed;
    int passes = 0;
};

class CameraTest : public support::WindowTest
{
protected:
    CameraTest()
    {
        platform::Os().cameraStore = &store;
        setenv("KELVO_CAMERA_ROOT", card.c_str(), 1);
    }
    ~CameraTest() override
    {
        frame.reset();
        unsetenv("KELVO_CAMERA_ROOT");
    }

    void PutPhotos(int count) const
    {
        fs::create_directories(card + "/DCIM");
        for (int i = 0; i < count; ++i)
            support::WriteBytes(card + "/DCIM/" + std::to_string(1000 + i) + ".jpg", "photo");
    }
    long PhotosOnCard() const
    {
        return std::distance(fs::directory_iterator(card + "/DCIM"), fs::directory_iterator());
    }
    // Starts a copy that may go so many steps, the first of which finds the camera.
    void Start(int steps, int delDscPhoto = 0)
    {
        app::CurrentSettings()->delDscPhoto = delDscPhoto;
        store.Shut();
        store.Let(steps);
        Run(app::CommandId::cameraDownload);
        dialog = frame->findChild<ui::CCameraDialog*>();
        ASSERT_TRUE(dialog);
    }
    template <typename Widget> Widget& Part(const char* name) const
    {
        return *dialog->findChild<Widget*>(QString::fromLatin1(name));
    }
    bool IsMoving() const { return Part<ui::CTransferPicture>("play").IsMoving(); }
    AssertionResult Says(const std::string& text)
    {
        const bool found = QTest::qWaitFor(
            [&] { return dialog && Part<QLabel>("filecount").text().toStdString().starts_with(text); });
        return found ? testing::AssertionSuccess()
                     : testing::AssertionFailure() << (dialog ? Part<QLabel>("filecount").text().toStdString()
                                                              : "the dialog is gone");
    }
    bool IsGone()
    {
        return QTest::qWaitFor([this] {
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            return !dialog;
        });
    }
    // The message over the window or the dialog, as text.
    std::string Message()
    {
        QMessageBox* box = nullptr;
        const bool found =
            QTest::qWaitFor([&] { return (box = frame->findChild<QMessageBox*>()) != nullptr; });
        return found ? box->text().toStdString() : "";
    }
    void Press(QMessageBox::StandardButton role)
    {
        QMessageBox* box = frame->findChild<QMessageBox*>();
        for (QAbstractButton* button : box->buttons()) {
            if (button->text().remove(QLatin1Char('&')) ==
                (role == QMessageBox::Yes ? QStringLiteral("Yes") : QStringLiteral("OK")))
                button->click();
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    std::vector<std::string> Copies() const
    {
        std::vector<std::string> names;
        for (const auto& entry : fs::recursive_directory_iterator(application.MobileDownloadFolder())) {
            if (entry.is_regular_file())
                names.push_back(entry.path().filename());
        }
        std::ranges::sort(names);
        return names;
    }

    const std::string card = services.folder.Path("card");
    CGatedStore store;
    QPointer<ui::CCameraDialog> dialog;
};

}  // namespace

TEST_F(CameraTest, TheDialogFollowsTheCopyFromItsBeginningUntilItIsStopped)
{
    PutPhotos(3);
    Start(0);
    EXPECT_TRUE(Says("Looking for the camera..."));
    EXPECT_FALSE(IsMoving());

    store.Let(2);
    ASSERT_TRUE(Says("Copying photo 1 of 3"));
    EXPECT_EQ(Part<QProgressBar>("progress").value() * 10 + Part<QProgressBar>("progress").maximum(), 13);
    EXPECT_TRUE(IsMoving());

    Part<ui::CButtonEx>("stop").click();
    ASSERT_TRUE(Says("Stopped. The photos copied so far are in " + application.MobileDownloadFolder()));
    EXPECT_FALSE(IsMoving());
    EXPECT_EQ(Copies(), std::vector<std::string>{"DSC00001.jpg"});
    EXPECT_EQ(Part<ui::CButtonEx>("stop").text().toStdString(), "&Close");
    Part<ui::CButtonEx>("stop").click();
    EXPECT_TRUE(IsGone());
}

TEST_F(CameraTest, EscapeEndsTheCopyAndTheDialogAndKeepsWhatWasCopied)
{
    PutPhotos(3);
    Start(2, 1);
    ASSERT_TRUE(Says("Copying photo 1 of 3"));

    QTest::keyClick(dialog, Qt::Key_Escape);

    EXPECT_TRUE(IsGone());
    EXPECT_EQ(Copies(), std::vector<std::string>{"DSC00001.jpg"});
    EXPECT_EQ(PhotosOnCard(), 3);
}

TEST_F(CameraTest, NoCameraAndNoPhotoAreToldAndTheDialogCloses)
{
    for (const char* told : {"Camera is not available. Please try again.",
                             "There no photo in the camera.\nPlease check your camera."}) {
        Start(1);
        EXPECT_EQ(Message(), told);
        EXPECT_TRUE(IsGone());
        Press(QMessageBox::Ok);
        PutPhotos(0);
    }
}

TEST_F(CameraTest, AWholeCopyEmptiesTheCameraOnlyWithoutAsking)
{
    PutPhotos(3);
    Start(4, 2);
    EXPECT_EQ(Message(), "All the photos in camera will be deleted.\nDo you want to continue?");
    EXPECT_TRUE(Says("Copying photo 3 of 3"));
    Press(QMessageBox::Yes);
    EXPECT_TRUE(IsGone());
    EXPECT_EQ(PhotosOnCard(), 3);
    EXPECT_EQ(frame->Status()->currentMessage().toStdString(), "3 photos were copied.");

    Start(4, 1);
    EXPECT_TRUE(IsGone());
    EXPECT_EQ(PhotosOnCard(), 0);
    EXPECT_EQ(Copies().size(), 6U);
}

TEST_F(CameraTest, ACardThatIsPulledAPhotoThatIsGoneAndAPlaceThatCannotBeAreTold)
{
    PutPhotos(1);
    Start(1);
    ASSERT_TRUE(Says("Copying photo 0 of 1"));
    fs::remove(card + "/DCIM/1000.jpg");
    store.Let(1);
    EXPECT_TRUE(Says("No photo could be copied: No such file or directory."));
    dialog->reject();
    ASSERT_TRUE(IsGone());

    // More than are copied ahead.
    PutPhotos(200);
    Start(2, 1);
    ASSERT_TRUE(Says("Copying photo 1 of 200"));
    fs::rename(card, card + " pulled");
    store.Let(200);
    EXPECT_TRUE(Says("The camera is no longer there. The photos copied so far are in "));
    EXPECT_GE(Copies().size(), 1U);
    EXPECT_LT(Copies().size(), 200U);
    dialog->reject();
    ASSERT_TRUE(IsGone());
    fs::rename(card + " pulled", card);
    EXPECT_EQ(PhotosOnCard(), 200);

    fs::remove_all(application.MobileDownloadFolder());
    support::WriteBytes(fs::path(application.MobileDownloadFolder()).string(), "no folder");
    Start(300);
    EXPECT_TRUE(Says("The folder " + application.MobileDownloadFolder()));
    EXPECT_TRUE(Part<QLabel>("filecount").text().contains(QStringLiteral("Not a directory")));
}
