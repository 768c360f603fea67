// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/file_names.h"
#include "browser/media_file_list.h"
#include "cli/commands.h"
#include "platform/file_system.h"
#include "platform/services.h"

#include <fmt/format.h>

#include <array>

namespace cli
{

namespace
{

struct ThumbsArguments {
    std::string folder;
    int filter = browser::kFilterMedia;
    std::string out;
};

constexpr std::array<const char*, 3> kResultNames{"none", "made", "reused"};

// Makes or fetches the thumbnails of one folder and counts what came of them.
class CThumbsRun
{
public:
    CThumbsRun(CContext& owner, const ThumbsArguments& given)
        : context(owner), arguments(given), list(&owner.Store())
    {
    }

    void Run()
    {
        list.SetFilter(arguments.filter, browser::CMediaFileList::kKeep);
        if (!list.Fill(AbsolutePath(arguments.folder))) {
            context.Fail(arguments.folder, list.FillError());
            return;
        }
        if (!arguments.out.empty()) {
            platform::Os().files->CreateDirectory(arguments.out);
        }
        CProgressBar bar(context, static_cast<std::size_t>(list.Count()));
        for (int i = 0; i < list.Count() && Interruption() == 0; ++i) {
            One(i);
            list.LetGoAllBitmaps();
            bar.Advance();
        }
        context.PrintJson(
            {{"made", counts[1]}, {"reused", counts[2]}, {"none", counts[0]}, {"items", std::move(items)}});
        context.PrintReport(fmt::format("made {}, reused {}, none {}", counts[1], counts[2], counts[0]));
    }

private:
    void One(int index)
    {
        const browser::ThumbnailOutcome outcome = list.CreateThumbnail(index);
        const auto kind = static_cast<std::size_t>(outcome.result);
        ++counts[kind];
        const std::string path = list.PathOf(index);
        if (!outcome.bitmap && list.Item(index).needsThumbnail) {
            context.Fail(path, "no thumbnail can be made of it");
        }
        if (outcome.bitmap && !arguments.out.empty()) {
            const std::string target = browser::JoinPath(arguments.out, list.Item(index).name + ".jpg");
            if (!platform::Os().images->SaveJpeg(*outcome.bitmap, target, platform::kDefaultJpegQuality)) {
                context.Fail(target, "the thumbnail cannot be written");
            }
        }
        const platform::Extent size = outcome.bitmap
                                          ? platform::Extent{outcome.bitmap->width, outcome.bitmap->height}
                                          : platform::Extent{};
        if (context.json) {
            items.push_back(Describe(index, outcome, size));
        }
        context.PrintReport(fmt::format("{}\t{}\t{}x{}\t{}", list.Item(index).name, kResultNames[kind],
                                        size.width, size.height, outcome.dateText));
    }

    Json Describe(int index, const browser::ThumbnailOutcome& outcome, platform::Extent size) const
    {
        const platform::Extent source = SourceSize(index, outcome);
        return {{"name", list.Item(index).name},
                {"result", kResultNames[static_cast<std::size_t>(outcome.result)]},
                {"width", size.width},
                {"height", size.height},
                {"sourceWidth", source.width},
                {"sourceHeight", source.height},
                {"dateText", outcome.dateText}};
    }

    // The store does not keep the size of the source: of a reused thumbnail it is read from the file's
    // header.
    platform::Extent SourceSize(int index, const browser::ThumbnailOutcome& outcome) const
    {
        const bool isPicture = (list.Item(index).types & browser::kTypePicture) != 0;
        if (outcome.result != browser::ThumbnailResult::reused || !isPicture) {
            return outcome.source;
        }
        const platform::CImage image(list.PathOf(index));
        return {image.Width(), image.Height()};
    }

    CContext& context;
    const ThumbsArguments& arguments;
    browser::CMediaFileList list;
    std::array<int, 3> counts{};
    Json items = Json::array();
};

}  // namespace

void AddThumbsCommand(CLI::App& parser, CContext& context)
{
    auto* thumbs = parser.add_subcommand("thumbs", "Make or reuse every thumbnail of a folder");
    auto arguments = std::make_shared<ThumbsArguments>();
    thumbs->add_option("DIR", arguments->folder, "The folder")->required();
    AddFilterOptions(*thumbs, arguments->filter);
    thumbs->add_option("--out", arguments->out, "Also write each as NAME.jpg into this folder");
    thumbs->callback([&context, arguments] { CThumbsRun(context, *arguments).Run(); });
}

}  // namespace cli
