// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CToneCommands: "Convert for the Handset", in the menu "Tools" and for MIDI and WAV files in the list's own.
#pragma once

#include "ui/commands/command_router.h"

#include <string>
#include <vector>

class QMenu;

namespace ui
{

class CMainFrame;

class CToneCommands
{
public:
    CToneCommands(CCommandRouter& router, CMainFrame& mainFrame);

private:
    void Convert();
    void AddTo(QMenu& menu);
    // The selected files that can be converted.
    std::vector<std::string> Sources() const;

    CMainFrame& frame;
};

}  // namespace ui
