// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The font of the interface, read once at start from the skin's font file.
#pragma once

#include <string>

namespace browser
{

struct InterfaceFont {
    std::string faceName = "arial";
    int size = 11;
    int characterSet = 1;
    // What the file names itself.
    bool namesFace = false;
    bool namesSize = false;
};

// Section "Font" of the file; what is missing keeps its default. A face name is cut after 260 bytes.
InterfaceFont ReadInterfaceFont(const std::string& file);

}  // namespace browser
