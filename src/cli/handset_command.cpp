// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/settings.h"
#include "app/string_table.h"
#include "cli/handset_commands.h"
#include "cli/interruption_guard.h"
#include "handset/handset_deletion.h"

#include <fmt/format.h>

#include <array>
#include <cstdlib>

namespace cli
{

namespace
{

using handset::FolderClass;
using platform::FileDataType;
using platform::StringId;

struct HandsetArguments {
    int type = 0;
    std::vector<std::string> files;
};

// Calls `work` with the handset when it answers; whether it does.
bool WithHandset(CContext& context, const HandsetPort& port,
                 const std::function<void(platform::CUpDownLoad&)>& work)
{
    const auto link = platform::Os().handset->NewUpDownLoad();
    link->SetConnectPort(port.Number(context));
    const CInterruptionGuard guard([&link] { link->Abort(); });
    if (link->ATInit() != platform::kHandsetDone) {
        TellFailure(context, StringId::handsetNoHandset, link->LastError());
        return false;
    }
    work(*link);
    return true;
}

void RunIdentify(CContext& context, const HandsetPort& port)
{
    std::string manufacturer;
    std::string model;
    const bool answers = WithHandset(context, port, [&](platform::CUpDownLoad& link) {
        manufacturer = link.Manufacturer();
        model = link.Model();
        context.PrintLine(manufacturer + "\t" + model);
    });
    context.PrintJson({{"result", answers}, {"manufacturer", manufacturer}, {"model", model}});
}

void RunCount(CContext& context, const HandsetPort& port, const HandsetArguments& arguments)
{
    int count = -1;
    WithHandset(context, port, [&](platform::CUpDownLoad& link) {
        count = link.GetFileCount(static_cast<FileDataType>(arguments.type));
        if (count < 0) {
            context.Fail(kHandset, link.LastError());
        } else {
            context.PrintLine(std::to_string(count));
        }
    });
    context.PrintJson(count);
}

void RunDelete(CContext& context, const HandsetPort& port, const HandsetArguments& arguments)
{
    const unsigned number = port.Number(context);
    std::array<std::vector<std::string>, 2> paths;
    for (const std::string& path : AbsolutePaths(arguments.files)) {
        paths[handset::ClassOfFolder(path) == FolderClass::ring ? 1 : 0].push_back(path);
    }
    StringId message = StringId::none;
    CProgressBar bar(context, arguments.files.size());
    for (const FolderClass folderClass : {FolderClass::other, FolderClass::ring}) {
        handset::CHandsetDeletion deletion(paths[folderClass == FolderClass::ring ? 1 : 0], folderClass,
                                           number);
        for (std::size_t failed = 0; Interruption() == 0 && deletion.Step(); bar.Advance()) {
            if (deletion.FailedPaths().size() > failed) {
                context.Fail(deletion.FailedPaths()[failed++], deletion.Reason());
            }
        }
        message = deletion.Message() == StringId::none ? message : deletion.Message();
    }
    const bool failed = message != StringId::none;
    const std::string text = failed ? TellFailure(context, message, {}) : "";
    context.PrintJson({{"failed", failed}, {"message", failed ? Json(text) : Json(nullptr)}});
}

}  // namespace

unsigned HandsetPort::Number(CContext& context) const
{
    if (!device.empty()) {
        setenv("KELVO_PORT_0", AbsolutePath(device).c_str(), 1);
        return 0;
    }
    return number != 0 ? number
                       : static_cast<unsigned>(app::HandsetPort(context.Application().ProgramFolder()));
}

std::string TellFailure(CContext& context, StringId text, const std::string& reason)
{
    const std::string message = app::Strings().LoadString(text);
    context.Fail(kHandset, message);
    if (!reason.empty()) {
        context.Fail(kHandset, reason);
    }
    return message;
}

void AddHandsetCommand(CLI::App& parser, CContext& context)
{
    auto port = std::make_shared<HandsetPort>();
    auto* command = parser.add_subcommand(kHandset, "The handset at a serial line");
    command->require_subcommand(1);
    command->fallthrough();
    auto* number = command->add_option("--port", port->number, "A port number instead of that of Port.ini")
                       ->check(CLI::Range(1, 255));
    command->add_option("--device", port->device, "A serial device, such as /dev/ttyUSB0")->excludes(number);

    auto arguments = std::make_shared<HandsetArguments>();
    auto* identify = command->add_subcommand("identify", "Print the handset's maker and model");
    identify->callback([&context, port] { RunIdentify(context, *port); });

    auto* count = command->add_subcommand("count", "Print how many files of a type it holds");
    count
        ->add_option("TYPE", arguments->type, "main, sub, album, frame, ring, animation, java, or the number")
        ->required()
        ->transform(CLI::CheckedTransformer(std::map<std::string, int>{{"animation", 1},
                                                                       {"main", 2},
                                                                       {"sub", 3},
                                                                       {"album", 6},
                                                                       {"ring", 7},
                                                                       {"java", 8},
                                                                       {"frame", 9}}));
    count->callback([&context, port, arguments] { RunCount(context, *port, *arguments); });

    AddHandsetTransfers(*command, context, port);

    auto* deletion = command->add_subcommand(
        "delete", "Delete files on it that were fetched from it; those on this side stay");
    deletion->add_option("FILE", arguments->files, "The fetched files, in the folders that received them")
        ->required();
    deletion->callback([&context, port, arguments] { RunDelete(context, *port, *arguments); });
}

}  // namespace cli
