// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/commands.h"

namespace cli
{

namespace
{

Json PathsDocument(CContext& context)
{
    const app::CDataFolders& folders = context.Folders();
    const app::CKelvoApp& application = context.Application();
    Json kinds = Json::object();
    constexpr int kKinds = 14;
    for (int kind = 0; kind < kKinds; ++kind) {
        std::string path;
        folders.GetFolderPath(kind, path);
        kinds[std::to_string(kind)] = path;
    }
    return {
        {"version", folders.VersionText()},
        {"programFolder", application.ProgramFolder()},
        {"skinFolder", application.SkinFolder()},
        {"favouriteRoot", folders.FavouriteRoot()},
        {"tempRoot", folders.TempRoot()},
        {"mobileDownloadRoot", folders.MobileDownloadRoot()},
        {"thumbDbFolder", folders.ThumbDbFolder()},
        {"outboxFolder", folders.OutboxFolder()},
        {"searchFolder", folders.SearchFolder()},
        {"kinds", kinds},
        {"application",
         {{"dbFolder", application.DbFolder()},
          {"favouriteTree", application.FavouriteTree()},
          {"outboxFolder", application.OutboxFolder()},
          {"searchFolder", application.SearchFolder()},
          {"mobileDownloadFolder", application.MobileDownloadFolder()}}},
    };
}

void PrintTree(const CContext& context, const Json& document, const std::string& prefix)
{
    for (const auto& [key, value] : document.items()) {
        if (value.is_object()) {
            PrintTree(context, value, prefix + key + ".");
        } else {
            context.PrintLine(prefix + key + "\t" + value.get<std::string>());
        }
    }
}

void RunPaths(CContext& context)
{
    const Json document = PathsDocument(context);
    context.PrintJson(document);
    PrintTree(context, document, "");
    for (const std::string& problem : context.Folders().Problems()) {
        context.Fail("data tree", problem);
    }
}

void RunAlbums(CContext& context, int kind)
{
    app::CDataFolders& folders = context.Folders();
    Json names = Json::array();
    if (folders.CountAlbums(static_cast<app::DataFolderKind>(kind)) > 0) {
        for (const std::string& name : folders.AlbumNames()) {
            names.push_back(name);
            context.PrintLine(name);
        }
    }
    context.PrintJson(names);
}

}  // namespace

void AddPathsCommands(CLI::App& parser, CContext& context)
{
    auto* paths = parser.add_subcommand("paths", "Prepare and print the data tree");
    paths->callback([&context] { RunPaths(context); });

    auto* albums = parser.add_subcommand("albums", "Names of the albums of a favourite folder");
    auto kind = std::make_shared<int>(0);
    albums->add_option("KIND", *kind, "2 for photos, 4 for ring tones, 6 for frames")
        ->required()
        ->check(CLI::IsMember({2, 4, 6}));
    albums->callback([&context, kind] { RunAlbums(context, *kind); });
}

}  // namespace cli
