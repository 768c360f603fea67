// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CToolCommands: the menu "Tools" and the task panel: the suite's other programs, the screen capture, the
// source of acquired pictures, the options.
#pragma once

#include "app/suite_programs.h"
#include "ui/commands/command_router.h"
#include "ui/frame/capture_run.h"

namespace ui
{

class CMainFrame;

class CToolCommands
{
public:
    CToolCommands(CCommandRouter& router, CMainFrame& mainFrame);

    CCaptureRun& Capture() { return *capture; }
    // How long a capture waits for the main window to be gone, in milliseconds.
    int captureWait = CCaptureRun::kWaitMilliseconds;

private:
    void RegisterSuite(CCommandRouter& router);
    void TrimVideo();
    void ShowSlides();
    void SetScreenSaver();
    void StartCapture();
    void SelectSource();
    void ShowOptions();

    CMainFrame& frame;
    CCaptureRun* capture;  // the frame's
};

}  // namespace ui
