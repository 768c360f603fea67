// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// scroll_watch FOLDER [thumbnails|details]: scrolls through a folder from end to end, at sixty frames a
// second, in a window that is shown nowhere (QT_QPA_PLATFORM=offscreen), and tells how long the list's paints
// took.
//
// The thumbnails must be in the store (kelvoctl thumbs FOLDER): what is measured is the window, not the
// making.
#include "app/data_folders.h"
#include "app/kelvo_app.h"
#include "platform/services.h"
#include "platform_linux/services.h"
#include "suite/image/image_library.h"
#include "suite/utility/utility_library.h"
#include "ui/main_frame.h"
#include "ui/solo_messages.h"
#include "ui/theme.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QScrollBar>
#include <QThread>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace
{

constexpr double kFrame = 1000.0 / 60;
constexpr int kFrames = 1200;

// Times the paints of one widget.
class CTimingApplication : public QApplication
{
public:
    using QApplication::QApplication;
    const QObject* watched = nullptr;
    std::vector<double> paints;  // milliseconds

    bool notify(QObject* receiver, QEvent* event) override
    {
        if (receiver != watched || event->type() != QEvent::Paint)
            return QApplication::notify(receiver, event);
        QElapsedTimer watch;
        watch.start();
        const bool handled = QApplication::notify(receiver, event);
        paints.push_back(static_cast<double>(watch.nsecsElapsed()) / 1e6);
        return handled;
    }
};

double Part(std::vector<double> values, double part)
{
    if (values.empty())
        return 0;
    std::ranges::sort(values);
    return values[static_cast<std::size_t>(part * static_cast<double>(values.size() - 1))];
}

void Report(const char* what, const std::vector<double>& values)
{
    const auto late = std::ranges::count_if(values, [](double value) { return value > kFrame; });
    std::printf("%-28s %6zu  median %6.2f  95%% %6.2f  longest %6.2f ms  over a frame %td\n", what,
                values.size(), Part(values, 0.5), Part(values, 0.95), Part(values, 1), late);
}

void Scroll(CTimingApplication& application, ui::CMainFrame& frame, const char* what, bool wholePaints)
{
    QAbstractItemView& view = *frame.List()->View();
    QScrollBar& bar = *view.verticalScrollBar();
    bar.setValue(0);
    QCoreApplication::processEvents();
    application.watched = view.viewport();
    application.paints.clear();
    std::vector<double> frames;
    for (int i = 1; i <= kFrames; ++i) {
        QElapsedTimer watch;
        watch.start();
        bar.setValue(static_cast<int>(static_cast<qint64>(bar.maximum()) * i / kFrames));
        if (wholePaints)
            view.viewport()->update();
        QCoreApplication::processEvents();
        frames.push_back(static_cast<double>(watch.nsecsElapsed()) / 1e6);
        while (static_cast<double>(watch.nsecsElapsed()) / 1e6 < kFrame) {
            QThread::usleep(500);
            QCoreApplication::processEvents();
        }
    }
    Report(what, application.paints);
    Report("  the frame with it", frames);
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc < 2) {
        std::fputs("usage: scroll_watch FOLDER [thumbnails|details]\n", stderr);
        return 2;
    }
    platform_linux::CLinuxServices services;
    services.Install();
    suite::CUtilityLibrary utility(services.ProgramFolder());
    utility.Install();
    suite::CSuiteImageLibrary images;
    platform::Os().images = &images;
    ui::CSoloMessages messages;
    platform::Os().messages = &messages;
    app::CDataFolders folders;
    folders.Prepare();
    app::CKelvoApp program;
    int qtCount = 1;
    CTimingApplication application(qtCount, argv);
    program.InitInstance({});
    ui::CTheme theme;
    ui::CMainFrame frame(program, folders);
    frame.resize(1280, 800);
    frame.show();
    const bool details = argc > 2 && std::string_view(argv[2]) == "details";
    frame.Router().Run(details ? app::CommandId::details : app::CommandId::thumbnails);
    frame.GoTo(argv[1]);
    while (frame.List()->IsReading() || !frame.List()->IsScreenComplete())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    std::printf("%d files, %s\n", frame.List()->List().Count(), details ? "details" : "thumbnails");
    Scroll(application, frame, "paint, scrolled", false);
    Scroll(application, frame, "paint of everything", true);
    return 0;
}
