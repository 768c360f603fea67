// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// SkinLook: what the skin gives to the radio buttons and check boxes that Qt lays out: the state images of
// the mark of a radio button, and the colours of the text. The style draws with it.
#pragma once

#include "app/state_images.h"

#include <QColor>
#include <QStyleOption>
#include <QWidget>

#include <array>
#include <optional>

namespace ui
{

struct SkinLook {
    QString markImage{};
    std::array<std::optional<QColor>, app::kButtonStates> textColours{};
};

void SetSkinLook(QWidget& widget, const SkinLook& look);

// Draws the mark of a radio button, down when it is chosen; false where the skin has none for it.
bool DrawSkinMark(const QStyleOption& option, QPainter& painter, const QWidget* widget);
// The palette for the text of a widget in the state that the option tells.
QPalette SkinnedText(const QStyleOption& option, const QWidget* widget);

}  // namespace ui
