// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CHandsetProgram: a program in a handset's place, such as tools/handset-simulator, for those without a
// phone.
//
// It is started with "--port LINK", makes LINK a link to a terminal, says "ready" on a line of its standard
// output, and ends when its standard input does, which is with this object or this process. What it has to
// complain of goes to standard error.
#pragma once

#include <sys/types.h>

#include <string>

namespace platform_linux
{

class CHandsetProgram
{
public:
    CHandsetProgram() = default;
    ~CHandsetProgram();
    CHandsetProgram(const CHandsetProgram&) = delete;
    CHandsetProgram& operator=(const CHandsetProgram&) = delete;

    // The terminal of a device that is a program, which is started the first time; any other device is its
    // own, and so is a program that does not get ready within 20 s. One thread.
    std::string TerminalOf(const std::string& device);

private:
    bool Start(const std::string& program, const std::string& link);
    bool IsReady() const;
    void End();

    pid_t process = 0;
    int input = -1;   // the program's
    int output = -1;  // likewise
    std::string terminal;
};

}  // namespace platform_linux
