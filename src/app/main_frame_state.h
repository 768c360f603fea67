// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CMainFrameState: what the main frame knows about the suite's other programs, and what the four messages by
// which they announce themselves do to it.
#pragma once

#include "platform/string_ids.h"

#include <cstdint>
#include <functional>
#include <set>
#include <string>

namespace app
{

// What the state asks of its window.
struct MainFrameActions {
    std::function<int()> readPrinterDefaults;  // GetPrinterDeviceDefaults
    std::function<void(bool)> enableWindow;
    std::function<void(platform::StringId)> showMessage;
};

class CMainFrameState
{
public:
    explicit CMainFrameState(MainFrameActions window) : actions(std::move(window)) {}

    // Registers the four messages and listens to them, where there is a way to hear them. The state must
    // outlive the message service's last delivery.
    void Listen();

    // The messages; each answers 1. `program` is the other program's index, any number.
    int OnAppletLaunch(std::uint32_t program);
    int OnAppletClose(std::uint32_t program);
    int OnAppletLoad() { return 1; }
    int OnPnpLaunch();

    bool IsAppletRunning(std::uint32_t program) const { return appletRunning.contains(program); }
    int PrinterDefaults() const { return printerDefaults; }

private:
    MainFrameActions actions;
    std::set<std::uint32_t> appletRunning;
    int printerDefaults = 0;
};

}  // namespace app
