// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The text of ~/.xscreensaver: entries "key: value", gone on with in the next line after a backslash. The
// format is that of X resource files; the keys are those of xscreensaver(1).
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace platform_linux
{

// The value as it stands in the text, continued lines and all; nothing when the text has no such key. A key
// of the system's defaults ("*programs") is the key of the user's file.
std::optional<std::string> XScreenSaverValue(std::string_view text, std::string_view key);
// The text with the value in place of the key's present one, or at the end; all else stays as it is.
std::string WithXScreenSaverValue(std::string_view text, std::string_view key, std::string_view value);
// The text in which a show of the folder's pictures is the one screen saver. The list of screen savers comes
// from the text, else from the defaults.
std::string WithPictureShow(std::string_view text, std::string_view defaults, const std::string& folder);

}  // namespace platform_linux
