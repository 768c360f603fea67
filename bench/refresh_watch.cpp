// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// refresh_watch FOLDER: what a new file in the folder on show costs the window's thread.
//
// Shows a copy of the folder (hard links, gone afterwards) in an off-screen list until all thumbnails are
// made, adds files one at a time, and waits for each to appear by itself. Prints one line: files at the
// start, then the medians over the files added of processor milliseconds on the window's thread, of its
// longest piece of work, and of milliseconds until the file was there and everything was done.
#include "platform/services.h"
#include "platform_linux/services.h"
#include "suite/image/image_library.h"
#include "suite/utility/utility_library.h"
#include "ui/ie_shell_list_ctrl.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>
#include <ctime>
#include <filesystem>

namespace
{

namespace fs = std::filesystem;

constexpr int kRounds = 21;

double ProcessorMilliseconds()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

double Median(std::vector<double> values)
{
    std::ranges::nth_element(values, values.begin() + kRounds / 2);
    return values[kRounds / 2];
}

// The list with the timer that its frame would have.
class CShownList
{
public:
    explicit CShownList(const std::string& store) : list(store, {})
    {
        timer.setInterval(10);
        QObject::connect(&timer, &QTimer::timeout, &list, [this] {
            if (!list.ThumbnailStep())
                timer.stop();
        });
        QObject::connect(&list, &ui::CIEShellListCtrl::WorkAppeared, &timer, [this] { timer.start(); });
        list.resize(1000, 700);
        list.show();
    }
    ui::CIEShellListCtrl& List() { return list; }
    // Runs until the folder has so many files and nothing is left to do; the longest piece of work.
    double RunUntil(int files)
    {
        double longest = 0;
        const auto isDone = [&] {
            return !list.IsReading() && !timer.isActive() && list.List().Count() == files &&
                   list.List().AllRead();
        };
        while (!isDone()) {
            const double begin = ProcessorMilliseconds();
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
            longest = std::max(longest, ProcessorMilliseconds() - begin);
        }
        return longest;
    }

private:
    QTimer timer;
    ui::CIEShellListCtrl list;
};

int Measure(const fs::path& source)
{
    const QTemporaryDir work(QString::fromStdString((source.parent_path() / "refresh-XXXXXX").string()));
    const fs::path folder = fs::path(work.path().toStdString()) / "photos";
    fs::create_directory(folder);
    int files = 0;
    fs::path one;
    for (const fs::directory_entry& entry : fs::directory_iterator(source)) {
        fs::create_hard_link(entry.path(), folder / entry.path().filename());
        one = entry.path();
        ++files;
    }
    CShownList shown(work.path().toStdString() + "/store");
    shown.List().OpenFolder(folder.string());
    shown.RunUntil(files);
    std::vector<double> processor;
    std::vector<double> longest;
    std::vector<double> until;
    for (int round = 1; round <= kRounds; ++round) {
        const double begin = ProcessorMilliseconds();
        QElapsedTimer clock;
        clock.start();
        fs::copy_file(one, folder / ("added" + std::to_string(round) + ".jpg"));
        longest.push_back(shown.RunUntil(files + round));
        processor.push_back(ProcessorMilliseconds() - begin);
        until.push_back(static_cast<double>(clock.elapsed()));
    }
    std::printf("%d files: %.1f ms on the window's thread, longest piece %.1f ms, done after %.0f ms\n",
                files, Median(processor), Median(longest), Median(until));
    return 0;
}

}  // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    if (argc != 2) {
        std::fputs("usage: refresh_watch FOLDER\n", stderr);
        return 2;
    }
    platform_linux::CLinuxServices services;
    services.Install();
    suite::CUtilityLibrary utility(services.ProgramFolder());
    utility.Install();
    suite::CSuiteImageLibrary images;
    platform::Os().images = &images;
    return Measure(fs::canonical(argv[1]));
}
