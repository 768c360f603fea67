// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// How captured pictures are named and saved.
#pragma once

#include "platform/image.h"

#include <string>

namespace app
{

// "FOLDER/PREFIX0001.EXTENSION" with the first number, from 1 on, that no file there has. Four digits or
// more.
std::string NumberedName(const std::string& folder, const std::string& prefix, const std::string& extension);

// Saves a picture of the screen as the next "ScreenCapture-0001.jpg" of the folder, with the library's
// default quality, and answers its path. Nothing is ever overwritten. Empty for an empty folder, and when it
// could not be saved: then nothing is left behind.
std::string SaveScreenCapture(const std::string& folder, const platform::Bitmap& picture);

}  // namespace app
