// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CSerialLine: an open serial line, 115200 baud, 8N1, no flow control.
//
// Nothing waits longer than it is told. A line that is gone (unplugged, hung up) is noticed with the next
// call, and at once while one waits; Error then says why, with the device's path. One thread.
#pragma once

#include <QSerialPort>

#include <functional>
#include <optional>
#include <string>

namespace suite
{

class CSerialLine
{
public:
    enum class State { data, nothing, gone };

    // Opens the device that the path leads to and takes it for this process alone.
    bool Open(const std::string& device);
    void Close() { port.reset(); }
    bool IsOpen() const { return port && port->isOpen(); }
    // Drops what has come in and not been read.
    void Clear() { port->clear(); }

    // Writes all bytes. False when the line is gone, when none could be written for `idleMilliseconds`, or
    // when `stop` says so.
    bool Write(const char* bytes, int length, int idleMilliseconds, const std::function<bool()>& stop);
    // Appends what is there to `into`, waiting for it as long as told.
    State Read(std::string& into, int milliseconds);

    const std::string& Error() const { return error; }

private:
    bool Fail();

    std::optional<QSerialPort> port;  // belongs to the thread that opened it
    std::string path;
    std::string error;
};

}  // namespace suite
