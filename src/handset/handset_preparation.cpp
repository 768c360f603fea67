// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "handset/handset_preparation.h"

#include "browser/file_names.h"
#include "browser/media_types.h"
#include "platform/file_system.h"
#include "platform/image.h"
#include "sound/tune_conversion.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <span>
#include <string_view>

namespace handset
{

namespace
{

using platform::Os;

constexpr int kFittedQuality = 100;
constexpr int kThumbnailMethod = 7;
constexpr std::uint32_t kThumbnailFlags = 0x21808;

unsigned TypesOf(const std::string& path)
{
    return browser::TypeBits(browser::FileName(path));
}

// The source's name with another ending.
std::string NameAs(const std::string& source, std::string_view ending)
{
    const std::string_view name = browser::FileName(source);
    const std::string_view extension = browser::Extension(source);
    return std::string(name.substr(0, name.size() - extension.size())) + std::string(ending);
}

// A new folder of this process; empty when none can be made.
std::string NewTemporaryFolder()
{
    static std::atomic<unsigned> count = 0;
    const std::string root = Os().files->GetTempPath();
    const std::string folder = root + "/handset-" + std::to_string(++count);
    return !root.empty() && Os().files->CreateDirectory(folder) ? folder : std::string();
}

PreparedFile Unchanged(const std::string& source, const std::string& problem = {})
{
    PreparedFile file;
    file.path = source;
    file.problem = problem;
    return file;
}

PreparedFile Failed(PreparedFile file, const std::string& problem)
{
    CHandsetPreparation::Remove(file);
    file.isTemporary = false;
    file.isReady = false;
    file.problem = problem;
    return file;
}

PreparedFile Fitted(PreparedFile file, const platform::CImage& image, PictureSize size)
{
    file.size = size;
    const platform::BitmapHandle bitmap =
        image.GetThumbnail(size.width, size.height, kThumbnailMethod, kThumbnailFlags);
    if (!bitmap)
        return Failed(file, "the picture cannot be decoded");
    if (!Os().images->SaveJpeg(*bitmap, file.path, kFittedQuality))
        return Failed(file, "the smaller picture cannot be written: " + Os().files->LastError());
    return file;
}

// The endings of what the handset gets as JPEG; these spellings and no others.
bool BecomesJpeg(const std::string& path)
{
    constexpr std::array<std::string_view, 4> kEndings = {"tif", "tiff", "bmp", "BMP"};
    return std::ranges::find(kEndings, browser::Extension(path)) != kEndings.end();
}

// The JPEG that stays beside its source; nothing where its name is taken or it cannot be written.
std::optional<PreparedFile> JpegBeside(const std::string& source, const platform::CImage& image)
{
    PreparedFile file;
    file.path = browser::JoinPath(browser::FolderOf(source), NameAs(source, "jpg"));
    file.change = Change::jpeg;
    const bool isFree = Os().files->FindPresence(file.path) == platform::Presence::missing;
    return isFree && image.SaveFile(file.path) ? std::optional(file) : std::nullopt;
}

}  // namespace

PictureSize FitScreen(PictureSize size)
{
    if (size.width <= kScreenWidth && size.height <= kScreenHeight)
        return size;
    const std::int64_t width = size.width;
    const std::int64_t height = size.height;
    const auto atLeastOne = [](std::int64_t side) {
        return static_cast<int>(std::max<std::int64_t>(side, 1));
    };
    if (height * kScreenWidth < width * kScreenHeight)
        return {kScreenWidth, atLeastOne(height * kScreenWidth / width)};
    return {atLeastOne(width * kScreenHeight / height), kScreenHeight};
}

platform::FileDataType DataTypeOf(const std::string& path)
{
    using enum platform::FileDataType;
    const unsigned types = TypesOf(path);
    if (types & browser::kTypePicture)
        return photo;
    if (types & browser::kTypeSound)
        return ring;
    if (browser::CPatternList(browser::kHandsetProgramFilter).Matches(browser::FileName(path)))
        return java;
    return types & browser::kTypeHandsetImage ? animation : photo;
}

bool IsRingTone(const std::string& path)
{
    return (TypesOf(path) & browser::kTypeSound) != 0;
}

bool IsTooLong(const std::string& path)
{
    const auto facts = IsRingTone(path) ? Os().files->FindFirstFile(path) : std::nullopt;
    return facts && facts->size > sound::kLongestRingTone;
}

PreparedFile CHandsetPreparation::AtTemporaryPlace(const std::string& source, const char* ending,
                                                   Change change)
{
    PreparedFile file;
    file.change = change;
    if (folder.empty())
        folder = NewTemporaryFolder();
    if (folder.empty())
        return Failed(file, "no temporary folder: " + Os().files->LastError());
    file.path = browser::JoinPath(folder, NameAs(source, ending));
    file.isTemporary = true;
    return file;
}

PreparedFile CHandsetPreparation::PrepareTune(const std::string& source)
{
    const sound::Tune tune = sound::ConvertTune(source);
    if (tune.result != platform::kSmafDone)
        return Unchanged(source, tune.error);
    PreparedFile file = AtTemporaryPlace(source, "mmf", Change::smaf);
    file.leftOut = tune.leftOut;
    if (file.isReady && !Os().files->ReplaceFile(file.path, std::as_bytes(std::span(tune.smaf))))
        return Failed(file, Os().files->LastError());
    return file;
}

PreparedFile CHandsetPreparation::PreparePicture(const std::string& source, JpegPlace place)
{
    const platform::CImage image(source);
    const PictureSize size{image.Width(), image.Height()};
    const PictureSize fitted = FitScreen(size);
    if (fitted != size) {
        const PreparedFile file = AtTemporaryPlace(source, "jpg", Change::fitted);
        return file.isReady ? Fitted(file, image, fitted) : file;
    }
    // One that cannot be read goes as it is.
    if (!BecomesJpeg(source) || size.width == 0)
        return Unchanged(source);
    if (place == JpegPlace::besideSource) {
        if (const auto beside = JpegBeside(source, image))
            return *beside;
    }
    const PreparedFile file = AtTemporaryPlace(source, "jpg", Change::jpeg);
    if (file.isReady && !image.SaveFile(file.path))
        return Failed(file, "the picture cannot be written as JPEG: " + Os().files->LastError());
    return file;
}

PreparedFile CHandsetPreparation::Prepare(const std::string& source, JpegPlace place)
{
    if (browser::LowerCase(browser::Extension(source)) == "mid")
        return PrepareTune(source);
    if (TypesOf(source) & browser::kTypePicture)
        return PreparePicture(source, place);
    return Unchanged(source);
}

void CHandsetPreparation::Remove(const PreparedFile& file)
{
    if (file.isTemporary)
        Os().files->DeleteFile(file.path);
}

}  // namespace handset
