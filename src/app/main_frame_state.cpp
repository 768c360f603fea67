// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/main_frame_state.h"

#include "platform/services.h"
#include "platform/shell.h"

namespace app
{

namespace
{

// Any number may come in over the bus; those beyond this many at once are not remembered.
constexpr std::size_t kMostPrograms = 1024;

// Programs that print: the window waits for them while they run.
bool Prints(std::uint32_t program)
{
    return program == 1 || program == 3 || program == 7 || program == 8;
}

}  // namespace

void CMainFrameState::Listen()
{
    platform::CMessages* messages = platform::Os().messages;
    if (!messages)
        return;
    const auto listen = [messages](const char* name, platform::CMessages::Handler handler) {
        messages->Listen(messages->RegisterWindowMessage(name), std::move(handler));
    };
    listen("QRX_MESSAGE_WM_APPLET_LAUNCH",
           [this](std::uint32_t program, std::int64_t) { return OnAppletLaunch(program); });
    listen("QRX_MESSAGE_WM_APPLET_CLOSE",
           [this](std::uint32_t program, std::int64_t) { return OnAppletClose(program); });
    listen("QRX_MESSAGE_WM_APPLET_LOAD", [this](std::uint32_t, std::int64_t) { return OnAppletLoad(); });
    listen("QRX_MESSAGE_WM_APPLET_PNPLAUNCH", [this](std::uint32_t, std::int64_t) { return OnPnpLaunch(); });
}

int CMainFrameState::OnAppletLaunch(std::uint32_t program)
{
    if (appletRunning.size() < kMostPrograms)
        appletRunning.insert(program);
    return 1;
}

int CMainFrameState::OnAppletClose(std::uint32_t program)
{
    appletRunning.erase(program);
    if (Prints(program)) {
        printerDefaults = actions.readPrinterDefaults();
        actions.enableWindow(true);
    }
    return 1;
}

int CMainFrameState::OnPnpLaunch()
{
    actions.showMessage(platform::StringId::framePlugAndPlay);
    return 1;
}

}  // namespace app
