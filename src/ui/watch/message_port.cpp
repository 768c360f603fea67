// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/watch/message_port.h"

#include <QCoreApplication>
#include <QEvent>

namespace ui
{

namespace
{

QEvent::Type EventType()
{
    static const auto type = static_cast<QEvent::Type>(QEvent::registerEventType());
    return type;
}

}  // namespace

// A message on its way to an answer; the sender and the event share it.
struct CMessagePort::Sent {
    bool isDone = false;
    int answer = 0;
    std::string text;
};

class CMessagePort::CPosted : public QEvent
{
public:
    CPosted(std::uint32_t number, std::uint64_t place, std::shared_ptr<Sent> sentMessage)
        : QEvent(EventType()), message(number), post(place), sent(std::move(sentMessage))
    {
    }
    const std::uint32_t message;
    const std::uint64_t post;
    const std::shared_ptr<Sent> sent;  // null when nobody waits for an answer
};

CMessagePort::CMessagePort(Handler messageHandler) : handler(std::move(messageHandler))
{
    // Registered before there are other threads.
    EventType();
}

void CMessagePort::PostMessage(std::uint32_t message)
{
    const std::lock_guard lock(mutex);
    QCoreApplication::postEvent(this, new CPosted(message, ++posts, nullptr));
}

void CMessagePort::Forget(std::uint32_t message)
{
    const std::lock_guard lock(mutex);
    forgotten[message] = posts;
}

bool CMessagePort::IsForgotten(const CPosted& posted)
{
    const std::lock_guard lock(mutex);
    const auto found = forgotten.find(posted.message);
    return !posted.sent && found != forgotten.end() && posted.post <= found->second;
}

int CMessagePort::SendMessage(std::uint32_t message, std::string& text)
{
    auto sent = std::make_shared<Sent>();
    std::unique_lock lock(mutex);
    if (isClosed)
        return 0;
    QCoreApplication::postEvent(this, new CPosted(message, ++posts, sent));
    answered.wait(lock, [&] { return sent->isDone || isClosed; });
    if (!sent->isDone)
        return 0;
    text = std::move(sent->text);
    return sent->answer;
}

void CMessagePort::Close()
{
    const std::lock_guard lock(mutex);
    isClosed = true;
    answered.notify_all();
}

bool CMessagePort::event(QEvent* event)
{
    if (event->type() != EventType())
        return QObject::event(event);
    const auto& posted = static_cast<const CPosted&>(*event);
    if (IsForgotten(posted))
        return true;
    std::string text;
    const int answer = handler(posted.message, text);
    if (posted.sent) {
        const std::lock_guard lock(mutex);
        *posted.sent = {true, answer, std::move(text)};
        answered.notify_all();
    }
    return true;
}

}  // namespace ui
