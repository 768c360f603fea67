// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CScreenSaver: the desktop's screen saver, as far as it can show pictures.
#pragma once

#include <string>
#include <vector>

namespace platform
{

enum class ScreenSaverResult {
    set,
    missing,     // no screen saver that shows pictures is installed
    noScreen,    // the session lets no program put a screen saver over it
    notWritten,  // CFileSystem::LastError says why; everything is as it was
};

class CScreenSaver
{
public:
    virtual ~CScreenSaver() = default;
    // Makes a show of the pictures in `folder`, or of these pictures where there are any, the user's screen
    // saver. What else the user has set for the screen saver stays.
    virtual ScreenSaverResult ShowPictures(const std::string& folder,
                                           const std::vector<std::string>& pictures) = 0;
};

}  // namespace platform
