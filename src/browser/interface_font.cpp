// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/interface_font.h"

#include "platform/services.h"
#include "platform/settings_store.h"

namespace browser
{

InterfaceFont ReadInterfaceFont(const std::string& file)
{
    constexpr std::size_t kLongestFaceName = 260;
    platform::CProfiles& profiles = *platform::Os().profiles;
    InterfaceFont font;
    const std::string face = profiles.GetPrivateProfileString("Font", "facename", "", file);
    font.namesFace = !face.empty();
    font.namesSize = profiles.HasPrivateProfileKey("Font", "fontsize", file);
    if (font.namesFace) {
        font.faceName = face.substr(0, kLongestFaceName);
    }
    font.size = profiles.GetPrivateProfileInt("Font", "fontsize", font.size, file);
    font.characterSet = profiles.GetPrivateProfileInt("Font", "characterSet", font.characterSet, file);
    return font;
}

}  // namespace browser
