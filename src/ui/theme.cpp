// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/theme.h"

#include "ui/controls/skin.h"
#include "ui/style.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>
#include <QPalette>

#include <array>

namespace ui
{

namespace
{

const QString kPortal = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kPortalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kPortalSettings = QStringLiteral("org.freedesktop.portal.Settings");
const QString kAppearance = QStringLiteral("org.freedesktop.appearance");
const QString kColourScheme = QStringLiteral("color-scheme");

bool darkNow = false;

ThemeColours Light()
{
    return {QColor(0xf3f5f6), QColor(0xfcfdfd), QColor(0x1d2528), QColor(0x5f6b70),
            QColor(0xd9dfe1), QColor(0x0b7285), QColor(0xcbe6ea), QColor(0xe9eff0)};
}

ThemeColours Dark()
{
    return {QColor(0x1f2426), QColor(0x171b1d), QColor(0xe4e9ea), QColor(0x97a3a7),
            QColor(0x343c3f), QColor(0x4fb8c9), QColor(0x1d4f59), QColor(0x262d30)};
}

QPalette PaletteOf(const ThemeColours& colours)
{
    // Every shade that the style draws with follows from these two.
    QPalette palette(colours.window, colours.window);
    palette.setColor(QPalette::Window, colours.window);
    palette.setColor(QPalette::WindowText, colours.text);
    palette.setColor(QPalette::Base, colours.view);
    palette.setColor(QPalette::AlternateBase, colours.hover);
    palette.setColor(QPalette::Text, colours.text);
    palette.setColor(QPalette::ButtonText, colours.text);
    palette.setColor(QPalette::PlaceholderText, colours.dimText);
    palette.setColor(QPalette::Highlight, colours.selection);
    palette.setColor(QPalette::HighlightedText, colours.text);
    palette.setColor(QPalette::Link, colours.accent);
    palette.setColor(QPalette::ToolTipBase, colours.view);
    palette.setColor(QPalette::ToolTipText, colours.text);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, colours.dimText);
    return palette;
}

}  // namespace

CTheme::CTheme(QObject* parent) : QObject(parent)
{
    const QColor window = QApplication::palette().color(QPalette::Window);
    platformIsDark = window.lightness() < 128;
    QApplication::setStyle(new CStyle);
    const QByteArray wish = qgetenv("KELVO_THEME");
    Apply(wish == "dark" || (wish != "light" && platformIsDark));
}

void CTheme::FollowDesktop()
{
    const QByteArray wish = qgetenv("KELVO_THEME");
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (wish == "dark" || wish == "light" || !bus.isConnected())
        return;
    bus.connect(kPortal, kPortalPath, kPortalSettings, QStringLiteral("SettingChanged"), this,
                SLOT(OnSettingChanged(QString, QString, QDBusVariant)));
    QDBusMessage question =
        QDBusMessage::createMethodCall(kPortal, kPortalPath, kPortalSettings, QStringLiteral("Read"));
    question << kAppearance << kColourScheme;
    auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        const QList<QVariant> values = answer->reply().arguments();
        if (!answer->isError() && !values.isEmpty())
            TakeColourScheme(values.front());
        answer->deleteLater();
    });
}

void CTheme::OnSettingChanged(const QString& group, const QString& key, const QDBusVariant& value)
{
    if (group == kAppearance && key == kColourScheme)
        TakeColourScheme(value.variant());
}

void CTheme::TakeColourScheme(const QVariant& value)
{
    QVariant inner = value;
    // The portal's Read wraps the number in one variant too many.
    while (inner.canConvert<QDBusVariant>())
        inner = inner.value<QDBusVariant>().variant();
    constexpr uint kPrefersDark = 1;
    constexpr uint kPrefersLight = 2;
    const uint scheme = inner.toUInt();
    Apply(scheme == kPrefersDark || (scheme != kPrefersLight && platformIsDark));
}

void CTheme::Apply(bool dark)
{
    darkNow = dark;
    // First, since widgets look at the skin when the palette reaches them.
    RefreshSkin();
    QApplication::setPalette(Palette());
}

QPalette CTheme::Palette()
{
    return PaletteOf(Colours());
}

bool CTheme::IsDark()
{
    return darkNow;
}

const ThemeColours& CTheme::Colours()
{
    static const std::array themes = {Light(), Dark()};
    return themes[darkNow ? 1 : 0];
}

}  // namespace ui
