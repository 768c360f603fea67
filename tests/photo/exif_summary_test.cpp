// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo/exif_summary.h"

#include "platform/image.h"
#include "support/services_guard.h"

#include <cstring>
#include <gtest/gtest.h>
#include <map>

namespace
{

using Items = std::map<std::uint16_t, platform::PropertyItem>;

// Every path but an empty one is a picture with these items.
class CItemLibrary : public platform::CImageLibrary
{
public:
    Items items;

    std::unique_ptr<platform::CImageSource> Open(const std::string& path) override
    {
        return path.empty() ? nullptr : std::make_unique<CSource>(items);
    }
    bool SaveJpeg(const platform::Bitmap&, const std::string&, int) override { return false; }
    bool Src2Jpg(const std::string&, int) override { return false; }
    std::unique_ptr<platform::CImageSource> OpenVideoFrame(const std::string&) override { return nullptr; }

private:
    struct CSource : platform::CImageSource {
        explicit CSource(const Items& shown) : items(shown) {}
        int Width() const override { return 1; }
        int Height() const override { return 1; }
        platform::BitmapHandle Render(int, int) override { return nullptr; }
        std::optional<platform::PropertyItem> GetPropertyItem(std::uint16_t tag) override
        {
            const auto found = items.find(tag);
            return found == items.end() ? std::nullopt : std::optional(found->second);
        }
        const Items& items;
    };
};

template <typename Number>
platform::PropertyItem Native(std::uint16_t type, std::initializer_list<Number> numbers)
{
    platform::PropertyItem item{type, 1, std::vector<std::uint8_t>(numbers.size() * sizeof(Number))};
    std::memcpy(item.value.data(), std::data(numbers), item.value.size());
    return item;
}
platform::PropertyItem Short(int value)
{
    return Native<std::uint16_t>(3, {static_cast<std::uint16_t>(value)});
}
platform::PropertyItem Ratio(std::int32_t above, std::int32_t below)
{
    return Native<std::int32_t>(5, {above, below});
}
platform::PropertyItem Text(std::string_view text, std::uint16_t type)
{
    return {type, static_cast<std::uint32_t>(text.size()), {text.begin(), text.end()}};
}

class ExifSummaryTest : public ::testing::Test
{
protected:
    std::string Summary(Items items, const std::string& path = "photo.jpg")
    {
        library.items = std::move(items);
        return photo::BuildExifSummary(path);
    }

    CItemLibrary library;
    support::CServicesGuard guard{[this] {
        platform::Services services;
        services.images = &library;
        return services;
    }()};
};

TEST_F(ExifSummaryTest, FifteenLinesComeInTheirOrder)
{
    const std::string text = Summary({
        {0x829A, Ratio(10, 600)},
        {0x829D, Ratio(28, 10)},
        {0x9000, Text("0220", 7)},
        {0x9003, Text(std::string_view("2004:05:17 10:22:31", 20), 2)},
        {0x9204, Ratio(-1, 3)},
        {0x9205, Ratio(3, 1)},
        {0x9206, Ratio(-1, 10)},
        {0x9207, Short(5)},
        {0x9208, Short(21)},
        {0x9209, Short(1)},
        {0x920A, Ratio(50, 1)},
        {0xA000, Text("0100", 7)},
        {0xA001, Short(1)},
        {0xA002, Short(640)},
        {0xA003, Native<std::uint32_t>(4, {100000})},
        {0x010F, Text("not asked for", 2)},
    });

    EXPECT_EQ(text, "Exif Version = 2.20\r\n"
                    "Date Time Original = 2004:05:17 10:22:31\r\n"
                    "Exposure Bias = -1/3 (APEX)\r\n"
                    "Max Aperture = 3/1 (APEX)\r\n"
                    "Subject Distance = -1/10 (meter)\r\n"
                    "Metering Mode = Pattern\r\n"
                    "Light Source = D65\r\n"
                    "Flash = flash fired\r\n"
                    "Focal Length = 50/1 (mm)\r\n"
                    "Exposure Time = 10/600 (seconds)\r\n"
                    "F-Number = 28/10 \r\n"
                    "FlashPix Version = 1.00\r\n"
                    "Color Space = sRGB\r\n"
                    "Pixel X Dimension = 640\r\n"
                    "Pixel Y Dimension = 100000\r\n");
}

TEST_F(ExifSummaryTest, OddValuesGiveTheLineThatTheyMust)
{
    const struct {
        std::uint16_t tag;
        platform::PropertyItem item;
        std::string text;
    } cases[] = {
        {0x9207, Short(255), "Metering Mode = \r\n"},
        {0x9208, Short(4), "Light Source = \r\n"},
        {0x9209, Short(0x19), "Flash = \r\n"},
        {0xA001, Short(0xFFFF), "Color Space = \r\n"},
        {0xA002, Short(40000), "Pixel X Dimension = -25536\r\n"},
        {0xA003, Native<std::uint32_t>(4, {0x80000000}), "Pixel Y Dimension = -2147483648\r\n"},
        {0xA002, Ratio(640, 1), ""},
        {0x920A, Native<std::uint32_t>(5, {0xFFFFFFFF, 3, 7, 8}), "Focal Length = -1/3 (mm)\r\n"},
        {0x920A, Short(50), ""},
        {0x9209, Text("", 3), ""},
        {0x9000, Text("none", 7), "Exif Version = 0.00\r\n"},
        {0x9003, Text("", 2), "Date Time Original = \r\n"},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(Summary({{each.tag, each.item}}), each.text);
    }
    EXPECT_EQ(Summary({{0x9209, Short(1)}}, ""), "");
}

}  // namespace
