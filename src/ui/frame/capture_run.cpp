// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frame/capture_run.h"

#include "app/screen_capture.h"
#include "platform/services.h"
#include "ui/background.h"

#include <QGuiApplication>
#include <QPointer>

namespace ui
{

void CCaptureRun::Start(const std::string& targetFolder, int waitMilliseconds)
{
    platform::CScreen* const screen = platform::Os().screen;
    if (running)
        return;
    if (!screen || !screen->ChooseWindow()) {
        Q_EMIT NothingToCapture();
        return;
    }
    running = true;
    folder = targetFolder;
    // The program goes on although none of its windows is to be seen.
    QGuiApplication::setQuitOnLastWindowClosed(false);
    focus = window.focusWidget();
    window.hide();
    QTimer::singleShot(waitMilliseconds, this, &CCaptureRun::Take);
}

void CCaptureRun::Take()
{
    platform::Os().screen->Capture(
        [run = QPointer<CCaptureRun>(this)](const platform::BitmapHandle& picture) {
            if (run)
                run->Save(picture);
        });
}

void CCaptureRun::Save(const platform::BitmapHandle& picture)
{
    if (!picture || folder.empty())
        return End({});
    InBackground(
        this, [picture, target = folder] { return app::SaveScreenCapture(target, *picture); },
        [this](const std::string& path) { End(path); });
}

void CCaptureRun::End(const std::string& path)
{
    running = false;
    window.show();
    window.activateWindow();
    if (focus)
        focus->setFocus();
    QGuiApplication::setQuitOnLastWindowClosed(true);
    Q_EMIT Ended(path);
}

}  // namespace ui
