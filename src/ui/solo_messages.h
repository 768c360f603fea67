// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CSoloMessages: messages for a window that keeps to itself. Nothing is sent or heard, and every window
// class is free.
#pragma once

#include "platform/shell.h"

namespace ui
{

class CSoloMessages : public platform::CMessages
{
public:
    std::uint32_t RegisterWindowMessage(const std::string&) override { return 0xC000; }
    void Listen(std::uint32_t, Handler) override {}
    bool Broadcast(std::uint32_t, std::uint32_t, std::int64_t) override { return false; }
    bool RegisterClass(const std::string&) override { return true; }
    bool FindWindow(const std::string&) override { return false; }
    bool BringToForeground(const std::string&) override { return false; }
};

}  // namespace ui
