// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/skin_layout.h"

#include "app/settings.h"
#include "browser/file_names.h"
#include "browser/interface_font.h"
#include "platform/file_system.h"
#include "platform/services.h"
#include "platform/skin_hook.h"
#include "platform/utility.h"

#include <fmt/format.h>

#include <algorithm>
#include <sstream>

namespace app
{

namespace
{

using platform::Os;
using platform::Rect;

constexpr const char* kFontSection = "button font";
constexpr const char* kPanel = "panel";
// No window is larger, and no sum of such numbers overflows.
constexpr int kMostPixels = 8192;
constexpr std::size_t kLongestFaceName = 260;
constexpr std::size_t kMostAdded = 32;

// The values of one section of one file.
class CSection
{
public:
    CSection(const std::string& file, std::string section) : path(file), name(std::move(section)) {}

    void Read(const char* key, std::string& out) const
    {
        Os().utility->ql_GetSettingString(name, key, path, out);
    }
    void Read(const char* key, int least, int most, int& out) const
    {
        int value = 0;
        if (Os().utility->ql_GetSettingInt(name, key, path, value) && value >= least && value <= most) {
            out = value;
        }
    }
    void Read(const char* key, std::optional<platform::ColorRef>& out) const
    {
        platform::ColorRef value = 0;
        if (Os().utility->ql_GetSettingColor(name, key, path, value)) {
            out = value;
        }
    }
    void Read(const char* key, std::optional<Rect>& out) const
    {
        Rect value;
        const bool found = Os().utility->ql_GetSettingRect(name, key, path, value);
        if (found && value.left >= 0 && value.top >= 0 && value.left < value.right &&
            value.top < value.bottom && value.right <= kMostPixels && value.bottom <= kMostPixels) {
            out = value;
        }
    }

private:
    const std::string& path;
    std::string name;
};

void ReadFont(const std::string& path, FontGroup& font)
{
    const CSection section(path, kFontSection);
    section.Read("font_size", 1, kMostPixels, font.size);
    section.Read("font_size_button", 1, kMostPixels, font.size);
    section.Read("font_size_radio", 1, kMostPixels, font.radioSize);
    std::string face = font.faceName;
    section.Read("font_name", face);
    if (face.size() <= kLongestFaceName) {
        font.faceName = face;
    }
    static constexpr std::array kKeys{"font_color_normal", "font_color_down", "font_color_hover",
                                      "font_color_gray"};
    for (std::size_t state = 0; state < kButtonStates; ++state) {
        section.Read(kKeys[state], font.colours[state]);
    }
}

void ReadElement(const std::string& path, SkinElement& element)
{
    const CSection section(path, element.name);
    const bool isRadio = element.kind == ElementKind::radioButton;
    section.Read("rect", element.rect);
    if (isRadio) {
        section.Read("rect_radio", element.rect);
    } else if (element.number > 0) {
        section.Read(fmt::format("rect_{}", element.number).c_str(), element.rect);
    } else if (element.kind == ElementKind::plain) {
        section.Read("rectPlay", element.rect);
    }
    if (element.kind != ElementKind::plain) {
        section.Read(isRadio ? "image_radio" : "image", element.image);
    }
    if (element.kind == ElementKind::button) {
        section.Read("image_left", element.imageLeft);
        section.Read("image_center", element.imageCenter);
        section.Read("image_right", element.imageRight);
        section.Read("part_width", 1, kMostPixels, element.partWidth);
    }
    section.Read("color", element.color);
}

// Names divided by commas; one that stands for an element of the window, or has no place, is passed over.
void ReadAdded(const std::string& path, WindowLayout& layout)
{
    std::string names;
    CSection(path, kPanel).Read("add", names);
    std::istringstream rest(names);
    std::string name;
    for (std::size_t i = 0; i < kMostAdded && std::getline(rest, name, ','); ++i) {
        name = name.substr(std::min(name.find_first_not_of(' '), name.size()));
        name.erase(name.find_last_not_of(' ') + 1);
        SkinElement element{.name = name, .kind = ElementKind::button};
        if (name.empty() ||
            std::ranges::find(layout.elements, name, &SkinElement::name) != layout.elements.end()) {
            continue;
        }
        ReadElement(path, element);
        CSection(path, name).Read("press", element.presses);
        if (element.rect) {
            layout.added.push_back(element);
        }
    }
}

}  // namespace

std::string SkinFilePath(const std::string& skinFolder, std::string_view name)
{
    std::string within(name);
    std::replace(within.begin(), within.end(), '\\', '/');
    const std::string guarded = "/" + within + "/";
    if (within.empty() || within.front() == '/' || guarded.find("/../") != std::string::npos ||
        within.find('\0') != std::string::npos) {
        return {};
    }
    return browser::JoinPath(skinFolder, within);
}

void ReadLayout(const std::string& skinFolder, std::string_view fileName, WindowLayout& layout)
{
    const bool hasFolder = fileName.find_first_of("/\\") != std::string_view::npos;
    const std::string path = SkinFilePath(skinFolder, (hasFolder ? "" : "Manager/") + std::string(fileName));
    if (path.empty()) {
        return;
    }
    ReadFont(path, layout.font);
    for (SkinElement& element : layout.elements) {
        ReadElement(path, element);
    }
    const CSection panel(path, kPanel);
    panel.Read("rect", layout.panelRect);
    panel.Read("color", layout.panelColor);
    ReadAdded(path, layout);
}

std::string DarkSkinFolder(const std::string& skinFolder)
{
    const std::size_t end = skinFolder.find_last_not_of('/');
    const std::size_t slash = end == std::string::npos ? end : skinFolder.rfind('/', end);
    if (slash == std::string::npos) {
        return skinFolder;
    }
    return skinFolder.substr(0, slash) + "/dark/";
}

FontGroup ReadSkinFont(const std::string& skinFolder)
{
    const browser::InterfaceFont font = browser::ReadInterfaceFont(fmt::format("{}font.ini", skinFolder));
    Os().utility->ql_SetFontInfo(font.faceName, font.size, font.characterSet);
    return {font.namesFace ? font.faceName : std::string{}, font.namesSize ? font.size : 0, 0, {}};
}

void SetPropertyDialogColours(const std::string& skinFolder)
{
    platform::CSkinHook* hook = Os().skinHook;
    if (!hook) {
        return;
    }
    for (const SystemColour& colour : PropertyDialogColours(skinFolder)) {
        hook->SkinMgr_SetColor(colour.index, colour.set ? colour.colour : hook->GetSysColor(colour.index));
    }
}

}  // namespace app
