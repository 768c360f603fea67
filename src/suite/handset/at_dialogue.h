// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CAtDialogue: the modem commands with which a conversation with a handset begins.
#pragma once

#include "suite/handset/line_patience.h"
#include "suite/handset/serial_line.h"

#include <string>

namespace suite
{

class CAtDialogue
{
public:
    CAtDialogue(CSerialLine& serialLine, const LinePatience& linePatience, std::function<bool()> stopAsked)
        : line(serialLine), patience(linePatience), stop(std::move(stopAsked))
    {
    }

    // Whether a handset answers. One that was left in the middle of a transfer is called back first. Takes 7
    // s when nobody is there.
    bool Greet(const std::string& device);
    // Has the handset speak OBEX from the next byte on.
    bool EnterObex();

    std::string Manufacturer();
    std::string Model();

private:
    bool AnswersToAt();
    // The lines of the answer up to the one that ends it; false when none, or ERROR, came in time.
    bool Ask(const std::string& command, int milliseconds, std::string& answer);
    std::string Text(const std::string& command);

    CSerialLine& line;
    LinePatience patience;
    std::function<bool()> stop;
};

}  // namespace suite
