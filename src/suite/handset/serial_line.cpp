// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/handset/serial_line.h"

#include <sys/file.h>
#include <unistd.h>

#include <QAbstractEventDispatcher>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QThread>

#include <cerrno>
#include <cstring>

namespace suite
{

namespace
{

// What the user can do about it.
constexpr const char* kBusyAdvice = " (another program uses it; ModemManager may)";
constexpr const char* kRefusedAdvice = " (users of serial lines belong to the group dialout)";

// For a thread that has no event loop, and in a program that has none: a line is waited for, never listened
// to, so nothing becomes of what it registers.
class CNoEvents final : public QAbstractEventDispatcher
{
public:
    bool processEvents(QEventLoop::ProcessEventsFlags) override { return false; }
    void registerSocketNotifier(QSocketNotifier*) override {}
    void unregisterSocketNotifier(QSocketNotifier*) override {}
    void registerTimer(int, qint64, Qt::TimerType, QObject*) override {}
    bool unregisterTimer(int) override { return true; }
    bool unregisterTimers(QObject*) override { return true; }
    QList<TimerInfo> registeredTimers(QObject*) const override { return {}; }
    int remainingTime(int) override { return -1; }
    void wakeUp() override {}
    void interrupt() override {}
};

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
    if (access(path.c_str(), R_OK | W_OK) != 0) {
        error = path + ": " + std::strerror(errno) + (errno == EACCES ? kRefusedAdvice : "");
        return false;
    }
    if (!QAbstractEventDispatcher::instance())
        QThread::currentThread()->setEventDispatcher(new CNoEvents);
    port.emplace();
    port->setPortName(canonical);
    port->setBaudRate(QSerialPort::Baud115200);
    port->setReadBufferSize(64 << 10);
    if (!port->open(QIODevice::ReadWrite))
        return Fail();
    // The other program that a lock keeps out may run as root, whom exclusive use does not stop.
    if (flock(port->handle(), LOCK_EX | LOCK_NB) != 0) {
        Close();
        error = path + ": " + std::strerror(EBUSY) + kBusyAdvice;
        return false;
    }
    // Lines that are not real ones refuse these.
    port->setDataTerminalReady(true);
    port->setRequestToSend(true);
    port->clearError();
    port->clear();
    return true;
}

bool CSerialLine::Write(const char* bytes, int length, int idleMilliseconds,
                        const std::function<bool()>& stop)
{
    constexpr int kSlice = 100;
    if (!IsOpen())
        return false;
    if (port->write(bytes, length) != length)
        return Fail();
    QElapsedTimer idle;
    idle.start();
    while (port->bytesToWrite() > 0) {
        const qint64 before = port->bytesToWrite();
        port->waitForBytesWritten(kSlice);
        if (IsGone(port->error()))
            return Fail();
        port->clearError();
        if (port->bytesToWrite() < before)
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
    if (!IsOpen())
        return State::gone;
    if (port->bytesAvailable() == 0 && !port->waitForReadyRead(milliseconds) && IsGone(port->error())) {
        Fail();
        return State::gone;
    }
    port->clearError();
    const QByteArray bytes = port->readAll();
    into.append(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    return bytes.isEmpty() ? State::nothing : State::data;
}

bool CSerialLine::Fail()
{
    error = path + ": " + port->errorString().toStdString() +
            (port->error() == QSerialPort::PermissionError ? kBusyAdvice : "");
    Close();
    return false;
}

}  // namespace suite
