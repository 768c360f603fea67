// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/handset/serial_line.h"

#include <sys/file.h>

#include <QElapsedTimer>
#include <QFileInfo>

namespace suite
{

namespace
{

// What the user can do about it.
const char* Advice(QSerialPort::SerialPortError error, const std::string& path)
{
    if (error != QSerialPort::PermissionError)
        return "";
    return QFileInfo(QString::fromStdString(path)).isWritable()
               ? " (another program uses it; ModemManager may)"
               : " (users of serial lines belong to the group dialout)";
}

bool IsGone(QSerialPort::SerialPortError error)
{
    return error != QSerialPort::NoError && error != QSerialPort::TimeoutError &&
           error != QSerialPort::UnsupportedOperationError;
}

}  // namespace

bool CSerialLine::Open(const std::string& device)
{
    Close();
    const QString canonical = QFileInfo(QString::fromStdString(device)).canonicalFilePath();
    path = canonical.isEmpty() ? device : canonical.toStdString();
    if (canonical.isEmpty()) {
        error = path + ": there is no such device";
        return false;
    }
    port.setPortName(canonical);
    port.setBaudRate(QSerialPort::Baud115200);
    port.setReadBufferSize(64 << 10);
    port.clearError();
    if (!port.open(QIODevice::ReadWrite))
        return Fail();
    // The other program that a lock keeps out may run as root, whom exclusive use does not stop.
    if (flock(port.handle(), LOCK_EX | LOCK_NB) != 0) {
        Close();
        error = path + ": another program uses it";
        return false;
    }
    // Lines that are not real ones refuse these.
    port.setDataTerminalReady(true);
    port.setRequestToSend(true);
    port.clearError();
    port.clear();
    return true;
}

bool CSerialLine::Write(const char* bytes, int length, int idleMilliseconds,
                        const std::function<bool()>& stop)
{
    constexpr int kSlice = 100;
    if (!port.isOpen() || port.write(bytes, length) != length)
        return Fail();
    QElapsedTimer idle;
    idle.start();
    while (port.bytesToWrite() > 0) {
        const qint64 before = port.bytesToWrite();
        port.waitForBytesWritten(kSlice);
        if (IsGone(port.error()))
            return Fail();
        port.clearError();
        if (port.bytesToWrite() < before)
            idle.restart();
        if (idle.elapsed() > idleMilliseconds || stop()) {
            error = path + ": the handset takes no more data";
            return false;
        }
    }
    return true;
}

CSerialLine::State CSerialLine::Read(std::string& into, int milliseconds)
{
    if (!port.isOpen())
        return State::gone;
    if (port.bytesAvailable() == 0 && !port.waitForReadyRead(milliseconds) && IsGone(port.error())) {
        Fail();
        return State::gone;
    }
    port.clearError();
    const QByteArray bytes = port.readAll();
    into.append(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    return bytes.isEmpty() ? State::nothing : State::data;
}

bool CSerialLine::Fail()
{
    error = path + ": " + port.errorString().toStdString() + Advice(port.error(), path);
    Close();
    return false;
}

}  // namespace suite
