// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Icons: our own SVG drawings in the text's colour, drawn when first seen and sharp at any density.
#pragma once

#include <QColor>
#include <QIcon>
#include <QPixmap>
#include <QString>

namespace ui
{

// The drawing ":/icons/NAME.svg" with its "currentColor" replaced; `side` in device-independent pixels. A
// name without a drawing gives an empty picture of that size. The latest ones are kept.
QPixmap IconPixmap(const QString& name, int side, const QColor& colour, qreal pixelRatio);
// The same as an icon that follows the theme.
QIcon ThemedIcon(const QString& name);

}  // namespace ui
