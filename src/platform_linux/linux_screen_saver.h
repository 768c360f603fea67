// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CLinuxScreenSaver: the show of pictures of xscreensaver.
//
// ~/.xscreensaver is changed in one step, and the user's own is kept beside it as
// ".xscreensaver.before-kelvo". Chosen pictures are links in a folder of the user's data, a new one each time
// since xscreensaver remembers what a folder held.
#pragma once

#include "platform/screen_saver.h"

namespace platform_linux
{

class CLinuxScreenSaver final : public platform::CScreenSaver
{
public:
    platform::ScreenSaverResult ShowPictures(const std::string& folder,
                                             const std::vector<std::string>& pictures) override;
};

}  // namespace platform_linux
