// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/image_support.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <random>
#include <utility>

platform::Bitmap Landscape(int width, int height, unsigned seed)
{
    platform::Bitmap bitmap{width, height, {}};
    std::mt19937 random(seed);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const double hill = 90 * std::sin(x * 0.013 + seed) * std::cos(y * 0.017);
            const double leaf = 10 * std::sin(x * 0.31) * std::sin(y * 0.37);
            const int light = 128 + static_cast<int>(hill + leaf) + static_cast<int>(random() % 9) - 4;
            const auto channel = [light](int tint) {
                return static_cast<std::uint32_t>(std::min(255, std::max(0, light + tint)));
            };
            bitmap.pixels.push_back(0xFF000000U | channel(20) << 16 | channel(y / 8 % 64 - 32) << 8 |
                                    channel(-20));
        }
    }
    return bitmap;
}

double MeanDifference(const platform::Bitmap* a, const platform::Bitmap* b)
{
    if (!a || !b || a->width != b->width || a->height != b->height)
        return -1;
    double sum = 0;
    for (std::size_t i = 0; i < a->pixels.size(); ++i)
        for (int shift = 0; shift < 24; shift += 8)
            sum += std::abs(static_cast<int>(a->pixels[i] >> shift & 255) -
                            static_cast<int>(b->pixels[i] >> shift & 255));
    return sum / (3.0 * static_cast<double>(a->pixels.size()));
}

platform::Bitmap Mean(const platform::Bitmap& whole, int width, int height)
{
    platform::Bitmap mean{width, height, {}};
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const int left = x * whole.width / width, right = (x + 1) * whole.width / width;
            const int top = y * whole.height / height, bottom = (y + 1) * whole.height / height;
            std::uint64_t sums[3] = {};
            for (int v = top; v < bottom; ++v)
                for (int u = left; u < right; ++u)
                    for (int c = 0; c < 3; ++c)
                        sums[c] += whole.pixels[static_cast<std::size_t>(v) * whole.width + u] >> 8 * c & 255;
            std::uint32_t pixel = 0xFF000000U;
            for (int c = 0; c < 3; ++c)
                pixel |= static_cast<std::uint32_t>(sums[c] / ((right - left) * (bottom - top))) << 8 * c;
            mean.pixels.push_back(pixel);
        }
    }
    return mean;
}

static char Letter(std::uint32_t pixel)
{
    constexpr std::array<std::pair<char, std::uint32_t>, 7> kColours = {{{'R', 0xFF0000},
                                                                         {'G', 0x00FF00},
                                                                         {'B', 0x0000FF},
                                                                         {'W', 0xFFFFFF},
                                                                         {'K', 0x000000},
                                                                         {'d', 0x363636},
                                                                         {'l', 0xB6B6B6}}};
    if (pixel >> 24 == 0)
        return '.';
    char nearest = '?';
    int least = std::numeric_limits<int>::max();
    for (const auto& [letter, colour] : kColours) {
        int distance = 0;
        for (int shift = 0; shift < 24; shift += 8)
            distance +=
                std::abs(static_cast<int>(pixel >> shift & 255) - static_cast<int>(colour >> shift & 255));
        if (distance < least)
            nearest = letter;
        least = std::min(least, distance);
    }
    return nearest;
}

std::string Quarters(const platform::BitmapHandle& bitmap)
{
    if (!bitmap)
        return "none";
    std::string letters;
    for (const int y : {bitmap->height / 4, bitmap->height * 3 / 4})
        for (const int x : {bitmap->width / 4, bitmap->width * 3 / 4})
            letters += Letter(bitmap->pixels[static_cast<std::size_t>(y) * bitmap->width + x]);
    return letters;
}

std::string WithExif(const std::string& jpeg, int orientation, bool motorola)
{
    const auto number = [motorola](unsigned value, int length) {
        std::string bytes;
        for (int i = 0; i < length; ++i)
            bytes += static_cast<char>(value >> 8 * (motorola ? length - 1 - i : i));
        return bytes;
    };
    const auto entry = [&number](unsigned tag, unsigned type, unsigned count, const std::string& value) {
        return number(tag, 2) + number(type, 2) + number(count, 4) + value;
    };
    // Offsets: header 8 bytes, main directory of three entries 42, EXIF directory of one entry 18.
    const std::string block = std::string("Exif\0\0", 6) + (motorola ? "MM" : "II") + number(42, 2) +
                              number(8, 4) + number(3, 2) +
                              entry(0x0112, 3, 1, number(orientation, 2) + number(0, 2)) +
                              entry(0x011A, 5, 1, number(68, 4)) + entry(0x8769, 4, 1, number(50, 4)) +
                              number(0, 4) + number(1, 2) + entry(36867, 2, 20, number(76, 4)) +
                              number(0, 4) + number(72, 4) + number(1, 4) + "2004:05:06 07:08:09" + '\0';
    const std::size_t length = block.size() + 2;
    return jpeg.substr(0, 2) + "\xFF\xE1" + static_cast<char>(length >> 8) + static_cast<char>(length) +
           block + jpeg.substr(2);
}
