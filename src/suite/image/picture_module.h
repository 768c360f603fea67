// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What a picture module (kelvo-NAME.so) offers: one function that opens a picture.
//
// Modules keep libraries that are slow to load out of the programs until a file needs them.
#pragma once

#include "platform/image.h"
#include "suite/image/picture_kind.h"

namespace suite
{

extern "C" {
// Takes over the descriptor of a regular file whose start was sniffed as `kind`. The object returned belongs
// to the caller; null when the picture cannot be read.
using OpenPictureFunction = platform::CImageSource*(int descriptor, PictureKind kind);
}

inline constexpr const char* kOpenPictureName = "KelvoOpenPicture";

}  // namespace suite

#define KELVO_PICTURE_MODULE extern "C" __attribute__((visibility("default")))
