// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/media_types.h"

#include "browser/file_names.h"

#include <algorithm>
#include <array>
#include <utility>

namespace browser
{

namespace
{

// Calls `take` with each pattern of a list divided by ";", empty ones left out.
template <typename Take> void ForEachPattern(std::string_view patterns, Take take)
{
    while (!patterns.empty()) {
        const std::size_t end = std::min(patterns.find(';'), patterns.size());
        if (end > 0) {
            take(patterns.substr(0, end));
        }
        patterns.remove_prefix(std::min(end + 1, patterns.size()));
    }
}

bool Contains(std::string_view patterns, std::string_view wanted)
{
    bool found = false;
    ForEachPattern(patterns, [&](std::string_view pattern) { found = found || pattern == wanted; });
    return found;
}

}  // namespace

unsigned TypeBits(std::string_view fileName)
{
    static constexpr std::array<std::pair<std::string_view, unsigned>, 4> kTable{{
        {kPictureFilter, kTypePicture},
        {kVideoFilter, kTypeVideo},
        {kSoundFilter, kTypeSound},
        {kHandsetImageFilter, kTypeHandsetImage},
    }};
    const std::string_view extension = Extension(fileName);
    if (extension.empty() || extension.size() > 4) {
        return 0;
    }
    const std::string pattern = "*." + LowerCase(extension);
    unsigned bits = 0;
    for (const auto& [filter, bit] : kTable) {
        bits |= Contains(filter, pattern) ? bit : 0;
    }
    return bits;
}

std::string FilterPatterns(int mode)
{
    switch (mode) {
    case kFilterAllFiles:
        return "*";
    case kFilterPhoto:
        return std::string(kPictureFilter).append(kSearchResultFilter);
    case kFilterVideo:
        return std::string(kVideoFilter).append(kSearchResultFilter);
    case kFilterMedia: {
        std::string all;
        for (const std::string_view filter :
             {kPictureFilter, kVideoFilter, kSoundFilter, kHandsetImageFilter}) {
            all.append(filter).append(";");
        }
        return all.append(kSearchResultFilter);
    }
    default:
        return {};
    }
}

CPatternList::CPatternList(std::string_view patterns)
{
    ForEachPattern(patterns, [this](std::string_view pattern) {
        if (pattern == "*") {
            everything = true;
        } else if (pattern.starts_with("*.")) {
            extensions.push_back(LowerCase(pattern.substr(2)));
        }
    });
}

bool CPatternList::Matches(std::string_view fileName) const
{
    if (everything) {
        return true;
    }
    const std::string extension = LowerCase(Extension(fileName));
    return !extension.empty() && std::ranges::find(extensions, extension) != extensions.end();
}

}  // namespace browser
