// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a layout file: what is read from it can be used as it is, and its pictures lie in the skin.
#include "app/skin_layout.h"
#include "platform/services.h"
#include "platform_linux/ini_text.h"
#include "suite/utility/utility_library.h"
#include "support/test_services.h"

#include <cstdlib>

namespace
{

// One text as every file.
class CTextProfiles final : public support::CTestProfiles
{
public:
    explicit CTextProfiles(std::string bytes) : text(std::move(bytes)) {}
    std::string GetPrivateProfileString(const std::string& section, const std::string& key,
                                        const std::string& fallback, const std::string&) override
    {
        return text.Value(section, key).value_or(fallback);
    }
    bool HasPrivateProfileKey(const std::string& section, const std::string& key, const std::string&) override
    {
        return text.Value(section, key).has_value();
    }

private:
    platform_linux::CIniText text;
};

bool IsSound(const std::optional<platform::Rect>& rect)
{
    return !rect || (rect->left >= 0 && rect->top >= 0 && rect->left < rect->right &&
                     rect->top < rect->bottom && rect->right <= 8192 && rect->bottom <= 8192);
}

bool IsSound(const std::string& image)
{
    const std::string path = app::SkinFilePath("/skin/", image);
    return path.empty() || (path.starts_with("/skin/") && (path + "/").find("/../") == std::string::npos);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    if (!platform_linux::CIniText::IsUsable(bytes))
        return 0;
    CTextProfiles profiles(bytes);
    suite::CUtilityLibrary utility("/program");
    const support::CServicesGuard guard{platform::Services()};
    platform::Os().profiles = &profiles;
    utility.Install();
    app::WindowLayout layout;
    layout.elements = {{.name = "start", .kind = app::ElementKind::button},
                       {.name = "pick", .kind = app::ElementKind::radioButton},
                       {.name = "star", .number = 2}};

    app::ReadLayout("/skin/", "test.ini", layout);

    bool sound = IsSound(layout.panelRect);
    for (const app::SkinElement& element : layout.elements) {
        sound = sound && IsSound(element.rect) && IsSound(element.image) && IsSound(element.imageLeft) &&
                IsSound(element.imageCenter) && element.partWidth >= 0 && element.partWidth <= 8192;
    }
    if (!sound)
        std::abort();
    return 0;
}
