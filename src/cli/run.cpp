// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/commands.h"

#include <cstdio>

namespace cli
{

int Run(int argc, const char* const* argv, const char* version)
{
    constexpr int kWrongUsage = 2;
    CLI::App parser("Kelvo from the command line: thumbnails, archives, lists, photos' facts and settings.\n"
                    "Exit status: 0 done, 1 failed for at least one item, 2 wrong usage.",
                    "kelvoctl");
    CContext context;
    parser.add_flag("--json", context.json, "One JSON document on standard output");
    parser.add_flag("--quiet", context.quiet, "No progress bar, and no report of what went well");
    parser.set_version_flag("--version", std::string("kelvoctl ") + version);
    parser.set_help_flag("-h,--help", "This help");
    parser.require_subcommand(1);
    parser.fallthrough();
    AddPathsCommands(parser, context);
    AddSettingsCommand(parser, context);
    AddListCommands(parser, context);
    AddThumbsCommand(parser, context);
    AddStoreCommand(parser, context);
    AddExifCommand(parser, context);
    AddArchiveCommand(parser, context);
    AddCaptionCommand(parser, context);
    AddStampCommand(parser, context);
    AddRenameCommands(parser, context);
    AddSoundCommand(parser, context);
    AddCameraCommand(parser, context);
    AddHandsetCommand(parser, context);
    AddWatchCommand(parser, context);
    CatchInterruptions();
    try {
        parser.parse(argc, argv);
    } catch (const CLI::ParseError& stop) {
        // Help and version arrive here as well, with an exit code of 0.
        return parser.exit(stop) == 0 ? 0 : kWrongUsage;
    }
    if (std::fflush(stdout) != 0) {
        context.Fail("standard output", "cannot be written");
    }
    return context.ExitStatus();
}

}  // namespace cli
