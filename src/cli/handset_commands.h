// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What stands below kelvoctl's command "handset".
#pragma once

#include "cli/commands.h"
#include "platform/string_ids.h"

namespace cli
{

inline constexpr const char* kHandset = "handset";

// Where the handset is, as the command line says.
struct HandsetPort {
    unsigned number = 0;  // 0 for that of "Port.ini"
    std::string device;   // in place of any number

    // The number to work with. A device that was named stands behind one that nothing else has.
    unsigned Number(CContext& context) const;
};

// Fails with a message that the window would show, word for word, and more about it; the message.
std::string TellFailure(CContext& context, platform::StringId text, const std::string& reason);

// send, fetch
void AddHandsetTransfers(CLI::App& handset, CContext& context, const std::shared_ptr<HandsetPort>& port);

}  // namespace cli
