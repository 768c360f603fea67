// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CFrameBars: the tool bar, with what is done to pictures, and the task panel, with the handset's commands.
//
// The tool bar leaves out what cannot be used in this version. The task panel is for people who have the rest
// of the suite: it is on show from the start only where the suite's launcher is installed. Which of them are
// shown is kept in "Kelvo.ini", section "Frame".
#pragma once

#include "ui/main_menu.h"

#include <QMainWindow>
#include <QToolBar>

namespace ui
{

class CFrameBars
{
public:
    // The menu must outlive the bars.
    CFrameBars(const CMainMenu& commands, std::string iniFolder, QMainWindow& window);

    void Show(app::CommandId bar, bool on);
    QToolBar* Bar(app::CommandId bar) const { return bars.at(bar); }

private:
    QToolBar* Make(app::CommandId bar, QMainWindow& window);
    bool IsWanted(app::CommandId bar) const;

    const CMainMenu& menu;
    std::string programFolder;
    std::map<app::CommandId, QToolBar*> bars;
};

}  // namespace ui
