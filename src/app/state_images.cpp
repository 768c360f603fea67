// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/state_images.h"

#include <algorithm>

namespace app
{

namespace
{

// A side, in pixels.
constexpr int kLargestPicture = 1024;

struct NameParts {
    std::string stem;
    std::string extension;
};

NameParts Split(const std::string& path)
{
    const std::size_t slash = path.rfind('/');
    const std::size_t dot = path.rfind('.');
    if (dot == std::string::npos || (slash != std::string::npos && dot < slash)) {
        return {path, ".png"};
    }
    return {path.substr(0, dot), path.substr(dot)};
}

platform::BitmapHandle Load(const std::string& path)
{
    const platform::CImage image(path);
    const int longest = std::max(image.Width(), image.Height());
    if (longest == 0 || longest > kLargestPicture) {
        return nullptr;
    }
    return image.GetThumbnail(image.Width(), image.Height(), 7, 0x21808);
}

SkinPicture LoadPicture(const std::string& path, bool dense)
{
    if (path.empty()) {
        return {};
    }
    if (dense) {
        const auto [stem, extension] = Split(path);
        if (platform::BitmapHandle bitmap = Load(stem + "@2x" + extension)) {
            return {std::move(bitmap), 2};
        }
    }
    return {Load(path), 1};
}

}  // namespace

std::array<std::string, kButtonStates> StateImageFiles(const std::string& skinFolder, std::string_view image)
{
    static constexpr std::array kSuffixes{"_normal", "_down", "_hl", "_gray"};
    std::array<std::string, kButtonStates> files;
    const std::string path = SkinFilePath(skinFolder, image);
    if (!path.empty()) {
        const auto parts = Split(path);
        std::transform(kSuffixes.begin(), kSuffixes.end(), files.begin(),
                       [&](const char* suffix) { return parts.stem + suffix + parts.extension; });
    }
    return files;
}

StateImages LoadStateImages(const std::string& skinFolder, std::string_view image, bool dense)
{
    const auto files = StateImageFiles(skinFolder, image);
    StateImages images;
    std::transform(files.begin(), files.end(), images.begin(),
                   [dense](const std::string& file) { return LoadPicture(file, dense); });
    if (!images.front().bitmap) {
        images.front() = LoadSkinPicture(skinFolder, image, dense);
    }
    return images;
}

SkinPicture LoadSkinPicture(const std::string& skinFolder, std::string_view image, bool dense)
{
    return LoadPicture(SkinFilePath(skinFolder, image), dense);
}

}  // namespace app
