// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/file_names.h"
#include "browser/media_types.h"
#include "cli/commands.h"
#include "cli/exif_fields.h"
#include "photo/exif_reader.h"
#include "photo/exif_summary.h"
#include "photo/section_read_ahead.h"
#include "platform/services.h"

#include <algorithm>
#include <filesystem>
#include <set>

namespace cli
{

namespace
{

struct ExifArguments {
    std::vector<std::string> files;
    bool summary = false;
    std::string thumbnail;
};

constexpr std::string_view kJpegFilter = "*.jpg;*.jpeg";

// The photos of a folder in the order of a list; nothing, and a failure, when it cannot be read.
std::vector<std::string> PhotosIn(CContext& context, const std::string& folder, std::string_view filter)
{
    const auto reader = platform::Os().files->ReadFolder(folder);
    if (!reader) {
        context.Fail(folder, platform::Os().files->LastError());
        return {};
    }
    std::vector<platform::FolderEntry> entries;
    while (reader->Read(1000, entries)) {
    }
    const browser::CPatternList patterns(filter);
    std::vector<std::string> photos;
    for (const platform::FolderEntry& entry : entries) {
        if (entry.isRegular && patterns.Matches(entry.name)) {
            photos.push_back(browser::JoinPath(folder, entry.name));
        }
    }
    std::ranges::sort(photos, browser::NameBefore);
    return photos;
}

bool IsFolder(const std::string& path)
{
    std::error_code ignored;
    return std::filesystem::is_directory(path, ignored);
}

// The files given, with the photos of a folder in its place.
std::vector<std::string> Photos(CContext& context, const ExifArguments& arguments)
{
    std::vector<std::string> photos;
    for (const std::string& path : arguments.files) {
        if (IsFolder(path)) {
            const std::vector<std::string> inside =
                PhotosIn(context, path, arguments.summary ? browser::kPictureFilter : kJpegFilter);
            photos.insert(photos.end(), inside.begin(), inside.end());
        } else {
            photos.push_back(path);
        }
    }
    return photos;
}

// Prints the records of many photos, and writes their thumbnails where that is asked for.
class CExifRun
{
public:
    CExifRun(CContext& owner, const ExifArguments& given) : context(owner), arguments(given), list(owner) {}

    void Run()
    {
        const std::vector<std::string> photos = Photos(context, arguments);
        intoFolder = photos.size() > 1 || IsFolder(arguments.thumbnail);
        if (!arguments.thumbnail.empty() && intoFolder) {
            platform::Os().files->CreateDirectory(arguments.thumbnail);
        }
        photo::CSectionReadAhead files(photos);
        CProgressBar bar(context, photos.size());
        for (const std::string& path : photos) {
            if (Interruption() != 0) {
                break;
            }
            One(path, files.Next());
            bar.Advance();
        }
    }

private:
    void One(const std::string& path, photo::CSectionInput* input)
    {
        if (!input) {
            const std::string why = platform::Os().files->LastError();
            Tell(path, false, why, {}, std::nullopt);
            context.Fail(path, why);
            return;
        }
        photo::CExifReader reader;
        const bool result = reader.ReadJpegSections(*input);
        Tell(path, result, reader.ErrorText(), reader.Record(), reader.ThumbnailOffset());
        if (!result) {
            context.Fail(path, Reason(reader));
        }
        if (!arguments.thumbnail.empty()) {
            WriteThumbnail(path, reader);
        }
    }

    void Tell(const std::string& path, bool result, const std::string& error,
              const photo::ExifImageInfo& record, std::optional<std::size_t> thumbnailOffset)
    {
        if (context.json) {
            list.Add({{"path", path},
                      {"result", result},
                      {"error", error},
                      {"record", RecordJson(record, thumbnailOffset)}});
        } else {
            CContext::PrintBytes(RecordText(path, record, thumbnailOffset));
        }
    }

    static std::string Reason(const photo::CExifReader& reader)
    {
        const std::string error = reader.ErrorText();
        const std::string notice = reader.Notice();
        if (error.empty() && notice.empty()) {
            return "is not a JPEG file";
        }
        return error.empty() ? notice.substr(0, notice.find('\n')) : error;
    }

    void WriteThumbnail(const std::string& path, const photo::CExifReader& reader)
    {
        const std::string name = std::string(browser::FileName(path)) + ".jpg";
        const std::string target =
            intoFolder ? browser::JoinPath(arguments.thumbnail, name) : arguments.thumbnail;
        if (reader.Thumbnail().empty()) {
            context.Fail(path, "holds no thumbnail");
        } else if (!written.insert(target).second) {
            context.Fail(path, target + " was written for another photo of that name");
        } else if (!platform::Os().files->ReplaceFile(target, std::as_bytes(reader.Thumbnail()))) {
            context.Fail(target, platform::Os().files->LastError());
        }
    }

    CContext& context;
    const ExifArguments& arguments;
    CJsonArray list;
    bool intoFolder = false;
    std::set<std::string> written;
};

void RunSummary(CContext& context, const ExifArguments& arguments)
{
    const std::vector<std::string> photos = Photos(context, arguments);
    CJsonArray list(context);
    CProgressBar bar(context, photos.size());
    for (const std::string& path : photos) {
        if (Interruption() != 0) {
            break;
        }
        const std::string summary = photo::BuildExifSummary(path);
        if (summary.empty() && !platform::Os().files->Open(path, platform::OpenMode::read)) {
            context.Fail(path, platform::Os().files->LastError());
        }
        list.Add({{"path", path}, {"summary", summary}});
        if (!context.json) {
            CContext::PrintBytes((photos.size() > 1 ? "==> " + path + " <==\n" : "") + summary);
        }
        bar.Advance();
    }
}

}  // namespace

void AddExifCommand(CLI::App& parser, CContext& context)
{
    auto* exif = parser.add_subcommand("exif", "What a camera wrote into its photos");
    auto arguments = std::make_shared<ExifArguments>();
    exif->add_option("FILE", arguments->files, "JPEG files, or folders for the photos in them")->required();
    auto* summary = exif->add_flag("--summary", arguments->summary, "The lines of the window's EXIF page");
    exif->add_option("--thumbnail", arguments->thumbnail,
                     "Also write the photo's own thumbnail to this file; of several photos, each as NAME.jpg "
                     "into this folder")
        ->excludes(summary);
    exif->callback([&context, arguments] {
        if (arguments->summary) {
            RunSummary(context, *arguments);
        } else {
            CExifRun(context, *arguments).Run();
        }
    });
}

}  // namespace cli
