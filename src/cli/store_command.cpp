// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/commands.h"

#include <fmt/format.h>

#include <functional>

namespace cli
{

namespace
{

void RunList(CContext& context)
{
    Json records = Json::array();
    for (const browser::ThumbDbRecord& record : context.Store().Records()) {
        records.push_back({{"folderPath", record.folderPath}, {"dbFileName", record.dbFileName}});
        context.PrintLine(fmt::format("{}\t{}", record.folderPath, record.dbFileName));
    }
    context.PrintJson(records);
}

void PrintName(CContext& context, const std::string* name)
{
    context.PrintJson(TextOrNull(name));
    if (name) {
        context.PrintLine(*name);
    }
}

void RunLookup(CContext& context, const std::string& folder)
{
    PrintName(context, context.Store().GetDbFileForFolder(AbsolutePath(folder)));
}

void RunAdd(CContext& context, const std::string& folder)
{
    const std::string* name = context.Store().AddFolder(AbsolutePath(folder));
    PrintName(context, name);
    if (!name) {
        context.Fail(folder, "the thumbnail store cannot take it");
    }
}

void RunPath(CContext& context, const std::string& file)
{
    std::string path;
    const bool found = context.Store().GetDbPathForFile(AbsolutePath(file), &path) > 0;
    PrintName(context, found ? &path : nullptr);
}

void PrintNumber(CContext& context, const std::string& subject, int result)
{
    context.PrintJson({{"result", result}});
    if (result == 0) {
        context.Fail(subject, "the thumbnail store has no record of it");
    }
}

CLI::App* AddWithArgument(CLI::App& store, const char* name, const char* help, const char* argument,
                          std::function<void(const std::string&)> run)
{
    auto* command = store.add_subcommand(name, help);
    auto value = std::make_shared<std::string>();
    command->add_option(argument, *value)->required();
    command->callback([value, run = std::move(run)] { run(*value); });
    return command;
}

}  // namespace

void AddStoreCommand(CLI::App& parser, CContext& context)
{
    auto* store = parser.add_subcommand("store", "The map from folders to thumbnail archives");
    store->require_subcommand(1);
    store->add_subcommand("list", "All records")->callback([&context] { RunList(context); });
    AddWithArgument(*store, "lookup", "The archive's name of a folder", "DIR",
                    [&context](const std::string& folder) { RunLookup(context, folder); });
    AddWithArgument(*store, "add", "The same, making a record when there is none", "DIR",
                    [&context](const std::string& folder) { RunAdd(context, folder); });
    AddWithArgument(*store, "remove", "Forget a folder and delete its archive", "DIR",
                    [&context](const std::string& folder) {
                        PrintNumber(context, folder, context.Store().RemoveFolder(AbsolutePath(folder)));
                    });
    AddWithArgument(*store, "path", "The archive for a file's folder", "FILE",
                    [&context](const std::string& file) { RunPath(context, file); });

    auto* rename =
        store->add_subcommand("rename", "Give a folder's record another path, until the next save");
    auto names = std::make_shared<std::pair<std::string, std::string>>();
    rename->add_option("OLD", names->first)->required();
    rename->add_option("NEW", names->second)->required();
    rename->callback([&context, names] {
        const int result =
            context.Store().RenameFolder(AbsolutePath(names->first), AbsolutePath(names->second));
        PrintNumber(context, names->first, result);
    });
    store->add_subcommand("save", "Drop the folders that are gone, as at the window's end")
        ->callback([&context] {
            context.PrintJson({{"result", context.Store().Save(true)}});
        });
}

}  // namespace cli
