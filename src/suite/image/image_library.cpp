// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suite/image/image_library.h"

#include "platform/file_system.h"
#include "suite/image/jpeg_encoder.h"
#include "suite/image/jpeg_source.h"
#include "suite/image/new_file.h"

#include <array>
#include <span>
#include <unistd.h>

namespace suite
{
namespace
{

// Handset images are small: what is lost by saving once more should not show.
constexpr int kSrc2JpgQuality = 95;
constexpr const char* kSrc2JpgName = "Src0.jpg";

PictureKind KindOf(const CInputFile& file)
{
    std::array<std::uint8_t, kSniffLength> start;
    const std::size_t length = file.ReadAt(0, start);
    return SniffPicture(std::span(start).first(length));
}

}  // namespace

std::unique_ptr<platform::CImageSource> CSuiteImageLibrary::Open(const std::string& path)
{
    std::optional<CInputFile> file = CInputFile::Open(path);
    if (!file)
        return nullptr;
    const PictureKind kind = KindOf(*file);
    if (kind == PictureKind::video)
        return video.Open(std::move(*file), kind);
    return OpenPicture(std::move(*file), kind);
}

std::unique_ptr<platform::CImageSource> CSuiteImageLibrary::OpenVideoFrame(const std::string& path)
{
    std::optional<CInputFile> file = CInputFile::Open(path);
    if (!file || KindOf(*file) != PictureKind::video)
        return nullptr;
    return video.Open(std::move(*file), PictureKind::video);
}

std::unique_ptr<platform::CImageSource> CSuiteImageLibrary::OpenPicture(CInputFile file, PictureKind kind)
{
    switch (kind) {
    case PictureKind::unknown:
    case PictureKind::video:
        return nullptr;
    case PictureKind::jpeg:
        return CJpegSource::Open(std::move(file));
    case PictureKind::png:
        return png.Open(std::move(file), kind);
    default:
        return formats.Open(std::move(file), kind);
    }
}

bool CSuiteImageLibrary::SaveJpeg(const platform::Bitmap& bitmap, const std::string& path, int quality)
{
    const std::optional<std::vector<std::byte>> bytes = EncodeJpeg(bitmap, quality);
    if (!bytes)
        return false;
    // A new file need not be on the medium before anything else goes, and thumbnails are saved by the
    // thousand.
    if (!NameIsTaken(path))
        return WriteNewFile(path, *bytes);
    return platform::Os().files != nullptr && platform::Os().files->ReplaceFile(path, *bytes);
}

bool CSuiteImageLibrary::Src2Jpg(const std::string& path, int flag)
{
    std::optional<CInputFile> file = CInputFile::Open(path);
    if (!file)
        return false;
    const PictureKind kind = KindOf(*file);
    const std::unique_ptr<platform::CImageSource> picture = OpenPicture(std::move(*file), kind);
    if (!picture)
        return false;
    const platform::BitmapHandle bitmap = picture->Render(picture->Width(), picture->Height());
    const std::optional<std::vector<std::byte>> bytes =
        bitmap ? EncodeJpeg(*bitmap, kSrc2JpgQuality) : std::nullopt;
    const std::string folder = path.substr(0, path.find_last_of('/') + 1);
    if (!bytes || !WriteNewFile(folder + kSrc2JpgName, *bytes))
        return false;
    constexpr int kKeepSource = 1;
    return flag == kKeepSource || unlink(path.c_str()) == 0;
}

}  // namespace suite
