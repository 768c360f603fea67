// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform_linux/desktop/linux_messages.h"

#include "platform/services.h"
#include "platform_linux/desktop/window_object.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <algorithm>

namespace platform_linux
{

namespace
{

constexpr char kSuitePath[] = "/org/kelvo/Suite";
constexpr char kSuiteInterface[] = "org.kelvo.Suite";
constexpr char kSignal[] = "Message";
constexpr char kWindowPath[] = "/org/kelvo/Window";
constexpr char kWindowInterface[] = "org.kelvo.Window";

constexpr std::uint32_t kFirstMessage = 0xC000;
constexpr std::uint32_t kMessages = 0x4000;

// A part of a bus name holds ASCII letters, digits and "_", and begins with no digit.
QString BusNameOf(const std::string& windowClass)
{
    QString part;
    for (const char c : windowClass) {
        const bool isLetter = (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
        const bool isDigit = c >= '0' && c <= '9' && !part.isEmpty();
        part += QLatin1Char(isLetter || isDigit ? c : '_');
    }
    return QStringLiteral("org.kelvo.Window.") + part;
}

std::uint32_t Hash(const std::string& name)
{
    std::uint32_t hash = 0x811C9DC5;
    for (const char c : name)
        hash = (hash ^ static_cast<unsigned char>(c)) * 0x01000193;
    return hash;
}

}  // namespace

CLinuxMessages::CLinuxMessages(const QDBusConnection& sessionBus) : bus(sessionBus) {}

CLinuxMessages::~CLinuxMessages()
{
    if (platform::Os().messages == this)
        platform::Os().messages = nullptr;
    for (const QString& name : busNames)
        bus.unregisterService(name);
    if (!busNames.empty())
        bus.unregisterObject(kWindowPath);
}

void CLinuxMessages::Install()
{
    platform::Os().messages = this;
}

std::uint32_t CLinuxMessages::RegisterWindowMessage(const std::string& name)
{
    // Between processes messages go by name, so stepping aside for another name of that number is our own
    // matter.
    std::uint32_t offset = Hash(name) % kMessages;
    for (std::uint32_t i = 0; i < kMessages; ++i, offset = (offset + 1) % kMessages) {
        const auto [at, isNew] = names.try_emplace(kFirstMessage + offset, name);
        if (isNew || at->second == name)
            return at->first;
    }
    return 0;
}

void CLinuxMessages::Listen(std::uint32_t message, Handler handler)
{
    handlers[message].push_back(std::move(handler));
    if (!isListening)
        isListening = bus.connect(QString(), kSuitePath, kSuiteInterface, kSignal, this,
                                  SLOT(OnMessage(QString, uint, qlonglong, QDBusMessage)));
}

void CLinuxMessages::OnMessage(const QString& name, uint wParam, qlonglong lParam,
                               const QDBusMessage& envelope)
{
    if (envelope.service() == bus.baseService())
        return;  // our own
    // Names that nobody here registered are not ours to remember.
    const auto known = std::find_if(names.begin(), names.end(),
                                    [&](const auto& entry) { return entry.second == name.toStdString(); });
    const auto found = known == names.end() ? handlers.end() : handlers.find(known->first);
    if (found == handlers.end())
        return;
    const std::vector<Handler> called = found->second;  // a handler may listen to more
    for (const Handler& handler : called)
        (void)handler(wParam, lParam);
}

bool CLinuxMessages::Broadcast(std::uint32_t message, std::uint32_t wParam, std::int64_t lParam)
{
    const auto name = names.find(message);
    if (name == names.end())
        return false;
    QDBusMessage signal = QDBusMessage::createSignal(kSuitePath, kSuiteInterface, kSignal);
    signal << QString::fromStdString(name->second) << wParam << static_cast<qlonglong>(lParam);
    return bus.isConnected() && bus.send(signal);
}

bool CLinuxMessages::RegisterClass(const std::string& windowClass)
{
    if (claims.IsOwn(windowClass))
        return true;
    if (IsNameElsewhere(windowClass) || !claims.Claim(windowClass))
        return false;
    if (!bus.isConnected())
        return true;
    if (busNames.empty()) {
        auto* window = new CWindowObject(this, [this] {
            if (onRaise)
                onRaise();
        });
        bus.registerObject(kWindowPath, window, QDBusConnection::ExportAllSlots);
    }
    if (bus.registerService(BusNameOf(windowClass)))
        busNames.push_back(BusNameOf(windowClass));
    return true;
}

bool CLinuxMessages::IsNameElsewhere(const std::string& windowClass) const
{
    if (!bus.isConnected())
        return false;
    const QDBusReply<QString> owner = bus.interface()->serviceOwner(BusNameOf(windowClass));
    return owner.isValid() && owner.value() != bus.baseService();
}

bool CLinuxMessages::FindWindow(const std::string& windowClass)
{
    return claims.IsElsewhere(windowClass) || IsNameElsewhere(windowClass);
}

bool CLinuxMessages::BringToForeground(const std::string& windowClass)
{
    if (!IsNameElsewhere(windowClass))
        return false;
    const QDBusMessage call =
        QDBusMessage::createMethodCall(BusNameOf(windowClass), kWindowPath, kWindowInterface, "Raise");
    (void)bus.asyncCall(call);
    return true;
}

}  // namespace platform_linux
