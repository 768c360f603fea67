// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CSkinColours: the skin hook library in the window. The shades that it is given become the palette of every
// dialog, at the next turn of the event loop; the other windows keep the theme's.
#pragma once

#include "platform/skin_hook.h"

#include <QColor>
#include <QObject>

#include <map>

namespace ui
{

class CSkinColours final : public QObject, public platform::CSkinHook
{
    Q_OBJECT

public:
    void SkinMgr_SetColor(int systemColour, platform::ColorRef colour) override;
    // The theme's own, whatever was set before.
    platform::ColorRef GetSysColor(int systemColour) override;

private:
    void Apply();
    std::map<int, QColor> colours;
    bool applies = false;
};

}  // namespace ui
