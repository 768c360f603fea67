// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/exif_summary.h"

#include "platform/image.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <limits>
#include <optional>
#include <string_view>

namespace photo
{

namespace
{

using platform::PropertyItem;

constexpr std::uint16_t kShort = 3;
constexpr std::uint16_t kLong = 4;
constexpr std::string_view kLineEnd = "\r\n";

struct ValueName {
    int value;
    std::string_view name;
};
constexpr ValueName kMeteringModes[] = {{0, "unknown"}, {1, "Average"},   {2, "Center Weighted Average"},
                                        {3, "Spot"},    {4, "MultiSpot"}, {5, "Pattern"},
                                        {6, "Partial"}};
constexpr ValueName kLightSources[] = {{0, "unknown"},
                                       {1, "Daylight"},
                                       {2, "Fluorescent"},
                                       {3, "Tungsten"},
                                       {17, "Standard light A"},
                                       {18, "Standard light B"},
                                       {19, "Standard light C"},
                                       {20, "D55"},
                                       {21, "D65"},
                                       {22, "D75"}};
constexpr ValueName kFlashes[] = {{0, "flash did not fire"}, {1, "flash fired"}};
// Values are read as signed, so an uncalibrated photo's 0xFFFF is -1 and has no name here.
constexpr ValueName kColourSpaces[] = {{1, "sRGB"}, {65535, "uncalibrated"}};

// The number at byte `offset` of the value; false where the value ends before.
template <typename Number> bool NumberAt(const PropertyItem& item, std::size_t offset, Number& number)
{
    if (offset + sizeof number > item.value.size()) {
        return false;
    }
    std::memcpy(&number, item.value.data() + offset, sizeof number);
    return true;
}

// The value up to its first NUL.
std::string_view Text(const PropertyItem& item)
{
    const std::string_view all(reinterpret_cast<const char*>(item.value.data()), item.value.size());
    return all.substr(0, all.find('\0'));
}

using Value = std::optional<std::string>;

// "0220" is 2.20, with a point in every locale.
Value Version(const PropertyItem& item)
{
    std::string_view text = Text(item);
    text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n\v\f"), text.size()));
    double number = 0;
    (void)std::from_chars(text.data(), text.data() + text.size(), number);
    char line[std::numeric_limits<double>::max_exponent10 + 8];
    const auto end = std::to_chars(line, std::end(line), number / 100, std::chars_format::fixed, 2);
    return std::string(line, end.ptr);
}

Value Words(const PropertyItem& item)
{
    return std::string(Text(item));
}

Value Fraction(const PropertyItem& item)
{
    std::int32_t parts[2] = {};
    if (!NumberAt(item, 0, parts)) {
        return std::nullopt;
    }
    return std::to_string(parts[0]) + "/" + std::to_string(parts[1]);
}

// A value without a name gives an empty one.
template <const auto& names> Value Name(const PropertyItem& item)
{
    std::int16_t value = 0;
    if (!NumberAt(item, 0, value)) {
        return std::nullopt;
    }
    const auto known = std::ranges::find(names, value, &ValueName::value);
    return std::string(known == std::end(names) ? std::string_view() : known->name);
}

Value Dimension(const PropertyItem& item)
{
    std::int16_t shortValue = 0;
    std::int32_t longValue = 0;
    if (item.type == kShort && NumberAt(item, 0, shortValue)) {
        return std::to_string(shortValue);
    }
    if (item.type == kLong && NumberAt(item, 0, longValue)) {
        return std::to_string(longValue);
    }
    return std::nullopt;
}

struct Fact {
    std::uint16_t tag;
    std::string_view before;
    Value (*value)(const PropertyItem& item);
    std::string_view behind;
};

constexpr Fact kFacts[] = {
    {0x9000, "Exif Version = ", Version, ""},
    {0x9003, "Date Time Original = ", Words, ""},
    {0x9204, "Exposure Bias = ", Fraction, " (APEX)"},
    {0x9205, "Max Aperture = ", Fraction, " (APEX)"},
    {0x9206, "Subject Distance = ", Fraction, " (meter)"},
    {0x9207, "Metering Mode = ", Name<kMeteringModes>, ""},
    {0x9208, "Light Source = ", Name<kLightSources>, ""},
    {0x9209, "Flash = ", Name<kFlashes>, ""},
    {0x920A, "Focal Length = ", Fraction, " (mm)"},
    {0x829A, "Exposure Time = ", Fraction, " (seconds)"},
    {0x829D, "F-Number = ", Fraction, " "},
    {0xA000, "FlashPix Version = ", Version, ""},
    {0xA001, "Color Space = ", Name<kColourSpaces>, ""},
    {0xA002, "Pixel X Dimension = ", Dimension, ""},
    {0xA003, "Pixel Y Dimension = ", Dimension, ""},
};

// The fact's line; empty when the picture does not have it or its value has no line.
std::string Line(const platform::CImage& image, const Fact& fact)
{
    const std::optional<PropertyItem> item = image.GetPropertyItem(fact.tag);
    const Value value = item ? fact.value(*item) : std::nullopt;
    if (!value) {
        return {};
    }
    return std::string(fact.before).append(*value).append(fact.behind).append(kLineEnd);
}

}  // namespace

std::string BuildExifSummary(const std::string& path)
{
    const platform::CImage image(path);
    std::string text;
    for (const Fact& fact : kFacts) {
        text += Line(image, fact);
    }
    return text;
}

}  // namespace photo
