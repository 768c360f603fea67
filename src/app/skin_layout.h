// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The layout files of the skin: placement, pictures, colours and font of one window each.
//
// Nothing here is ever an error. What a file does not name, or names in a form or with numbers that no window
// could use, leaves the preset as it was. Files and keys: docs/formats/skin.md.
#pragma once

#include "platform/types.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace app
{

enum class ButtonState { normal, down, hover, gray };
inline constexpr std::size_t kButtonStates = 4;

// A button family's font and its text colour in each ButtonState.
struct FontGroup {
    std::string faceName;  // empty: the interface's
    int size = 0;          // height in pixels at normal density; 0: the interface's
    int radioSize = 0;     // the same for radio buttons
    std::array<std::optional<platform::ColorRef>, kButtonStates> colours;
};

enum class ElementKind {
    plain,        // placement and colour
    button,       // pictures as well: one, or three pieces
    radioButton,  // its placement and picture have keys of their own
};

struct SkinElement {
    std::string name;  // the section
    int number = 0;    // of several in one section: placed by "rect_%d" when above 0
    ElementKind kind = ElementKind::plain;
    std::optional<platform::Rect> rect{};  // in the window, left to right
    std::string image{};                   // relative to the skin folder, as the other two
    std::string imageLeft{};
    std::string imageCenter{};
    std::string imageRight{};
    int partWidth = 0;  // of the left and the right piece
    std::optional<platform::ColorRef> color{};
    std::string presses{};  // of a picture that the file adds: the button that it stands for
};

// A window's look. `elements` is filled by the window with what it has, and with its presets.
struct WindowLayout {
    FontGroup font;
    std::vector<SkinElement> elements;
    std::optional<platform::Rect> panelRect;
    std::optional<platform::ColorRef> panelColor;
    // What the file adds to the window: surfaces and pictures, each with a place.
    std::vector<SkinElement> added;
};

// Reads the font group, then each element in the order given, then the panel and what it adds. `fileName`
// lies in the skin's "Manager" folder, or has a folder of the skin before it ("RollMgr/tab4.ini").
void ReadLayout(const std::string& skinFolder, std::string_view fileName, WindowLayout& layout);

// The path of a file of the skin; "\" counts as a separator. Empty when the name is empty, absolute or leads
// out of the skin folder.
std::string SkinFilePath(const std::string& skinFolder, std::string_view name);

// The skin for a dark desktop: the folder "dark" beside the skin folder, there or not. Without one, dark
// windows have no skin: colours for a light ground would leave texts that nobody can read.
std::string DarkSkinFolder(const std::string& skinFolder);

// Hands the interface's font of the skin to the utility library; what the skin names of it itself.
FontGroup ReadSkinFont(const std::string& skinFolder);

// Hands the property dialogs' colours of the skin to the skin hook library; without one, does nothing.
void SetPropertyDialogColours(const std::string& skinFolder);

}  // namespace app
