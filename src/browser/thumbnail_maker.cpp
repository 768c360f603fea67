// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/thumbnail_maker.h"

#include "browser/file_names.h"
#include "platform/file_system.h"
#include "platform/services.h"

#include <algorithm>

namespace browser
{

namespace
{

constexpr int kResampling = 7;
constexpr std::uint32_t kResamplingFlags = 0x21808;

platform::CImage LoadHandsetImage(const std::string& path)
{
    platform::CImage image;
    if (platform::Os().images->Src2Jpg(path, 1)) {
        const std::string converted = JoinPath(FolderOf(path), "Src0.jpg");
        image.LoadFile(converted);
        platform::Os().files->DeleteFile(converted);
    }
    return image;
}

platform::CImage LoadByExtension(const std::string& path, const std::string& extension)
{
    if (extension == "avi") {
        return platform::CImage(platform::Os().images->OpenVideoFrame(path));
    }
    if (extension == "sss") {
        return LoadHandsetImage(path);
    }
    if (extension == "png") {
        platform::CImage image;
        image.LoadPng(path);
        return image;
    }
    return platform::CImage(path);
}

// "2004:05:17 10:22:31" becomes "2004/05/17".
std::string DateTakenText(const platform::CImage& image)
{
    const auto property = image.GetPropertyItem(platform::kTagDateTimeOriginal);
    if (!property) {
        return {};
    }
    std::string text(property->value.begin(), property->value.end());
    text.resize(std::min({text.find('\0'), text.find(' '), text.size()}));
    std::ranges::replace(text, ':', '/');
    return text;
}

}  // namespace

platform::Extent FitInto(platform::Extent picture, int maxWidth, int maxHeight)
{
    if (picture.width < maxWidth && picture.height < maxHeight) {
        return picture;
    }
    const double ratioX = static_cast<double>(maxWidth) / picture.width;
    const double ratioY = static_cast<double>(maxHeight) / picture.height;
    if (ratioX >= ratioY) {
        return {std::max(1, static_cast<int>(picture.width * ratioY)), maxHeight};
    }
    return {maxWidth, std::max(1, static_cast<int>(picture.height * ratioX))};
}

platform::BitmapHandle MakeThumbnail(const std::string& path, int maxWidth, int maxHeight,
                                     PictureFacts& facts)
{
    const std::string extension = LowerCase(Extension(path));
    const platform::CImage image = LoadByExtension(path, extension);
    if (image.Width() <= 0 || image.Height() <= 0) {
        return nullptr;
    }
    const platform::Extent size{image.Width(), image.Height()};
    facts.size = extension == "avi" ? platform::Extent{} : size;
    facts.dateText = DateTakenText(image);
    const platform::Extent fitted = FitInto(size, maxWidth, maxHeight);
    return image.GetThumbnail(fitted.width, fitted.height, kResampling, kResamplingFlags);
}

}  // namespace browser
