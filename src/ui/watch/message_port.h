// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CMessagePort: the window of a control, as the watcher threads see it.
//
// Messages are handled on the thread that made the port, in the order in which they came. It must outlive the
// threads that use it.
#pragma once

#include "platform/change_notifications.h"

#include <QObject>

#include <condition_variable>
#include <map>
#include <mutex>

namespace ui
{

class CMessagePort : public QObject, public platform::CMessageWindow
{
    Q_OBJECT

public:
    // Gets each message; for a sent one, returns the answer and may set the text.
    using Handler = std::function<int(std::uint32_t message, std::string& text)>;

    explicit CMessagePort(Handler messageHandler);
    ~CMessagePort() override { Close(); }

    void PostMessage(std::uint32_t message) override;
    int SendMessage(std::uint32_t message, std::string& text) override;
    // Messages of that number that were posted up to now are not handled any more.
    void Forget(std::uint32_t message);
    // Sent messages, also those that wait for their answer, are answered with 0 from now on. To be called
    // before the port's thread waits for one that may be sending.
    void Close();

protected:
    bool event(QEvent* event) override;

private:
    struct Sent;
    class CPosted;
    bool IsForgotten(const CPosted& posted);

    const Handler handler;
    std::mutex mutex;
    std::condition_variable answered;
    bool isClosed = false;
    std::uint64_t posts = 0;
    std::map<std::uint32_t, std::uint64_t> forgotten;  // posts up to then, by message
};

}  // namespace ui
