// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/controls/skin_colours.h"

#include "ui/controls/skin.h"
#include "ui/theme.h"

#include <QApplication>
#include <QPalette>

#include <optional>

namespace ui
{

namespace
{

std::optional<QPalette::ColorRole> RoleOf(int systemColour)
{
    switch (systemColour) {
    case platform::kColour3DFace:
        return QPalette::Window;
    case platform::kColour3DShadow:
        return QPalette::Dark;
    case platform::kColour3DHighLight:
        return QPalette::Light;
    case platform::kColour3DDKShadow:
        return QPalette::Shadow;
    case platform::kColour3DLight:
        return QPalette::Midlight;
    default:
        return std::nullopt;
    }
}

}  // namespace

void CSkinColours::SkinMgr_SetColor(int systemColour, platform::ColorRef colour)
{
    if (!RoleOf(systemColour))
        return;
    colours[systemColour] = SkinColour(colour);
    if (!std::exchange(applies, true))
        QMetaObject::invokeMethod(this, &CSkinColours::Apply, Qt::QueuedConnection);
}

platform::ColorRef CSkinColours::GetSysColor(int systemColour)
{
    const auto role = RoleOf(systemColour);
    const QColor colour = role ? CTheme::Palette().color(*role) : QColor(0, 0, 0);
    return static_cast<platform::ColorRef>(colour.red() | colour.green() << 8 | colour.blue() << 16);
}

void CSkinColours::Apply()
{
    applies = false;
    QPalette palette = CTheme::Palette();
    for (const auto& [number, colour] : colours)
        palette.setColor(*RoleOf(number), colour);
    const QColor face = palette.color(QPalette::Window);
    palette.setColor(QPalette::Button, face);
    for (const auto role : {QPalette::WindowText, QPalette::ButtonText}) {
        for (const auto group : {QPalette::Active, QPalette::Inactive})
            palette.setColor(group, role, Readable(palette.color(group, role), face));
    }
    if (palette != QApplication::palette("QDialog"))
        QApplication::setPalette(palette, "QDialog");
}

}  // namespace ui
