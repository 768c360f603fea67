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
};

// Section "Font" of the file; what is missing keeps its default.
InterfaceFont ReadInterfaceFont(const std::string& file);

}  // namespace browser
