// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The pictures of the skin, read through the image library.
//
// "Manager/email.png" stands for the four files "email_normal.png", "email_down.png", "email_hl.png" and
// "email_gray.png" beside it. On a dense screen each file's "@2x" twin ("email_normal@2x.png") comes first.
// A file that is missing, is no picture, or is larger than a control can be, counts as missing.
#pragma once

#include "app/skin_layout.h"
#include "platform/image.h"

namespace app
{

struct SkinPicture {
    platform::BitmapHandle bitmap;  // null: missing
    int scale = 1;                  // its pixels per pixel of a screen of normal density
};

using StateImages = std::array<SkinPicture, kButtonStates>;

// The paths of the four files in ButtonState's order, or four empty ones for a name that leads out of the
// skin.
std::array<std::string, kButtonStates> StateImageFiles(const std::string& skinFolder, std::string_view image);

// The four, loaded in that order. Without a normal one the picture of the plain name takes its place.
StateImages LoadStateImages(const std::string& skinFolder, std::string_view image, bool dense);

// One picture without states.
SkinPicture LoadSkinPicture(const std::string& skinFolder, std::string_view image, bool dense);

}  // namespace app
