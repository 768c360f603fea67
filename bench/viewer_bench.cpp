// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// viewer_bench FOLDER [WIDTH HEIGHT]: how long the large view takes.
//
// For the folder's pictures in their order, prints the milliseconds until a picture that was just opened is
// painted sharp, until the next one is when it was decoded ahead and when it was not, and until all its
// pixels are there after a zoom; then the longest time in which the window's thread answered nothing, and the
// most memory ever used, in MB.
#include "browser/media_file_list.h"
#include "browser/thumbnail_maker.h"
#include "platform_linux/services.h"
#include "suite/image/image_library.h"
#include "suite/utility/utility_library.h"
#include "ui/theme.h"
#include "ui/viewer/picture_viewer.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>

#include <cstdio>
#include <cstdlib>
#include <fstream>

namespace
{

// Beats as fast as the event loop lets it.
class CHeartbeat : public QObject
{
public:
    CHeartbeat()
    {
        sinceBeat.start();
        timer.callOnTimeout([this] {
            longest = std::max(longest, static_cast<double>(sinceBeat.nsecsElapsed()) / 1e6);
            sinceBeat.restart();
        });
        timer.setTimerType(Qt::PreciseTimer);
        timer.start(1);
    }
    double Longest() const { return longest; }
    void Forget() { longest = 0; }

private:
    QTimer timer;
    QElapsedTimer sinceBeat;
    double longest = 0;
};

double MillisecondsUntil(const std::function<bool()>& isDone, const QElapsedTimer& clock)
{
    while (!isDone())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QCoreApplication::processEvents();
    return static_cast<double>(clock.nsecsElapsed()) / 1e6;
}

void Press(QWidget& widget, int key)
{
    QCoreApplication::postEvent(&widget, new QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier));
    QCoreApplication::sendPostedEvents();
}

double MegabytesEver()
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("VmHWM:"))
            return std::stod(line.substr(6)) / 1024;
    }
    return -1;
}

void Wait(int milliseconds)
{
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < milliseconds)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
}

void Measure(ui::CPictureViewer& viewer, const std::string& folder, const std::vector<std::string>& names)
{
    constexpr int kLongEnough = 1500;
    const auto sharp = [&viewer] { return viewer.IsComplete(); };
    CHeartbeat heartbeat;
    QElapsedTimer clock;
    Wait(100);
    heartbeat.Forget();
    clock.start();
    viewer.Open(folder, names, names.front());
    std::printf("opened %.1f ms\n", MillisecondsUntil(sharp, clock));
    Wait(kLongEnough);
    clock.restart();
    Press(viewer, Qt::Key_Right);
    std::printf("next, decoded ahead %.1f ms\n", MillisecondsUntil(sharp, clock));
    Wait(kLongEnough);
    clock.restart();
    Press(viewer, Qt::Key_End);
    std::printf("last, not decoded ahead %.1f ms\n", MillisecondsUntil(sharp, clock));
    Wait(kLongEnough);
    std::printf("memory so far %.0f MB\n", MegabytesEver());
    clock.restart();
    Press(viewer, Qt::Key_1);
    std::printf("all pixels %.1f ms\n", MillisecondsUntil(sharp, clock));
    for (int i = 0; i < 20; ++i) {
        Press(viewer, Qt::Key_Down);
        Wait(5);
    }
    std::printf("longest block %.1f ms\nmemory %.0f MB\n", heartbeat.Longest(), MegabytesEver());
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc < 2) {
        std::fputs("usage: viewer_bench FOLDER [WIDTH HEIGHT]\n", stderr);
        return 2;
    }
    platform_linux::CLinuxServices services;
    services.Install();
    suite::CUtilityLibrary utility(services.ProgramFolder());
    utility.Install();
    suite::CSuiteImageLibrary images;
    platform::Os().images = &images;
    const QApplication application(argc, argv);
    const ui::CTheme theme;
    const std::string folder = argv[1];
    browser::CMediaFileList list;
    list.SetFilter(browser::kFilterPhoto, 0);
    list.Fill(folder);
    const std::vector<std::string> names = browser::PictureNames(list);
    if (names.empty())
        return 1;
    browser::PictureFacts facts;
    const platform::BitmapHandle thumbnail =
        browser::MakeThumbnail(list.PathOf(0), browser::kThumbnailSide, browser::kThumbnailSide, facts);
    ui::CPictureViewer viewer([&thumbnail](const std::string&) { return thumbnail; });
    viewer.resize(argc > 3 ? std::atoi(argv[2]) : 1280, argc > 3 ? std::atoi(argv[3]) : 800);
    viewer.show();
    Measure(viewer, folder, names);
}
