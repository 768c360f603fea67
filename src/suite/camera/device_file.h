// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What "Dev.ini" says of cameras: which volumes to take, which folders and files of them. The format:
// docs/formats/dev-ini.md.
#pragma once

#include <string>
#include <vector>

namespace suite
{

// All words are in lower case, extensions without a dot.
struct DeviceRules {
    std::string root;                 // a folder that is taken for the store; empty to look for one
    std::vector<std::string> labels;  // of volumes that come first, and that need not be removable
    std::vector<std::string> folders;
    std::vector<std::string> photos;
    std::vector<std::string> clips;
};

// What the file leaves out has its default. KELVO_CAMERA_ROOT names the root whatever the file says.
DeviceRules ReadDeviceFile(const std::string& file);

std::string LowerCase(std::string text);

}  // namespace suite
