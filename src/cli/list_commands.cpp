// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "browser/file_names.h"
#include "browser/list_file.h"
#include "browser/media_file_list.h"
#include "cli/commands.h"
#include "cli/file_time_text.h"

#include <fmt/format.h>

#include <algorithm>
#include <numeric>

namespace cli
{

namespace
{

struct ListArguments {
    std::string folder;
    int filter = browser::kFilterMedia;
    bool includeFolder = false;
    std::string sort;  // empty for names alone, folders among the files
    bool descending = false;
};

// The items' indexes as they are to be told.
std::vector<int> TellingOrder(const browser::CMediaFileList& list, const ListArguments& arguments)
{
    std::vector<int> order(static_cast<std::size_t>(list.Count()));
    std::iota(order.begin(), order.end(), 0);
    if (arguments.sort.empty()) {
        std::ranges::sort(order, [&list](int left, int right) {
            return browser::NameBefore(list.Item(left).name, list.Item(right).name);
        });
        if (arguments.descending) {
            std::ranges::reverse(order);
        }
    }
    return order;
}

void RunList(CContext& context, const ListArguments& arguments)
{
    browser::CMediaFileList list;
    list.SetFilter(arguments.filter, arguments.includeFolder ? 1 : 0);
    if (const auto key = browser::SortKeyNamed(arguments.sort)) {
        list.SetOrder({*key, arguments.descending});
    }
    if (!list.Fill(AbsolutePath(arguments.folder))) {
        context.Fail(arguments.folder, list.FillError());
        return;
    }
    while (list.FactsStep(1000)) {
    }
    if (list.SortIsDue()) {
        list.Sort();
    }
    Json items = Json::array();
    for (const int index : TellingOrder(list, arguments)) {
        const browser::MediaItem& item = list.Item(index);
        const std::string modified = FileTimeText(item.lastWriteTime);
        if (context.json) {
            items.push_back({{"name", item.name},
                             {"path", list.PathOf(index)},
                             {"types", item.types},
                             {"size", item.fileSize},
                             {"modified", modified},
                             {"folder", item.isFolder},
                             {"needsThumbnail", item.needsThumbnail}});
        }
        context.PrintLine(fmt::format("{}\t{}\t{}\t{}\t{}", item.name, item.fileSize, item.types, modified,
                                      item.isFolder ? "folder" : "file"));
    }
    context.PrintJson(items);
}

struct FileListArguments {
    bool print = false;
    bool selection = false;
    std::string out;
    std::vector<std::string> files;
};

void RunFileList(CContext& context, const FileListArguments& arguments)
{
    std::vector<std::string> files;
    for (const std::string& file : arguments.files) {
        files.push_back(AbsolutePath(file));
    }
    const std::string out = AbsolutePath(arguments.out);
    const int result =
        arguments.print ? browser::WriteFileList(out, files) : browser::WriteSelectionList(out, files);
    context.PrintJson({{"result", result}});
    if (result == 0) {
        context.Fail(arguments.out, "the list cannot be written");
    }
}

}  // namespace

void AddListCommands(CLI::App& parser, CContext& context)
{
    auto* list = parser.add_subcommand("list", "What the file list shows of a folder");
    auto listArguments = std::make_shared<ListArguments>();
    list->add_option("DIR", listArguments->folder, "The folder")->required();
    AddFilterOptions(*list, listArguments->filter);
    list->add_flag("--include-folder", listArguments->includeFolder, "List sub-folders too");
    list->add_option("--sort", listArguments->sort, "Sorted as the window does, folders first")
        ->check(CLI::IsMember({"name", "size", "type", "modified", "taken"}));
    list->add_flag("--descending", listArguments->descending, "The other way round");
    list->callback([&context, listArguments] { RunList(context, *listArguments); });

    auto* fileList = parser.add_subcommand("filelist", "Write a list file");
    auto arguments = std::make_shared<FileListArguments>();
    auto* kind = fileList->add_option_group("kind");
    kind->add_flag("--print", arguments->print, "Only the pictures, as the print program reads them");
    kind->add_flag("--selection", arguments->selection, "All files given");
    kind->require_option(1);
    fileList->add_option("OUT", arguments->out, "The list file to write")->required();
    fileList->add_option("FILE", arguments->files, "The files, in order");
    fileList->callback([&context, arguments] { RunFileList(context, *arguments); });
}

void AddFilterOptions(CLI::App& command, int& filter)
{
    command.add_option("--filter", filter, "0 all files, 1 pictures, 2 videos, 23 media (the default)");
}

}  // namespace cli
