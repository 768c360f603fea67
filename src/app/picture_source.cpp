// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/picture_source.h"

#include "platform/services.h"
#include "platform/settings_store.h"

#include <algorithm>

namespace app
{

namespace
{

using platform::PictureSource;

constexpr const char* kKey = "Software/Qorvel/Vellum";
constexpr const char* kValue = "PictureSource";

}  // namespace

std::vector<PictureSource> OfferedSources(std::vector<PictureSource> sources)
{
    std::erase_if(sources, [](const PictureSource& source) { return source.name.starts_with("WIA-"); });
    return sources;
}

int DefaultSource(const std::vector<PictureSource>& offered)
{
    if (offered.empty())
        return -1;
    const auto present = platform::Os().registry->QueryValue(kKey, kValue);
    const auto found = std::ranges::find(offered, present.value_or(""), &PictureSource::id);
    return found == offered.end() ? 0 : static_cast<int>(found - offered.begin());
}

bool ChooseSource(const PictureSource& source)
{
    return platform::Os().registry->SetValue(kKey, kValue, source.id);
}

}  // namespace app
