// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The skin in use: the program's own, or its dark twin while the theme is dark.
//
// Pictures are loaded when first drawn and kept until the skin changes, up to a bound; what is beyond it,
// like what is missing, is a null picture, and every control can be drawn without one. Names are relative to
// the skin folder ("Manager/email.png") and never lead out of it.
#pragma once

#include "app/state_images.h"

#include <QFont>
#include <QIcon>
#include <QPixmap>
#include <QString>

namespace ui
{

// Names the skin folder for a light desktop and takes up the skin and its font. Controls may be made before.
void UseSkin(const std::string& folder);
// Takes up the skin anew, after the theme has changed.
void RefreshSkin();
// The folder of the skin in use, empty before UseSkin.
const std::string& SkinFolder();

using StatePixmaps = std::array<QPixmap, app::kButtonStates>;
// The pictures of a button or tool in the order of app::ButtonState, sharp at the pixel ratio given.
StatePixmaps SkinStates(const QString& image, qreal pixelRatio);
QPixmap SkinPicture(const QString& image, qreal pixelRatio);

// A tool's state images as an icon that follows the skin: hovered is QIcon::Active, down is QIcon::Selected
// or QIcon::On. Without them, the theme's drawing of the name `drawing`.
QIcon SkinIcon(const QString& image, const QString& drawing);

// The font of a font group; what the group does not name, or names in a size that nobody could read, is that
// of `base`.
QFont SkinFont(const app::FontGroup& group, const QFont& base);
QColor SkinColour(platform::ColorRef colour);
// `text`, or black or white where that could not be read on `ground`.
QColor Readable(const QColor& text, const QColor& ground);

}  // namespace ui
