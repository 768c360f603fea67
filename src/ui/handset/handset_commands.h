// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CHandsetCommands: files to and from the handset, from the menu and the bars.
#pragma once

#include "platform/handset_link.h"
#include "ui/commands/command_router.h"
#include "ui/handset/handset_delete.h"

namespace ui
{

class CMainFrame;

class CHandsetCommands
{
public:
    CHandsetCommands(CCommandRouter& router, CMainFrame& mainFrame);

private:
    void Send();
    void Fetch(platform::FileDataType mode);
    unsigned Port() const;

    CMainFrame& frame;
    CHandsetDelete deletion;
};

}  // namespace ui
