// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Where the user's files of each kind lie, by the XDG base directory rules: a variable that is unset, empty
// or not an absolute path counts as not set. No result has a trailing separator; none is made here.
#pragma once

#include <string>

namespace platform_linux
{

// $HOME, else the home folder of the user's account; empty when neither is known.
std::string HomeFolder();
// $XDG_CONFIG_HOME/kelvo, by default ~/.config/kelvo: our own settings.
std::string ConfigFolder();
// $XDG_DATA_HOME, by default ~/.local/share.
std::string DataFolder();
// The first absolute entry of $XDG_DATA_DIRS, by default /usr/local/share.
std::string CommonDataFolder();
// $XDG_DOCUMENTS_DIR, else what user-dirs.dirs says, else ~/Documents.
std::string DocumentsFolder();

}  // namespace platform_linux
