// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window_place.h"

#include "platform/services.h"
#include "platform/settings_store.h"

namespace app
{

namespace
{

constexpr const char* kSection = "Window";
// No desktop reaches further than this from its origin, and no window is smaller.
constexpr int kFarthest = 100'000;
constexpr int kSmallest = 200;

bool IsPlace(const platform::Rect& rect)
{
    const auto within = [](int value) { return value >= -kFarthest && value <= kFarthest; };
    return within(rect.left) && within(rect.top) && within(rect.right) && within(rect.bottom) &&
           rect.right - rect.left >= kSmallest && rect.bottom - rect.top >= kSmallest;
}

}  // namespace

WindowPlace LoadWindowPlace(const std::string& file)
{
    const auto number = [&file](const char* key, int fallback) {
        return platform::Os().profiles->GetPrivateProfileInt(kSection, key, fallback, file);
    };
    WindowPlace place;
    const platform::Rect rect{number("Left", 0), number("Top", 0), number("Right", 0), number("Bottom", 0)};
    if (IsPlace(rect)) {
        place.normal = rect;
    }
    place.maximised = number("Maximised", 1) != 0;
    const int width = number("LeftPane", 0);
    place.leftWidth = width > 0 && width <= kFarthest ? width : 0;
    return place;
}

bool SaveWindowPlace(const std::string& file, const WindowPlace& place)
{
    platform::ProfileValues values;
    if (IsPlace(place.normal)) {
        values = {{"Left", std::to_string(place.normal.left)},
                  {"Top", std::to_string(place.normal.top)},
                  {"Right", std::to_string(place.normal.right)},
                  {"Bottom", std::to_string(place.normal.bottom)}};
    }
    values.emplace_back("Maximised", place.maximised ? "1" : "0");
    values.emplace_back("LeftPane", std::to_string(place.leftWidth));
    return platform::Os().profiles->WritePrivateProfileValues(kSection, values, file);
}

}  // namespace app
