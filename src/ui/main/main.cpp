// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The program with the window.
#include "app/data_folders.h"
#include "app/kelvo_app.h"
#include "app/port_list.h"
#include "handset/record_file.h"
#include "platform/services.h"
#include "platform_linux/desktop/linux_devices.h"
#include "platform_linux/desktop/linux_messages.h"
#include "platform_linux/desktop/linux_screen.h"
#include "platform_linux/linux_serial_ports.h"
#include "platform_linux/services.h"
#include "suite/acquire/sane_sources.h"
#include "suite/camera/msd_module.h"
#include "suite/handset/handset_library.h"
#include "suite/image/image_library.h"
#include "suite/utility/utility_library.h"
#include "ui/command_line.h"
#include "ui/controls/skin_colours.h"
#include "ui/display_text.h"
#include "ui/icons.h"
#include "ui/main_frame.h"
#include "ui/shot.h"
#include "ui/solo_messages.h"
#include "ui/theme.h"
#include "ui/window_keeper.h"
#include "ui/words.h"

#include <QApplication>
#include <QMessageBox>
#include <QThreadPool>

#include <cstdio>
#include <filesystem>

namespace
{

// What the window needs around it, in the order in which it is made.
struct Program {
    app::CDataFolders dataFolders;
    app::CKelvoApp application;
    ui::CommandLine commandLine;
};

void SetUpApplication(Program& program)
{
    // The window class by which the window system knows the program.
    QCoreApplication::setApplicationName(QStringLiteral("QorvelVellum"));
    QGuiApplication::setApplicationDisplayName(QString());
    QGuiApplication::setDesktopFileName(QStringLiteral("org.kelvo.Kelvo"));
    program.dataFolders.Prepare();
}

void TellProblems(ui::CMainFrame& frame, const app::CDataFolders& dataFolders)
{
    QStringList lines;
    for (const std::string& problem : dataFolders.Problems())
        lines.append(ui::Shown(problem));
    if (!lines.isEmpty())
        frame.Tell(lines.join(QLatin1Char('\n')));
}

void OpenFirstFolder(ui::CMainFrame& frame, const ui::CommandLine& line)
{
    if (line.folder.empty())
        frame.GoToStart();
    else
        frame.GoTo(line.folder, line.fileName);
}

// The window's life, from its making to the end of the event loop.
int RunWindow(Program& program)
{
    ui::CSkinColours skinColours;
    platform::Os().skinHook = &skinColours;
    ui::CTheme theme;
    ui::CMainFrame frame(program.application, program.dataFolders);
    frame.setWindowIcon(ui::ThemedIcon(QStringLiteral("kelvo")));
    ui::CWindowKeeper keeper(frame, *frame.Panes(), frame.SettingsFile());
    keeper.Show();
    OpenFirstFolder(frame, program.commandLine);
    TellProblems(frame, program.dataFolders);
    theme.FollowDesktop();
    const int status = QApplication::exec();
    keeper.Save();
    return status;
}

int TakeShot(Program& program)
{
    ui::CSkinColours skinColours;
    platform::Os().skinHook = &skinColours;
    ui::CTheme theme;
    ui::CMainFrame frame(program.application, program.dataFolders);
    frame.resize(program.commandLine.shotSize.width, program.commandLine.shotSize.height);
    frame.show();
    OpenFirstFolder(frame, program.commandLine);
    const ui::CShot shot(frame, program.commandLine.shotFile);
    return QApplication::exec();
}

int RunShot(Program& program)
{
    ui::CSoloMessages messages;
    platform::Os().messages = &messages;
    if (program.application.InitInstance({}) != app::StartResult::run)
        return 1;
    return TakeShot(program);
}

int RunInstance(Program& program)
{
    platform_linux::CLinuxMessages messages;
    messages.Install();
    switch (program.application.InitInstance(program.commandLine.suiteWords)) {
    case app::StartResult::secondInstance:
        return 0;
    case app::StartResult::failed:
        QMessageBox::critical(nullptr, ui::Shown(program.application.Title()),
                              ui::Shown(program.application.Message()));
        return 1;
    case app::StartResult::run:
        break;
    }
    messages.onRaise = [] {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (qobject_cast<ui::CMainFrame*>(window)) {
                window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
                window->raise();
                window->activateWindow();
            }
        }
    };
    platform_linux::CLinuxDevices devices;
    platform_linux::CLinuxScreen screen;
    suite::CSaneSources sources;
    platform::Os().devices = &devices;
    platform::Os().screen = &screen;
    platform::Os().pictureSources = &sources;
    const int status = RunWindow(program);
    // What they were asked on other threads is waited for.
    QThreadPool::globalInstance()->waitForDone();
    program.application.ExitInstance();
    return status;
}

int Say(const ui::CommandLine& line)
{
    switch (line.task) {
    case ui::Task::version:
        std::puts("kelvo " KELVO_VERSION);
        return 0;
    case ui::Task::help:
        std::fputs(ui::UsageText().c_str(), stdout);
        return 0;
    default:
        std::fprintf(stderr, "kelvo: %s\n%s", line.error.c_str(), ui::UsageText().c_str());
        return 2;
    }
}

}  // namespace

int main(int argc, char** argv)
{
    platform_linux::CLinuxServices services;
    services.Install();
    suite::CUtilityLibrary utility(services.ProgramFolder());
    utility.Install();
    suite::CSuiteImageLibrary images;
    platform::Os().images = &images;
    suite::CMountedStore camera;
    platform::Os().cameraStore = &camera;
    platform_linux::CLinuxSerialPorts serialPorts;
    platform::Os().serialPorts = &serialPorts;
    suite::CHandsetLibrary handset({app::DeviceOfPort, handset::AddHandsetRecord, {}});
    platform::Os().handset = &handset;

    Program program;
    std::error_code noFolder;
    const std::string currentFolder = std::filesystem::current_path(noFolder).string();
    program.commandLine = ui::ReadCommandLine(std::vector<std::string>(argv + 1, argv + argc), currentFolder);
    const ui::Task task = program.commandLine.task;
    if (task != ui::Task::run && task != ui::Task::shot)
        return Say(program.commandLine);
    if (task == ui::Task::shot && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");

    SetUpApplication(program);
    // Qt sees none of the words: the paths among them are bytes, not text.
    int qtCount = 1;
    const QApplication qtApplication(qtCount, argv);
    ui::InstallTranslations(QString::fromStdString(services.ProgramFolder()));
    return task == ui::Task::shot ? RunShot(program) : RunInstance(program);
}
