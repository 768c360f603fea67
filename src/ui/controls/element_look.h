// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// One element of a window as its layout file has it: pictures, font and colours, everything but its place.
#pragma once

#include "app/skin_layout.h"

#include <QWidget>

namespace ui
{

// Which keys of the file are about the widget.
app::ElementKind KindOf(const QWidget& widget);
// What the file does not name, the widget has from the window. May be called again with another skin's.
void DressElement(QWidget& widget, const app::SkinElement& look, const app::FontGroup& font);

}  // namespace ui
