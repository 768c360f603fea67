// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CSkinHook: the suite's skin hook library, which gives dialogs the colours of the skin.
#pragma once

#include "platform/types.h"

namespace platform
{

// System colour numbers of the five shades that dialogs are drawn with.
inline constexpr int kColour3DFace = 15;
inline constexpr int kColour3DShadow = 16;
inline constexpr int kColour3DHighLight = 20;
inline constexpr int kColour3DDKShadow = 21;
inline constexpr int kColour3DLight = 22;

class CSkinHook
{
public:
    virtual ~CSkinHook() = default;
    // Sets the colour of a number; a number that the library does not know is dropped.
    virtual void SkinMgr_SetColor(int systemColour, ColorRef colour) = 0;
    // The colour that a number has without a skin; 0 for one that the library does not know.
    virtual ColorRef GetSysColor(int systemColour) = 0;
};

}  // namespace platform
